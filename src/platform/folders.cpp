// SPDX-License-Identifier: MIT
#include "platform/folders.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "platform/filenames.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <mntent.h>
#include <system_error>
#include <utility>

namespace vantrel {

namespace fs = std::filesystem;

namespace {

// A disk, a stick or a share; not what the system keeps for itself (its own file systems, the
// images that installed packages are mounted from).
bool isVolume(const std::string& device) {
    const bool share = device.find(":/") != std::string::npos;
    return share || (device.starts_with('/') && !device.starts_with("/dev/loop"));
}

void sortRegardlessOfCase(std::vector<std::string>& names) {
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return std::pair(upper(a), a) < std::pair(upper(b), b);
    });
}

[[noreturn]] void fail(const std::error_code& error, const std::string& folder) {
    ErrorCode code = ErrorCode::pathFileAccess;
    if (error == std::errc::permission_denied)
        code = ErrorCode::permissionDenied;
    if (error == std::errc::no_such_file_or_directory)
        code = ErrorCode::pathNotFound;
    throw RuntimeError(code, shownText(folder) + ": " + error.message());
}

} // namespace

SystemFolders::SystemFolders(std::string mountTable) : m_mountTable(std::move(mountTable)) {}

std::vector<std::string> SystemFolders::drives() const {
    const std::string root = "/";
    std::vector<std::string> mounted;
    if (std::FILE* const table = ::setmntent(m_mountTable.c_str(), "r")) {
        while (const mntent* const mount = ::getmntent(table)) {
            const std::string place = mount->mnt_dir;
            std::error_code ignored;
            if (isVolume(mount->mnt_fsname) && place != root && fs::is_directory(place, ignored))
                mounted.push_back(place);
        }
        ::endmntent(table);
    }
    sortRegardlessOfCase(mounted);
    mounted.erase(std::unique(mounted.begin(), mounted.end()), mounted.end());
    mounted.insert(mounted.begin(), root);
    return mounted;
}

FolderContent SystemFolders::content(const std::string& folder) const {
    FolderContent result;
    std::error_code error;
    for (const fs::directory_entry& entry : entriesOf(folder, error)) {
        const std::string name = entry.path().filename().string();
        std::error_code unreadable; // an entry that cannot be looked at is neither
        if (name.starts_with('.'))
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
