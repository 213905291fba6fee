// SPDX-License-Identifier: MIT
#include "platform/files.h"

#include "base/fixedtext.h"
#include "base/itemreader.h"
#include "base/runtimeerror.h"
#include "platform/filenames.h"
#include "platform/systemcalls.h"

#include <cerrno>
#include <chrono>
#include <cmath>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <future>
#include <set>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace vantrel {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view newSuffix = ".vantrel-new";
constexpr std::string_view oldSuffix = ".vantrel-old";
constexpr std::string_view finishJournal = ".vantrel-finish";
constexpr std::string_view undoJournal = ".vantrel-undo";
constexpr std::size_t smallestRead = 4096;
constexpr unsigned newFileMode = 0666; // less the operator's umask

// Beside the target, hidden, so that a rename within the folder puts it in place.
std::string scratchPath(const std::string& target, std::string_view suffix) {
    const fs::path path(target);
    return (path.parent_path() / ("." + path.filename().string() + std::string(suffix))).string();
}

std::string newPath(const std::string& target) {
    return scratchPath(target, newSuffix);
}
std::string oldPath(const std::string& target) {
    return scratchPath(target, oldSuffix);
}

std::string folderOf(const std::string& path) {
    return fs::path(path).parent_path().string();
}

ErrorCode codeFor(int error, const std::string& path) {
    std::error_code ignored;
    switch (error) {
    case ENOENT:
        return fs::exists(folderOf(path), ignored) ? ErrorCode::fileNotFound
                                                   : ErrorCode::pathNotFound;
    case ENOTDIR:
        return ErrorCode::pathNotFound;
    case ENOSPC:
    case EDQUOT:
        return ErrorCode::diskFull;
    case EACCES:
    case EPERM:
        return ErrorCode::permissionDenied;
    default:
        return ErrorCode::pathFileAccess;
    }
}

[[noreturn]] void fail(int error, const std::string& path) {
    throw RuntimeError(codeFor(error, path),
                       shownText(path) + ": " + shownText(std::strerror(error)));
}

// True for any entry of that path, a link that leads nowhere too.
bool exists(const std::string& path) {
    std::error_code ignored;
    return fs::exists(fs::symlink_status(path, ignored));
}

// Throws unless `path` is a regular file or nothing at all.
void requireRegular(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode))
        throw RuntimeError(ErrorCode::pathFileAccess, shownText(path) + " is not a file");
}

// True as long as this lives.
class RaisedFlag {
public:
    explicit RaisedFlag(bool& flag) : m_flag(flag) { m_flag = true; }
    ~RaisedFlag() { m_flag = false; }
    RaisedFlag(const RaisedFlag&) = delete;
    RaisedFlag& operator=(const RaisedFlag&) = delete;

private:
    bool& m_flag;
};

long long sizeOf(int file) {
    return ::lseek(file, 0, SEEK_END);
}

// What ends a last line that a crash or an editor left open.
std::string missingLineEnd(int file, long long size, const std::string& path) {
    char last = '\n';
    if (size > 0 && ::pread(file, &last, 1, size - 1) != 1)
        fail(errno, path);
    if (last == '\n')
        return {};
    return last == '\r' ? "\n" : "\r\n";
}

} // namespace

class Files::OpenFile {
public:
    // named: the file that the operator knows, for the error.
    OpenFile(SystemCalls& calls, const std::string& path, int flags, std::string named,
             unsigned mode = newFileMode)
        : m_calls(calls),
          m_file(calls.open(path, flags | O_CLOEXEC, mode)),
          m_named(std::move(named)) {
        if (m_file < 0)
            fail(errno, m_named);
    }
    OpenFile(OpenFile&& other) noexcept
        : m_calls(other.m_calls),
          m_file(std::exchange(other.m_file, closed)),
          m_named(std::move(other.m_named)) {}
    ~OpenFile() {
        if (m_file != closed)
            m_calls.close(m_file);
    }

    operator int() const { return m_file; }
    const std::string& named() const { return m_named; }

private:
    static constexpr int closed = -1;

    SystemCalls& m_calls;
    int m_file;
    std::string m_named;
};

Files::Files(std::string programFolder, SystemCalls& calls)
    : m_programFolder(std::move(programFolder)), m_calls(calls) {}

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
    readPath(nativePath(name), bytes);
    return bytes;
}

void Files::readInto(std::string_view name, std::string& bytes) const {
    readPath(nativePath(name), bytes);
}

void Files::readPath(const std::string& path, std::string& bytes) const {
    requireRegular(path);
    const OpenFile file(m_calls, path, O_RDONLY, path);
    struct stat status {};
    const bool known = ::fstat(file, &status) == 0 && status.st_size > 0;
    // One more than its size, so that the end shows without another round.
    bytes.resize(known ? static_cast<std::size_t>(status.st_size) + 1 : smallestRead);
    std::size_t filled = 0;
    for (;;) {
        if (filled == bytes.size())
            bytes.resize(bytes.size() * 2);
        const long count = m_calls.read(file, bytes.data() + filled, bytes.size() - filled);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            fail(errno, path);
        if (count == 0)
            break;
        filled += static_cast<std::size_t>(count);
    }
    bytes.resize(filled);
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

std::string Files::readOrEmpty(std::string_view name) const {
    return present(name) ? read(name) : std::string();
}

// The real file behind the name: a link's target is rewritten, not the link. A link that
// leads nowhere is refused: the log on a stick that is not plugged in is no new log.
std::string Files::targetPath(std::string_view name) const {
    const std::string path = nativePath(name);
    std::error_code error;
    if (!fs::is_symlink(path, error))
        return path;
    const fs::path target = fs::canonical(path, error);
    if (error)
        fail(error.value(), path);
    return target.string();
}

// The same, checked to be a file that the operator may change: a rename would not ask.
std::string Files::writablePath(std::string_view name) const {
    const std::string path = targetPath(name);
    std::error_code ignored;
    requireRegular(path);
    if (fs::exists(path, ignored) && ::access(path.c_str(), W_OK) != 0)
        fail(errno, path);
    return path;
}

void Files::writeAll(int file, std::string_view bytes, const std::string& path) {
    while (!bytes.empty()) {
        const long count = m_calls.write(file, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            fail(count == 0 ? ENOSPC : errno, path);
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void Files::syncFile(const OpenFile& file) {
    if (m_calls.sync(file) != 0)
        fail(errno, file.named());
}

// One after the other: the first makes most disks write all of them. In a thread of its own,
// since that can take longer than a window may stand still.
void Files::syncMeanwhile(const std::vector<OpenFile>& files,
                          const std::function<void()>& between) {
    constexpr std::chrono::milliseconds patience(5);
    const auto syncAll = [this, &files] {
        for (const OpenFile& file : files)
            syncFile(file);
    };
    if (!between)
        return syncAll();
    // Where no thread is to be had, it waits in get().
    auto done = std::async(std::launch::async | std::launch::deferred, syncAll);
    while (done.wait_for(patience) == std::future_status::timeout)
        between();
    done.get();
}

// Creates the file, which must not be there; nothing is left of it on failure. It stands in
// for `target`: it has that one's permissions from the start, and errors name that one.
Files::OpenFile Files::create(const std::string& path, const std::string& target,
                              std::string_view bytes) {
    struct stat old {};
    const bool replaces = ::stat(target.c_str(), &old) == 0;
    const unsigned mode = replaces ? old.st_mode & 07777 : newFileMode;
    OpenFile file(m_calls, path, O_WRONLY | O_CREAT | O_EXCL, target, mode);
    try {
        if (replaces)
            ::fchmod(file, mode); // also what the umask took; not every file system can
        writeAll(file, bytes, target);
    } catch (const RuntimeError&) {
        m_calls.remove(path);
        throw;
    }
    return file;
}

Files::OpenFile Files::createBeside(const std::string& target, std::string_view bytes) {
    m_calls.remove(newPath(target)); // what a crash may have left
    return create(newPath(target), target, bytes);
}

void Files::syncFolder(int folder, const std::string& path) {
    // Some file systems do not know how to sync a folder; that is no failure of ours.
    if (m_calls.sync(folder) != 0 && errno != EINVAL && errno != ENOTSUP)
        fail(errno, path);
}

void Files::syncFolderOf(const std::string& path) {
    syncFolder(OpenFile(m_calls, folderOf(path), O_RDONLY | O_DIRECTORY, path), path);
}

void Files::syncFoldersOf(const std::vector<Replacement>& replacements) {
    std::set<std::string> synced; // a linked file lies in a folder of its own
    for (const Replacement& replacement : replacements)
        if (synced.insert(folderOf(replacement.target)).second)
            syncFolderOf(replacement.target);
}

void Files::appendLine(std::string_view name, std::string_view line) {
    const std::string path = writablePath(name);
    std::error_code ignored;
    const bool existed = fs::exists(path, ignored);
    const OpenFile file(m_calls, path, O_RDWR | O_CREAT | O_APPEND, path);
    const long long size = sizeOf(file);
    try {
        writeAll(file, missingLineEnd(file, size, path) + std::string(line) + "\r\n", path);
        syncFile(file);
        if (!existed)
            syncFolderOf(path);
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
    replace(writablePath(name), bytes);
}

void Files::replace(const std::string& target, std::string_view bytes) {
    const OpenFile folder(m_calls, folderOf(target), O_RDONLY | O_DIRECTORY, target);
    const OpenFile file = createBeside(target, bytes);
    try {
        syncFile(file);
        moveInPlace(target);
    } catch (const RuntimeError&) {
        m_calls.remove(newPath(target));
        throw;
    }
    syncFolder(folder, target);
}

// Renames the file that is written beside over its target.
void Files::moveInPlace(const std::string& target) {
    if (m_calls.rename(newPath(target), target) != 0)
        fail(errno, target);
}

std::string Files::keepCopy(std::string_view name, std::string_view bytes) {
    std::string taken(name);
    for (int number = 2; exists(nativePath(taken)); ++number)
        taken = std::string(name) + std::to_string(number);
    const std::string path = nativePath(taken);
    const OpenFile folder(m_calls, folderOf(path), O_RDONLY | O_DIRECTORY, path);
    const OpenFile file = create(path, path, bytes);
    try {
        syncFile(file);
        syncFolder(folder, path);
    } catch (const RuntimeError&) {
        m_calls.remove(path);
        throw;
    }
    return shownText(path);
}

// --- Several files at once -----------------------------------------------------------------
//
// 1. Every new file is written beside its target, every old one kept by a second name; only
//    then the disk is waited for, which takes much less time for all of them than for each.
// 2. The journal ".vantrel-finish" lists them: from here on a crash is finished by the next
//    start.
// 3. The new files are renamed over the targets; then the journal and the old names go.
// If step 3 fails, the journal becomes ".vantrel-undo" (a rename: also a full disk can do
// that) and the old files are put back; a crash during that is undone to the end by the next
// start. A journal that cannot be removed is a failure: later it would speak of other files.

std::string Files::journalPath(std::string_view journal) const {
    return (fs::path(m_programFolder) / journal).string();
}

void Files::rewriteAll(const std::vector<FileContent>& contents,
                       const std::function<void()>& between) {
    if (m_replacingSeveral) // it would take the other's files for strays
        throw RuntimeError(ErrorCode::pathFileAccess,
                           contents.front().name + ": other files are being saved; try again");
    const RaisedFlag replacing(m_replacingSeveral);
    recover(); // what an earlier one could not settle would mistake our files for its own
    std::vector<Replacement> replacements;
    for (const FileContent& content : contents) {
        const std::string target = writablePath(content.name);
        std::error_code ignored;
        replacements.push_back({content.name, target, fs::exists(target, ignored)});
    }
    const std::string journal = journalPath(finishJournal);
    try {
        const OpenFile folder(m_calls, m_programFolder, O_RDONLY | O_DIRECTORY, journal);
        std::vector<OpenFile> written;
        for (std::size_t i = 0; i < contents.size(); ++i) {
            written.push_back(createBeside(replacements[i].target, contents[i].bytes));
            if (replacements[i].existed)
                keepOld(replacements[i].target);
            if (between)
                between();
        }
        written.push_back(createBeside(journal, journalText(replacements)));
        syncMeanwhile(written, between);
        syncFoldersOf(replacements); // before the journal is in place, which speaks of them
        if (between)
            between();
        moveInPlace(journal);
        syncFolder(folder, journal);
    } catch (const RuntimeError&) {
        m_calls.remove(newPath(journal));
        m_calls.remove(journal);
        removeScratch(replacements);
        throw;
    }
    try {
        finish(replacements);
    } catch (const RuntimeError&) {
        if (m_calls.rename(journal, journalPath(undoJournal)) == 0)
            undo(replacements);
        throw;
    }
}

// Gives the present file a second name; on file systems without links, a copy.
void Files::keepOld(const std::string& target) {
    m_calls.remove(oldPath(target));
    if (m_calls.link(target, oldPath(target)) == 0)
        return;
    if (errno == ENOSPC || errno == EDQUOT)
        fail(errno, target);
    std::string bytes;
    readPath(target, bytes);
    syncFile(create(oldPath(target), target, bytes));
}

// A line each: "+" or "-" for a file that existed or not, and its name.
std::string Files::journalText(const std::vector<Replacement>& replacements) {
    std::string bytes;
    for (const Replacement& replacement : replacements)
        bytes += (replacement.existed ? '+' : '-') + replacement.name + '\n';
    return bytes;
}

std::vector<Files::Replacement> Files::readJournal(std::string_view journal) const {
    const std::string bytes = read(journal);
    std::vector<Replacement> replacements;
    for (LineReader lines(bytes); !lines.atEnd();) {
        const std::string_view line = lines.next();
        const std::string name(midToEnd(line, 2));
        replacements.push_back({name, targetPath(name), left(line, 1) == "+"});
    }
    return replacements;
}

void Files::removeJournal(std::string_view journal) {
    const std::string path = journalPath(journal);
    if (m_calls.remove(path) != 0 && errno != ENOENT)
        fail(errno, path);
}

void Files::finish(const std::vector<Replacement>& replacements) {
    for (const Replacement& replacement : replacements) {
        // A new file that is there no longer is in place already.
        if (exists(newPath(replacement.target)))
            moveInPlace(replacement.target);
    }
    syncFoldersOf(replacements);
    removeJournal(finishJournal);
    removeScratch(replacements);
}

void Files::undo(const std::vector<Replacement>& replacements) {
    for (const auto& [name, target, existed] : replacements) {
        // An old file that is kept no longer has been put back already.
        const std::string kept = oldPath(target);
        const bool undone = existed ? !exists(kept) || m_calls.rename(kept, target) == 0
                                    : m_calls.remove(target) == 0 || errno == ENOENT;
        if (!undone)
            fail(errno, target);
    }
    syncFoldersOf(replacements);
    removeJournal(undoJournal);
    removeScratch(replacements);
}

void Files::removeScratch(const std::vector<Replacement>& replacements) {
    for (const Replacement& replacement : replacements) {
        m_calls.remove(newPath(replacement.target));
        m_calls.remove(oldPath(replacement.target));
    }
}

void Files::recover() {
    if (exists(journalPath(finishJournal)))
        finish(readJournal(finishJournal));
    if (exists(journalPath(undoJournal)))
        undo(readJournal(undoJournal));
    // Whatever else lies there was being written when the program was stopped.
    std::vector<std::string> strays;
    std::error_code error;
    for (fs::directory_iterator entry(m_programFolder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (name.starts_with('.') && (name.ends_with(newSuffix) || name.ends_with(oldSuffix)))
            strays.push_back(entry->path().string());
    }
    for (const std::string& stray : strays)
        m_calls.remove(stray);
}

} // namespace vantrel
