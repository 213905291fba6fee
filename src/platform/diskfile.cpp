// SPDX-License-Identifier: MIT
#include "platform/diskfile.h"

#include "base/runtimeerror.h"
#include "platform/filenames.h"
#include "platform/machine.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

namespace vantrel {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t smallestRead = 4096;

std::string scratchPath(const std::string& target, std::string_view suffix) {
    const fs::path path = pathOf(target);
    return (path.parent_path() / pathOf("." + path.filename().string() + std::string(suffix)))
        .string();
}

ErrorCode codeFor(int error, const std::string& path) {
    std::error_code ignored;
    if (isDiskFull(error))
        return ErrorCode::diskFull;
    switch (error) {
    case ENOENT:
        return fs::is_directory(pathOf(path).parent_path(), ignored) ? ErrorCode::fileNotFound
                                                                     : ErrorCode::pathNotFound;
    case ENOTDIR:
        return ErrorCode::pathNotFound;
    case EACCES:
    case EPERM:
        return ErrorCode::permissionDenied;
    default:
        return ErrorCode::pathFileAccess;
    }
}

// Nobody else reads a file that stands in for another before it has that one's group.
unsigned modeAtFirst(const std::string& like) {
    constexpr unsigned ownerOnly = 0600;
    return exists(like) ? ownerOnly : DiskFile::newMode;
}

// Throws unless `path` is a regular file or nothing at all.
void requireRegular(const std::string& path) {
    std::error_code ignored;
    const fs::file_status status = fs::status(pathOf(path), ignored);
    if (fs::exists(status) && !fs::is_regular_file(status))
        throw RuntimeError(ErrorCode::pathFileAccess, shownText(path) + " is not a file");
}

} // namespace

DiskFile::DiskFile(SystemCalls& calls, const std::string& path, OpenFor purpose, std::string named,
                   unsigned mode)
    : m_calls(calls), m_file(calls.open(path, purpose, mode)), m_named(std::move(named)) {
    if (m_file < 0)
        throwSystemError(errno, m_named);
}

DiskFile::DiskFile(SystemCalls& calls, int file, std::string named)
    : m_calls(calls), m_file(file), m_named(std::move(named)) {}

DiskFile::DiskFile(DiskFile&& other) noexcept
    : m_calls(other.m_calls),
      m_file(std::exchange(other.m_file, -1)),
      m_named(std::move(other.m_named)) {}

DiskFile::~DiskFile() {
    if (m_file >= 0)
        m_calls.close(m_file);
}

void DiskFile::write(std::string_view bytes) const {
    while (!bytes.empty()) {
        const long count = m_calls.write(m_file, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            throwSystemError(count == 0 ? ENOSPC : errno, m_named);
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void DiskFile::sync() const {
    if (m_calls.sync(m_file) != 0)
        throwSystemError(errno, m_named);
}

void DiskFile::syncFolder() const {
    // Some file systems do not know how to sync a folder; that is no failure of ours.
    if (m_calls.sync(m_file) != 0 && errno != EINVAL && errno != ENOTSUP)
        throwSystemError(errno, m_named);
}

bool DiskFile::lock() const {
    if (m_calls.lock(m_file) == 0)
        return true;
    // Where the file system has no locks, nobody can hold one.
    const int error = errno;
    if (error == ENOLCK || error == EOPNOTSUPP || error == ENOSYS)
        return true;
    if (error != EWOULDBLOCK)
        throwSystemError(error, m_named);
    return false;
}

void throwSystemError(int error, const std::string& path) {
    const bool forbidden = error == EACCES || error == EPERM;
    const bool ownFolder = mayWrite(folderOf(path));
    throw RuntimeError(codeFor(error, path), shownText(path) + ": " + shownText(errorText(error)) +
                                                 (forbidden && ownFolder ? chownHint(path) : ""));
}

std::string chownHint(const std::string& path) {
    if (!belongsToAnother(path))
        return {};
    return ". It belongs to another user; this command makes it yours: sudo chown -R \"$USER\" '" +
           shownText(path) + "'";
}

bool exists(const std::string& path) {
    std::error_code ignored;
    return fs::exists(fs::symlink_status(pathOf(path), ignored));
}

std::string targetPath(const std::string& folder, std::string_view name) {
    const std::string path = resolveName(folder, name);
    std::error_code error;
    if (!fs::is_symlink(pathOf(path), error))
        return path;
    const fs::path target = fs::canonical(pathOf(path), error);
    if (error)
        throwSystemError(errnoOf(error), path);
    return target.string();
}

std::string replaceablePath(const std::string& folder, std::string_view name) {
    const std::string path = targetPath(folder, name);
    requireRegular(path);
    if (!mayWrite(path) && !belongsToAnother(path))
        throwSystemError(EACCES, path);
    return path;
}

std::string readFile(SystemCalls& calls, const std::string& path) {
    requireRegular(path);
    const DiskFile file(calls, path, OpenFor::reading, path);
    // One more than its size, so that the end shows without another round.
    const std::optional<FileFacts> facts = factsOf(path);
    std::string bytes(std::max<std::size_t>(facts ? facts->size + 1 : 0, smallestRead), '\0');
    std::size_t filled = 0;
    for (;;) {
        if (filled == bytes.size())
            bytes.resize(bytes.size() * 2);
        const long count = calls.read(file, bytes.data() + filled, bytes.size() - filled);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throwSystemError(errno, path);
        if (count == 0)
            break;
        filled += static_cast<std::size_t>(count);
    }
    bytes.resize(filled);
    return bytes;
}

DiskFile createFile(SystemCalls& calls, const std::string& path, const std::string& like,
                    const std::string& named, std::string_view bytes) {
    DiskFile file(calls, path, OpenFor::creating, named, modeAtFirst(like));
    try {
        takeOwnerAndPermissions(file, like);
        file.write(bytes);
    } catch (const RuntimeError&) {
        calls.remove(path);
        throw;
    }
    return file;
}

DiskFile createBeside(SystemCalls& calls, const std::string& target, std::string_view bytes) {
    calls.remove(newPath(target)); // what a crash may have left
    return createFile(calls, newPath(target), target, target, bytes);
}

void writeBeside(SystemCalls& calls, const std::string& target, std::string_view bytes) {
    const int unnamed = calls.open(folderOf(target), OpenFor::unnamed, modeAtFirst(target));
    if (unnamed >= 0) {
        const DiskFile file(calls, unnamed, target);
        takeOwnerAndPermissions(file, target);
        file.write(bytes);
        file.sync();
        calls.remove(newPath(target));
        if (calls.name(file, newPath(target)) == 0)
            return;
        if (isDiskFull(errno))
            throwSystemError(errno, target);
    }
    createBeside(calls, target, bytes).sync();
}

void moveInPlace(SystemCalls& calls, const std::string& target) {
    if (calls.rename(newPath(target), target) != 0)
        throwSystemError(errno, target);
}

DiskFile openFolderOf(SystemCalls& calls, const std::string& path) {
    return {calls, folderOf(path), OpenFor::folder, path};
}

std::string newPath(const std::string& target) {
    return scratchPath(target, newSuffix);
}
std::string oldPath(const std::string& target) {
    return scratchPath(target, oldSuffix);
}

std::string folderOf(const std::string& path) {
    return pathOf(path).parent_path().string();
}

} // namespace vantrel
