// SPDX-License-Identifier: MIT
// Several files replaced together, all or none, also when the machine stops in the middle.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class SystemCalls;

// A file of several that are replaced together: its name and its whole new content.
struct FileContent {
    std::string name;
    std::string bytes;
    // Instead of the bytes: the file of this name as it is before, with that one's owner and
    // permissions, or nothing where it is missing. Whatever stands where such a copy goes is
    // replaced, also a link.
    std::string copyOf{};
};

// 1. Every new file is written beside its target, every old one gets a second name; only then
//    the disk is waited for, once for all of them.
// 2. The journal ".vantrel-finish" lists them: from here on a crash is finished by the next
//    start.
// 3. The new files are renamed over the targets; then the journal and the old names go.
// If step 3 fails, the journal becomes ".vantrel-undo" (a rename: also a full disk can do
// that) and the old files are put back; a crash during that is undone to the end by the next
// start. A journal that cannot be removed is a failure: later it would speak of other files.
class Replacement {
public:
    // programFolder: where the journal lies and the files' names begin.
    Replacement(const std::string& programFolder, SystemCalls& calls)
        : m_programFolder(programFolder), m_calls(calls) {}

    // As Files::rewriteAll.
    void replaceAll(const std::vector<FileContent>& contents, const std::function<void()>& between);
    // As Files::recover.
    void recover();

private:
    struct ReplacedFile {
        std::string name;
        std::string target; // its real path
        bool existed;       // before: an undo puts the old file back, or removes the new one
        bool isCopy;
    };
    using ReplacedFiles = std::vector<ReplacedFile>;

    ReplacedFiles filesOf(const std::vector<FileContent>& contents) const;
    void prepare(const ReplacedFiles& files, const std::vector<FileContent>& contents,
                 const std::function<void()>& between);
    void linkOrCopy(const std::string& file, const std::string& second);
    static std::string journalText(const ReplacedFiles& files);
    ReplacedFiles readJournal(std::string_view journal) const;
    void removeJournal(std::string_view journal);
    void syncFoldersOf(const ReplacedFiles& files);
    void finish(const ReplacedFiles& files);
    void undo(const ReplacedFiles& files);
    void removeScratch(const ReplacedFiles& files);
    void removeStrays();
    std::string journalPath(std::string_view journal) const;

    std::string m_programFolder;
    SystemCalls& m_calls;
    bool m_running = false;
};

} // namespace vantrel
