// SPDX-License-Identifier: MIT
#include "output/files/backup.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "log/logfile.h"
#include "platform/files.h"

namespace vantrel {

namespace {

std::string copyName(std::string_view logFileName, std::string_view folder) {
    return std::string(folder) + '\\' + std::string(lastPart(logFileName));
}

} // namespace

std::string backupText(const Backup& backup) {
    return counted(backup.contacts, "QSO") + " WRITTEN" +
           (backup.kept.empty() ? "" : ". THE COPY THERE HELD OTHER LINES: KEPT AS " + backup.kept);
}

std::string copyThereText(const Files& files, std::string_view logFileName,
                          std::string_view folderTyped) {
    const std::string_view folder = trim(folderTyped);
    if (folder.empty())
        return {};
    const std::string copy = copyName(logFileName, folder);
    if (!files.present(copy))
        return "NO COPY THERE YET";
    const std::string bytes = files.read(copy);
    return "THE COPY THERE: " + contactsText(contactsIn(bytes));
}

Backup backUpLog(Files& files, std::string_view logFileName, std::string_view folderTyped) {
    const std::string_view folder = trim(folderTyped);
    if (folder.empty()) // a name without a folder would mean the top of the whole disk
        throw RuntimeError(ErrorCode::pathNotFound, "no folder to send the backup to");
    const std::string copy = copyName(logFileName, folder);
    const std::string bytes = files.read(logFileName);
    Backup backup{static_cast<int>(contactsIn(bytes).size()), {}};
    const std::string before = files.readOrEmpty(copy);
    if (!bytes.starts_with(before))
        backup.kept = files.keepCopy(copy + ".OLD", before);
    files.rewrite(copy, bytes);
    return backup;
}

} // namespace vantrel
