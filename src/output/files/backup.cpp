// SPDX-License-Identifier: MIT
#include "output/files/backup.h"

#include "base/fixedtext.h"
#include "base/itemreader.h"
#include "base/runtimeerror.h"
#include "log/qsoline.h"
#include "platform/files.h"

namespace vantrel {

namespace {

// However many they are: what is counted here may be any file.
struct ContactsFound {
    int count = 0;
    std::string_view last;
};

ContactsFound contactsOf(std::string_view bytes) {
    ContactsFound found;
    ItemReader reader(bytes);
    while (!reader.atEnd()) {
        const std::string_view item = reader.next();
        if (isContact(item))
            found = {found.count + 1, item};
    }
    return found;
}

std::string qsos(int count) {
    return std::to_string(count) + (count == 1 ? " QSO" : " QSOS");
}

std::string copyName(std::string_view logFileName, std::string_view folder) {
    return std::string(folder) + '\\' +
           std::string(logFileName.substr(logFileName.find_last_of("/\\") + 1));
}

} // namespace

std::string backupText(const Backup& backup) {
    return qsos(backup.contacts) + " WRITTEN" +
           (backup.kept.empty() ? "" : ". THE COPY THERE HELD MORE: KEPT AS " + backup.kept);
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
    const auto [count, last] = contactsOf(bytes);
    return "THE COPY THERE: " + qsos(count) +
           (count == 0 ? ""
                       : ", LAST " + std::string(qso::date.of(last)) + ' ' +
                             std::string(qso::time.of(last)));
}

Backup backUpLog(Files& files, std::string_view logFileName, std::string_view folderTyped) {
    const std::string_view folder = trim(folderTyped);
    if (folder.empty()) // a name without a folder would mean the top of the whole disk
        throw RuntimeError(ErrorCode::pathNotFound, "no folder to send the backup to");
    const std::string copy = copyName(logFileName, folder);
    const std::string bytes = files.read(logFileName);
    Backup backup{contactsOf(bytes).count, {}};
    const std::string before = files.readOrEmpty(copy);
    if (contactsOf(before).count > backup.contacts)
        backup.kept = files.keepCopy(copy + ".OLD", before);
    files.rewrite(copy, bytes);
    return backup;
}

} // namespace vantrel
