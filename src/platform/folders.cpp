// SPDX-License-Identifier: MIT
#include "platform/folders.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "platform/filenames.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
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

// The mount table writes a blank in a path as "\040".
std::string withoutOctals(const std::string& field) {
    constexpr std::size_t digits = 3;
    std::string result;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && i + digits < field.size()) {
            int code = 0;
            for (std::size_t k = 1; k <= digits; ++k)
                code = code * 8 + (field[i + k] - '0');
            result += static_cast<char>(code);
            i += digits;
        } else {
            result += field[i];
        }
    }
    return result;
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
    std::ifstream table(m_mountTable);
    for (std::string line; std::getline(table, line);) {
        std::istringstream fields(line);
        std::string device;
        std::string place;
        fields >> device >> place;
        place = withoutOctals(place);
        std::error_code ignored;
        if (isVolume(device) && place != root && fs::is_directory(place, ignored))
            mounted.push_back(place);
    }
    sortRegardlessOfCase(mounted);
    mounted.erase(std::unique(mounted.begin(), mounted.end()), mounted.end());
    mounted.insert(mounted.begin(), root);
    return mounted;
}

FolderContent SystemFolders::content(const std::string& folder) const {
    FolderContent result;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        std::error_code unreadable; // an entry that cannot be looked at is neither
        if (name.starts_with('.'))
            continue;
        if (entry->is_directory(unreadable))
            result.folders.push_back(name);
        else if (entry->is_regular_file(unreadable))
            result.files.push_back(name);
    }
    if (error)
        fail(error, folder);
    sortRegardlessOfCase(result.folders);
    sortRegardlessOfCase(result.files);
    return result;
}

} // namespace vantrel
