// SPDX-License-Identifier: MIT
#include "output/files/backup.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "platform/files.h"

namespace vantrel {

void backUpLog(Files& files, std::string_view logFileName, std::string_view folderTyped) {
    const std::string folder(trim(folderTyped));
    if (folder.empty()) // a name without a folder would mean the top of the whole disk
        throw RuntimeError(ErrorCode::pathNotFound, "no folder to send the backup to");
    const std::string_view lastPart = logFileName.substr(logFileName.find_last_of("/\\") + 1);
    files.rewrite(folder + "\\" + std::string(lastPart), files.read(logFileName));
}

} // namespace vantrel
