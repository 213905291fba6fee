// SPDX-License-Identifier: MIT
#include "platform/machine.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "platform/windows/win32.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace vantrel {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t longestPath = MAX_PATH - 1;

unsigned long long joined(DWORD high, DWORD low) {
    return (static_cast<unsigned long long>(high) << 32) | low;
}

// Some network drives number no files: there the path has to do, as the system spells it.
std::string identityOf(HANDLE file, const BY_HANDLE_FILE_INFORMATION& info) {
    const unsigned long long number = joined(info.nFileIndexHigh, info.nFileIndexLow);
    if (number != 0)
        return std::to_string(info.dwVolumeSerialNumber) + ' ' + std::to_string(number);
    std::wstring path(32768, L'\0'); // the longest there can be
    path.resize(::GetFinalPathNameByHandleW(file, path.data(), static_cast<DWORD>(path.size()), 0));
    return upper(narrowText(path));
}

bool isDevice(std::string_view part) {
    const std::string name = upper(trim(part.substr(0, part.find('.'))));
    if (name == "CON" || name == "PRN" || name == "AUX" || name == "NUL" || name == "CONIN$" ||
        name == "CONOUT$")
        return true;
    constexpr std::string_view numbers = "0123456789\xB9\xB2\xB3";
    return name.size() == 4 && (name.starts_with("COM") || name.starts_with("LPT")) &&
           numbers.find(name.back()) != std::string_view::npos;
}

} // namespace

std::optional<FileFacts> factsOf(const std::string& path) {
    const Handle file(::CreateFileW(wideText(path).c_str(), 0, sharedByAll, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION info = {};
    if (!file.opened() || ::GetFileInformationByHandle(file, &info) == 0)
        return std::nullopt;
    // The system counts tenths of microseconds from 1601 on.
    using Ticks = std::chrono::duration<long long, std::ratio<1, 10'000'000>>;
    constexpr Ticks until1970(116'444'736'000'000'000);
    const FILETIME& written = info.ftLastWriteTime;
    const Ticks since1601(
        static_cast<long long>(joined(written.dwHighDateTime, written.dwLowDateTime)));
    return FileFacts{identityOf(file, info), joined(info.nFileSizeHigh, info.nFileSizeLow),
                     std::chrono::sys_time<std::chrono::nanoseconds>(since1601 - until1970)};
}

// Nothing but trying tells it: a folder is asked by making a file that goes as it is closed.
bool mayWrite(const std::string& path) {
    const DWORD attributes = ::GetFileAttributesW(wideText(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return true;
    const bool folder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    const std::string tried = folder ? path + "\\.vantrel-probe" : path;
    const Handle file(::CreateFileW(wideText(tried).c_str(), GENERIC_WRITE, sharedByAll, nullptr,
                                    folder ? OPEN_ALWAYS : OPEN_EXISTING,
                                    folder ? FILE_FLAG_DELETE_ON_CLOSE : 0, nullptr));
    if (file.opened())
        return true;
    errno = lastErrno();
    return errno != EACCES && errno != EROFS;
}

bool belongsToAnother(const std::string&) {
    return false;
}

// A new file has those of its folder.
void takeOwnerAndPermissions(int, const std::string&) {}

std::string errorText(int error) {
    return error == EBUSY ? "another program has it open" : std::generic_category().message(error);
}

bool isDiskFull(int error) {
    return error == ENOSPC;
}

// "C:\", "\\SERVER\" or "\".
std::string_view rootOf(std::string_view name) {
    const auto isSeparator = [&](std::size_t at) {
        return at < name.size() && (name[at] == '\\' || name[at] == '/');
    };
    if (name.size() > 1 && name[1] == ':' && isSeparator(2))
        return name.substr(0, 3);
    if (!isSeparator(0) || !isSeparator(1))
        return name.substr(0, isSeparator(0) ? 1 : 0);
    const std::size_t server = name.find_first_of("\\/", 2);
    return name.substr(0, server == std::string_view::npos ? server : server + 1);
}

void requireFileName(std::string_view part) {
    if (isDevice(part))
        throw RuntimeError(ErrorCode::pathFileAccess,
                           std::string(part) +
                               ": Windows takes this name for a device; choose another name");
    const auto forbidden = std::find_if(part.begin(), part.end(), [](char character) {
        return static_cast<unsigned char>(character) < ' ' ||
               std::string_view("<>:\"|?*").find(character) != std::string_view::npos;
    });
    if (forbidden != part.end())
        throw RuntimeError(ErrorCode::pathFileAccess,
                           std::string(part) + ": a file's name cannot hold \"" +
                               std::string(1, *forbidden) + "\" on Windows");
}

fs::path asOnDisk(const fs::path& path) {
    WIN32_FIND_DATAW found = {};
    const bool named = path.filename() != L"." && path.filename() != L".."; // else it finds another
    const HANDLE search = named ? ::FindFirstFileW(path.c_str(), &found) : INVALID_HANDLE_VALUE;
    if (search == INVALID_HANDLE_VALUE)
        return path;
    ::FindClose(search);
    return path.parent_path() / found.cFileName;
}

// The system takes no longer path from programs of this kind.
std::size_t longestName(const std::string& folder) {
    constexpr std::size_t most = 255;
    const std::size_t used = std::min(folder.size() + 1, longestPath);
    return std::min(most, longestPath - used);
}

bool isHidden(const fs::directory_entry& entry) {
    const DWORD attributes = ::GetFileAttributesW(entry.path().c_str());
    return entry.path().filename().native().starts_with(L'.') ||
           (attributes != INVALID_FILE_ATTRIBUTES &&
            (attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0);
}

std::vector<std::string> mountedVolumes() {
    std::vector<std::string> drives;
    const DWORD present = ::GetLogicalDrives();
    for (int i = 0; i < 26; ++i)
        if ((present >> i & 1U) != 0)
            drives.push_back(std::string(1, static_cast<char>('A' + i)) + ":\\");
    return drives;
}

std::string executableFolder() {
    std::wstring path(32768, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return fs::path(path).parent_path().string();
}

} // namespace vantrel
