// SPDX-License-Identifier: MIT
// A file of the machine held open, and the steps that durable writing is made of. Every call
// goes through SystemCalls; what fails is thrown as the RuntimeError that the operator sees,
// with the path of the file that he knows.
#pragma once

#include "platform/systemcalls.h"

#include <string>
#include <string_view>

namespace vantrel {

// What the new content and the old file are called while a file is being replaced.
inline constexpr std::string_view newSuffix = ".vantrel-new";
inline constexpr std::string_view oldSuffix = ".vantrel-old";

class DiskFile {
public:
    static constexpr unsigned newMode = 0666; // less the operator's umask

    // named: the file that the operator knows, for the error.
    DiskFile(SystemCalls& calls, const std::string& path, OpenFor purpose, std::string named,
             unsigned mode = newMode);
    // One that is open already; closed when below 0.
    DiskFile(SystemCalls& calls, int file, std::string named);
    DiskFile(DiskFile&& other) noexcept;
    ~DiskFile();

    operator int() const { return m_file; }
    // All of them, also where the system takes a part at a time.
    void write(std::string_view bytes) const;
    void sync() const;
    // The same for a folder.
    void syncFolder() const;
    // For this program until the file is closed; false when another one has it locked.
    [[nodiscard]] bool lock() const;

private:
    SystemCalls& m_calls;
    int m_file;
    std::string m_named;
};

[[noreturn]] void throwSystemError(int error, const std::string& path);
// The command that makes the file the operator's, for one that belongs to another user, as files
// do that a start with sudo has made. Empty for his own.
std::string chownHint(const std::string& path);

// True for any entry of that path, a link that leads nowhere too.
bool exists(const std::string& path);
// The real path behind a name in `folder`: a link's target is rewritten, not the link. A link
// that leads nowhere is refused: the log on a stick that is not plugged in is no new log.
std::string targetPath(const std::string& folder, std::string_view name);
// The same, checked to be no file that the operator has made read-only: a rename would not ask.
// Somebody else's may be replaced, as the system has it, by whoever may write the folder.
std::string replaceablePath(const std::string& folder, std::string_view name);

std::string readFile(SystemCalls& calls, const std::string& path);

// Creates the file, which must not be there; nothing is left of it on failure. It gets the owner,
// group and permissions of `like`, where that exists, as far as the system lets it, and is at no
// time more readable; errors name `named`.
DiskFile createFile(SystemCalls& calls, const std::string& path, const std::string& like,
                    const std::string& named, std::string_view bytes);
// The same at newPath(target); what a crash may have left there goes first.
DiskFile createBeside(SystemCalls& calls, const std::string& target, std::string_view bytes);
// The same, on the disk when this returns. Where the file system can do that, it has no name until
// then, so that a kill leaves nothing.
void writeBeside(SystemCalls& calls, const std::string& target, std::string_view bytes);
// Renames the file that is written beside over its target.
void moveInPlace(SystemCalls& calls, const std::string& target);
DiskFile openFolderOf(SystemCalls& calls, const std::string& path);

// Beside the target, hidden, so that a rename within the folder puts it in place.
std::string newPath(const std::string& target);
std::string oldPath(const std::string& target);
std::string folderOf(const std::string& path);

} // namespace vantrel
