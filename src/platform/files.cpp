// SPDX-License-Identifier: MIT
#include "platform/files.h"

#include "base/runtimeerror.h"
#include "platform/diskfile.h"
#include "platform/filenames.h"
#include "platform/systemcalls.h"

#include <cerrno>
#include <cmath>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace vantrel {

namespace fs = std::filesystem;

namespace {

long long sizeOf(int file) {
    return ::lseek(file, 0, SEEK_END);
}

char lastByte(int file, long long size, const std::string& path) {
    char last = '\n';
    if (size > 0 && ::pread(file, &last, 1, size - 1) != 1)
        throwSystemError(errno, path);
    return last;
}

// The line and its end, behind what ends a last line that a crash or an editor left open.
std::string asNewLine(char last, std::string_view line) {
    const std::string_view missing = last == '\n' ? "" : last == '\r' ? "\n" : "\r\n";
    return std::string(missing) + std::string(line) + "\r\n";
}

} // namespace

Files::Files(std::string programFolder, SystemCalls& calls)
    : m_programFolder(std::move(programFolder)),
      m_calls(calls),
      m_replacement(m_programFolder, calls) {}

std::string Files::nativePath(std::string_view name) const {
    return resolveName(m_programFolder, name);
}

std::string Files::path(std::string_view name) const {
    return shownText(nativePath(name));
}

bool Files::present(std::string_view name) const {
    std::error_code ignored;
    const fs::file_status status = fs::symlink_status(nativePath(name), ignored);
    return status.type() != fs::file_type::not_found;
}

std::string Files::read(std::string_view name) const {
    std::string bytes;
    readFile(m_calls, nativePath(name), bytes);
    return bytes;
}

std::string Files::stamp(std::string_view name) const {
    struct stat status {};
    if (::stat(nativePath(name).c_str(), &status) != 0)
        return {};
    // File systems keep times coarsely: a second change right after the first may not show.
    if (std::abs(std::difftime(std::time(nullptr), status.st_mtim.tv_sec)) < 2)
        return {};
    std::string stamp;
    for (const auto part :
         {static_cast<long long>(status.st_dev), static_cast<long long>(status.st_ino),
          static_cast<long long>(status.st_size), static_cast<long long>(status.st_mtim.tv_sec),
          static_cast<long long>(status.st_mtim.tv_nsec)})
        stamp += std::to_string(part) + ' ';
    return stamp;
}

std::optional<std::chrono::sys_seconds> Files::writtenAt(std::string_view name) const {
    struct stat status {};
    if (::stat(nativePath(name).c_str(), &status) != 0)
        return {};
    return std::chrono::sys_seconds(std::chrono::seconds(status.st_mtim.tv_sec));
}

std::string Files::readOrEmpty(std::string_view name) const {
    return present(name) ? read(name) : std::string();
}

void Files::appendLine(std::string_view name, std::string_view line) {
    const std::string path = replaceablePath(m_programFolder, name);
    if (!mayWrite(path)) {
        const std::string before = read(name);
        return rewrite(name, before + asNewLine(before.empty() ? '\n' : before.back(), line));
    }
    const bool existed = exists(path);
    const DiskFile file(m_calls, path, O_RDWR | O_CREAT | O_APPEND, path);
    const long long size = sizeOf(file);
    try {
        file.write(asNewLine(lastByte(file, size, path), line));
        file.sync();
        if (!existed)
            openFolderOf(m_calls, path).syncFolder();
    } catch (const RuntimeError&) {
        if (existed) {
            m_calls.truncate(file, size);
            m_calls.sync(file);
        } else {
            m_calls.remove(path);
        }
        throw;
    }
}

void Files::rewrite(std::string_view name, std::string_view bytes) {
    const std::string target = replaceablePath(m_programFolder, name);
    const DiskFile folder = openFolderOf(m_calls, target);
    try {
        writeBeside(m_calls, target, bytes);
        moveInPlace(m_calls, target);
    } catch (const RuntimeError&) {
        m_calls.remove(newPath(target));
        throw;
    }
    folder.syncFolder();
}

std::string Files::keepCopy(std::string_view name, std::string_view bytes) {
    std::string taken(name);
    for (int number = 2; exists(nativePath(taken)); ++number)
        taken = std::string(name) + std::to_string(number);
    const std::string path = nativePath(taken);
    const DiskFile folder = openFolderOf(m_calls, path);
    const std::string original = nativePath(name.substr(0, name.rfind('.')));
    const DiskFile file = createFile(m_calls, path, original, path, bytes);
    try {
        file.sync();
        folder.syncFolder();
    } catch (const RuntimeError&) {
        m_calls.remove(path);
        throw;
    }
    return shownText(path);
}

void Files::requireNameFits(std::string_view name) const {
    const std::string path = nativePath(name);
    const std::size_t size = fs::path(newPath(path)).filename().string().size();
    const long longest = ::pathconf(folderOf(path).c_str(), _PC_NAME_MAX);
    if (longest > 0 && size > static_cast<std::size_t>(longest))
        throw RuntimeError(ErrorCode::pathFileAccess,
                           shownText(path) + ": the name is too long by " +
                               std::to_string(size - static_cast<std::size_t>(longest)) +
                               " characters");
}

} // namespace vantrel
