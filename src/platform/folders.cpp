// SPDX-License-Identifier: MIT
#include "platform/folders.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "platform/filenames.h"
#include "platform/machine.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace vantrel {

namespace fs = std::filesystem;

namespace {

void sortRegardlessOfCase(std::vector<std::string>& names) {
    std::ranges::sort(names, [](const std::string& a, const std::string& b) {
        return std::pair(upper(a), a) < std::pair(upper(b), b);
    });
}

[[noreturn]] void fail(const std::error_code& error, const std::string& folder) {
    ErrorCode code = ErrorCode::pathFileAccess;
    if (error == std::errc::permission_denied)
        code = ErrorCode::permissionDenied;
    if (error == std::errc::no_such_file_or_directory)
        code = ErrorCode::pathNotFound;
    throw RuntimeError(code, shownText(folder) + ": " + errorText(errnoOf(error)));
}

} // namespace

std::vector<std::string> drives() {
    std::vector<std::string> drives = mountedVolumes();
    sortRegardlessOfCase(drives);
    drives.erase(std::unique(drives.begin(), drives.end()), drives.end());
    return drives;
}

FolderContent contentOf(const std::string& folder) {
    FolderContent result;
    std::error_code error;
    for (const fs::directory_entry& entry : entriesOf(pathOf(folder), error)) {
        const std::string name = entry.path().filename().string();
        std::error_code unreadable; // an entry that cannot be looked at is neither
        if (isHidden(entry))
            continue;
        if (entry.is_directory(unreadable))
            result.folders.push_back(name);
        else if (entry.is_regular_file(unreadable))
            result.files.push_back(name);
    }
    if (error)
        fail(error, folder);
    sortRegardlessOfCase(result.folders);
    sortRegardlessOfCase(result.files);
    return result;
}

} // namespace vantrel
