// SPDX-License-Identifier: MIT
#include "platform/files.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "platform/diskfile.h"
#include "platform/filenames.h"
#include "platform/machine.h"

#include <cerrno>
#include <filesystem>
#include <unistd.h>
#include <utility>

namespace vantrel {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

long long sizeOf(int file) {
    return ::lseek(file, 0, SEEK_END);
}

char lastByte(int file, long long size, const std::string& path) {
    char last = '\n';
    if (size > 0 && (::lseek(file, -1, SEEK_END) < 0 || ::read(file, &last, 1) != 1))
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

bool Files::areSame(std::string_view name, std::string_view other) const {
    const std::string path = nativePath(name);
    const std::string otherPath = nativePath(other);
    const std::optional<FileFacts> facts = factsOf(path);
    const std::optional<FileFacts> otherFacts = factsOf(otherPath);
    if (facts && otherFacts)
        return facts->identity == otherFacts->identity;
    std::error_code ignored;
    return upper(fs::weakly_canonical(pathOf(path), ignored).string()) ==
           upper(fs::weakly_canonical(pathOf(otherPath), ignored).string());
}

bool Files::present(std::string_view name) const {
    std::error_code ignored;
    const fs::file_status status = fs::symlink_status(pathOf(nativePath(name)), ignored);
    return status.type() != fs::file_type::not_found;
}

std::string Files::read(std::string_view name) const {
    return readFile(m_calls, nativePath(name));
}

std::string Files::stamp(std::string_view name) const {
    const std::optional<FileFacts> facts = factsOf(nativePath(name));
    // File systems keep times coarsely: a second change right after the first may not show.
    if (!facts || std::chrono::abs(std::chrono::system_clock::now() - facts->written) < 2s)
        return {};
    return facts->identity + ' ' + std::to_string(facts->size) + ' ' +
           std::to_string(facts->written.time_since_epoch().count());
}

std::optional<std::chrono::sys_seconds> Files::writtenAt(std::string_view name) const {
    const std::optional<FileFacts> facts = factsOf(nativePath(name));
    if (!facts)
        return {};
    return std::chrono::floor<std::chrono::seconds>(facts->written);
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
    const DiskFile file(m_calls, path, OpenFor::appending, path);
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

std::string Files::freeName(std::string_view name) const {
    std::string taken(name);
    for (int number = 2; exists(nativePath(taken)); ++number)
        taken = std::string(name) + std::to_string(number);
    return taken;
}

std::string Files::keepCopy(std::string_view name, std::string_view bytes) {
    const std::string path = nativePath(freeName(name));
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
    const std::size_t size = pathOf(newPath(path)).filename().string().size();
    const std::size_t longest = longestName(folderOf(path));
    if (size > longest)
        throw RuntimeError(ErrorCode::pathFileAccess,
                           shownText(path) + ": the name is too long by " +
                               std::to_string(size - longest) + " characters");
}

} // namespace vantrel
