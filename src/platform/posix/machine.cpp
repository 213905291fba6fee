// SPDX-License-Identifier: MIT
#include "platform/machine.h"

#include "platform/diskfile.h"

#include <cerrno>
#include <cstdio>
#include <mntent.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace vantrel {

namespace fs = std::filesystem;

namespace {

// A disk, a stick or a share; not what the system keeps for itself (its own file systems, the
// images that installed packages are mounted from).
bool isVolume(const std::string& device) {
    const bool share = device.find(":/") != std::string::npos;
    return share || (device.starts_with('/') && !device.starts_with("/dev/loop"));
}

} // namespace

std::optional<FileFacts> factsOf(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
    const auto written = std::chrono::seconds(status.st_mtim.tv_sec) +
                         std::chrono::nanoseconds(status.st_mtim.tv_nsec);
    return FileFacts{std::to_string(status.st_dev) + ' ' + std::to_string(status.st_ino),
                     static_cast<std::uintmax_t>(status.st_size),
                     std::chrono::sys_time<std::chrono::nanoseconds>(written)};
}

bool mayWrite(const std::string& path) {
    return !exists(path) || ::access(path.c_str(), W_OK) == 0;
}

bool belongsToAnother(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && status.st_uid != ::getuid();
}

// Not every system and file system lets it. Without the group, its members may do no more than
// everybody.
void takeOwnerAndPermissions(int file, const std::string& like) {
    struct stat status {};
    if (::stat(like.c_str(), &status) != 0)
        return;
    const bool grouped = ::fchown(file, status.st_uid, status.st_gid) == 0 ||
                         ::fchown(file, static_cast<uid_t>(-1), status.st_gid) == 0;
    const unsigned mode = status.st_mode & 0777;
    ::fchmod(file, grouped ? mode : (mode & 0707) | ((mode & 07) << 3));
}

std::string errorText(int error) {
    return std::generic_category().message(error);
}

bool isDiskFull(int error) {
    return error == ENOSPC || error == EDQUOT;
}

std::string_view rootOf(std::string_view name) {
    return name.substr(0, name.starts_with('/') ? 1 : 0);
}

void requireFileName(std::string_view) {}

fs::path asOnDisk(const fs::path& path) {
    return path;
}

std::size_t longestName(const std::string& folder) {
    const long longest = ::pathconf(folder.c_str(), _PC_NAME_MAX);
    return longest > 0 ? static_cast<std::size_t>(longest) : SIZE_MAX;
}

bool isHidden(const fs::directory_entry& entry) {
    return entry.path().filename().string().starts_with('.');
}

std::vector<std::string> mountedVolumes() {
    std::vector<std::string> volumes{"/"};
    if (std::FILE* const table = ::setmntent("/proc/self/mounts", "r")) {
        while (const mntent* const mount = ::getmntent(table)) {
            std::error_code ignored;
            if (isVolume(mount->mnt_fsname) && fs::is_directory(mount->mnt_dir, ignored))
                volumes.emplace_back(mount->mnt_dir);
        }
        ::endmntent(table);
    }
    return volumes;
}

std::string executableFolder() {
    std::error_code ignored; // without it the files are kept in the user's folder
    return fs::read_symlink("/proc/self/exe", ignored).parent_path().string();
}

} // namespace vantrel
