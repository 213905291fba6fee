// SPDX-License-Identifier: MIT
#include "platform/replacement.h"

#include "base/fixedtext.h"
#include "base/itemreader.h"
#include "base/runtimeerror.h"
#include "platform/diskfile.h"
#include "platform/filenames.h"
#include "platform/machine.h"

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <future>
#include <set>

namespace vantrel {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view finishJournal = ".vantrel-finish";
constexpr std::string_view undoJournal = ".vantrel-undo";

struct FlagReset {
    bool& flag;
    ~FlagReset() { flag = false; }
};

// fsync of all files in parallel: a slow disk then writes them in one go. In threads, so that the
// window is served meanwhile.
void syncMeanwhile(const std::vector<DiskFile>& files, const std::function<void()>& between) {
    constexpr std::chrono::milliseconds patience(5);
    std::vector<std::future<void>> synced;
    synced.reserve(files.size());
    for (const DiskFile& file : files) // where no thread is to be had, it waits in get()
        synced.push_back(
            std::async(std::launch::async | std::launch::deferred, [&file] { file.sync(); }));
    for (const std::future<void>& one : synced)
        while (one.wait_for(patience) == std::future_status::timeout)
            between();
    for (std::future<void>& one : synced)
        one.get();
}

} // namespace

std::string Replacement::journalPath(std::string_view journal) const {
    return (pathOf(m_programFolder) / journal).string();
}

void Replacement::replaceAll(const std::vector<FileContent>& contents,
                             const std::function<void()>& between) {
    if (m_running) // it would take the other's files for strays
        throw RuntimeError(ErrorCode::pathFileAccess,
                           contents.front().name + ": other files are being saved; try again");
    m_running = true;
    const FlagReset reset{m_running};
    recover(); // what an earlier one could not settle would mistake our files for its own
    const ReplacedFiles files = filesOf(contents);
    const std::string journal = journalPath(finishJournal);
    try {
        prepare(files, contents, between);
    } catch (const RuntimeError&) {
        m_calls.remove(newPath(journal));
        m_calls.remove(journal);
        removeScratch(files);
        throw;
    }
    try {
        finish(files);
    } catch (const RuntimeError&) {
        if (m_calls.rename(journal, journalPath(undoJournal)) == 0)
            undo(files);
        throw;
    }
}

Replacement::ReplacedFiles Replacement::filesOf(const std::vector<FileContent>& contents) const {
    ReplacedFiles files;
    for (const FileContent& content : contents) {
        const bool isCopy = !content.copyOf.empty();
        const std::string target = isCopy ? resolveName(m_programFolder, content.name)
                                          : replaceablePath(m_programFolder, content.name);
        files.push_back({content.name, target, exists(target), isCopy});
    }
    return files;
}

// Steps 1 and 2.
void Replacement::prepare(const ReplacedFiles& files, const std::vector<FileContent>& contents,
                          const std::function<void()>& between) {
    const std::string journal = journalPath(finishJournal);
    const DiskFile folder = openFolderOf(m_calls, journal);
    std::vector<DiskFile> written;
    for (std::size_t i = 0; i < contents.size(); ++i) {
        const std::string original =
            files[i].isCopy ? targetPath(m_programFolder, contents[i].copyOf) : std::string();
        if (exists(original))
            linkOrCopy(original, newPath(files[i].target));
        else
            written.push_back(createBeside(m_calls, files[i].target, contents[i].bytes));
        if (files[i].existed)
            linkOrCopy(files[i].target, oldPath(files[i].target));
        if (between)
            between();
    }
    written.push_back(createBeside(m_calls, journal, journalText(files)));
    if (between)
        syncMeanwhile(written, between);
    else
        for (const DiskFile& file : written)
            file.sync();
    syncFoldersOf(files); // before the journal is in place, which speaks of them
    if (between)
        between();
    moveInPlace(m_calls, journal);
    folder.syncFolder();
}

// On file systems without links the second name is that of a copy.
void Replacement::linkOrCopy(const std::string& file, const std::string& second) {
    m_calls.remove(second);
    if (m_calls.link(file, second) == 0)
        return;
    if (isDiskFull(errno))
        throwSystemError(errno, file);
    createFile(m_calls, second, file, file, readFile(m_calls, file)).sync();
}

// A line each: "+" or "-" for a file that existed or not, "*" for a copy, its name.
std::string Replacement::journalText(const ReplacedFiles& files) {
    std::string bytes;
    for (const ReplacedFile& file : files)
        bytes +=
            (file.existed ? "+" : "-") + std::string(file.isCopy ? "*" : "") + file.name + '\n';
    return bytes;
}

Replacement::ReplacedFiles Replacement::readJournal(std::string_view journal) const {
    const std::string bytes = readFile(m_calls, journalPath(journal));
    ReplacedFiles files;
    for (const std::string_view line : linesOf(bytes)) {
        const bool isCopy = mid(line, 2, 1) == "*";
        const std::string name(midToEnd(line, isCopy ? 3 : 2));
        files.push_back(
            {name, isCopy ? resolveName(m_programFolder, name) : targetPath(m_programFolder, name),
             left(line, 1) == "+", isCopy});
    }
    return files;
}

void Replacement::removeJournal(std::string_view journal) {
    const std::string path = journalPath(journal);
    if (m_calls.remove(path) != 0 && errno != ENOENT)
        throwSystemError(errno, path);
}

void Replacement::syncFoldersOf(const ReplacedFiles& files) {
    std::set<std::string> synced; // a linked file lies in a folder of its own
    for (const ReplacedFile& file : files)
        if (synced.insert(folderOf(file.target)).second)
            openFolderOf(m_calls, file.target).syncFolder();
}

void Replacement::finish(const ReplacedFiles& files) {
    for (const ReplacedFile& file : files) {
        // A new file that is there no longer is in place already.
        if (exists(newPath(file.target)))
            moveInPlace(m_calls, file.target);
    }
    syncFoldersOf(files);
    removeJournal(finishJournal);
    removeScratch(files);
}

void Replacement::undo(const ReplacedFiles& files) {
    for (const auto& [name, target, existed, isCopy] : files) {
        // An old file that is kept no longer has been put back already.
        const std::string kept = oldPath(target);
        const bool undone = existed ? !exists(kept) || m_calls.rename(kept, target) == 0
                                    : m_calls.remove(target) == 0 || errno == ENOENT;
        if (!undone)
            throwSystemError(errno, target);
    }
    syncFoldersOf(files);
    removeJournal(undoJournal);
    removeScratch(files);
}

void Replacement::removeScratch(const ReplacedFiles& files) {
    for (const ReplacedFile& file : files) {
        m_calls.remove(newPath(file.target));
        m_calls.remove(oldPath(file.target));
    }
}

void Replacement::recover() {
    if (exists(journalPath(finishJournal)))
        finish(readJournal(finishJournal));
    if (exists(journalPath(undoJournal)))
        undo(readJournal(undoJournal));
    removeStrays();
}

// Whatever else lies there was being written when the program was stopped.
void Replacement::removeStrays() {
    std::error_code error;
    for (const fs::path& entry : entriesOf(pathOf(m_programFolder), error)) {
        const std::string name = entry.filename().string();
        if (name.starts_with('.') && (name.ends_with(newSuffix) || name.ends_with(oldSuffix)))
            m_calls.remove(entry.string());
    }
}

} // namespace vantrel
