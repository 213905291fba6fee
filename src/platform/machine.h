// SPDX-License-Identifier: MIT
// Questions that each kind of machine answers in its own way: posix/ and windows/ hold the answers.
// All paths are real ones of the machine.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace vantrel {

struct FileFacts {
    std::string identity; // which file of this machine it is, under whatever name
    std::uintmax_t size;  // bytes
    std::chrono::sys_time<std::chrono::nanoseconds> written;
};
// Of what the path leads to; nothing when that is not there.
std::optional<FileFacts> factsOf(const std::string& path);

// False for a file that is there and may not be written in place, or a folder in which no file may
// be made; errno tells why.
bool mayWrite(const std::string& path);
// By the rules of a file system with owners; never elsewhere.
bool belongsToAnother(const std::string& path);
// Gives the open file those of `like`, where that exists, as far as the system lets it.
void takeOwnerAndPermissions(int file, const std::string& like);

// The errno that stands for an error of std::filesystem.
inline int errnoOf(const std::error_code& error) {
    return error.default_error_condition().value();
}
// What an errno says, in English whatever the system speaks; and whether it says that there is no
// room on the disk.
std::string errorText(int error);
bool isDiskFull(int error);

// What an absolute name begins with ("/", "C:\\"), as it stands there; empty for one that goes on
// from the program folder.
std::string_view rootOf(std::string_view name);
// Throws RuntimeError 75 when the machine takes this part of a name for something else than a
// file's name (a device, a stream).
void requireFileName(std::string_view part);
// The path as it is spelled on the disk, where the system has found it in another case.
std::filesystem::path asOnDisk(const std::filesystem::path& path);
// The most bytes that a name in this folder can have.
std::size_t longestName(const std::string& folder);

bool isHidden(const std::filesystem::directory_entry& entry);
// Where volumes are mounted, in no order.
std::vector<std::string> mountedVolumes();

// Where this program's file lies, to the last byte: text would not hold a name that is no UTF-8.
std::string executableFolder();

} // namespace vantrel
