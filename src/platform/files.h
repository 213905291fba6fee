// SPDX-License-Identifier: MIT
// The program's files: names without regard to case, durable appends and rewrites.
#pragma once

#include "platform/replacement.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class SystemCalls;

// All names are as the rules say them (ISO 8859-1): relative to the program folder, or
// absolute; `\` and `/` both separate. All functions throw RuntimeError with the file's
// path in its detail: 53 no such file, 76 no such folder, 61 disk full, 70 no permission,
// 75 anything else (not a regular file, read-only, a name that two entries match).
class Files {
public:
    // programFolder: a real path of the machine. calls: the system's calls, or a test's.
    Files(std::string programFolder, SystemCalls& calls);

    // The real path that `name` stands for: each part as it stands on the disk, matched
    // exactly or else without regard to case; parts that do not exist as given.
    std::string nativePath(std::string_view name) const;
    // The same as text to show (ISO 8859-1).
    std::string path(std::string_view name) const;
    const std::string& programFolder() const { return m_programFolder; }
    // True when both names lead to one file: other case, a link, a second name of it. Where there
    // is no file yet, when they would.
    bool areSame(std::string_view name, std::string_view other) const;

    // True when the name stands for anything on the disk, file or not: reading it then either
    // works or says why not.
    bool present(std::string_view name) const;
    // The file's whole content.
    std::string read(std::string_view name) const;
    // The file's whole content, empty when there is no such file.
    std::string readOrEmpty(std::string_view name) const;
    // Version stamp: equal stamps mean unchanged content. Empty when that cannot be known: no such
    // file, or one written within the last two seconds.
    std::string stamp(std::string_view name) const;
    // When the file was written last, by UTC; nothing when there is none.
    std::optional<std::chrono::sys_seconds> writtenAt(std::string_view name) const;
    // Appends `line` and CR LF, on the disk when this returns; creates a missing file. A
    // last line without a line end is ended first. On failure the file is as it was. Somebody
    // else's file that may not be written is replaced, where its folder may be.
    void appendLine(std::string_view name, std::string_view line);
    // Replaces the whole file: the old or the new one survives a crash, never a mixture. On
    // failure the file is as it was; only when its folder cannot be synced at the very end it
    // is the new one. It keeps owner, group and permissions as far as the system lets it.
    void rewrite(std::string_view name, std::string_view bytes);
    // Replaces several files of the program folder, all or none, even when the machine stops
    // in the middle: see recover(). between: called again and again, so that a window can live
    // on while the disk works. A second one meanwhile is error 75 and changes nothing.
    void rewriteAll(const std::vector<FileContent>& contents,
                    const std::function<void()>& between = {}) {
        m_replacement.replaceAll(contents, between);
    }
    // The name, or else the name followed by 2, 3, ...: the first that no file has.
    std::string freeName(std::string_view name) const;
    // Writes the bytes to a file of the first free name. Never replaces anything. `name` is that of
    // the file which the bytes are a copy of, and a suffix (".OLD"); the copy is no more readable.
    // Returns the path taken, as text to show.
    std::string keepCopy(std::string_view name, std::string_view bytes);

    // Throws RuntimeError 75 when the last part of the name is too long for a file that is written
    // whole: its content is called differently at first.
    void requireNameFits(std::string_view name) const;

    // Finishes or undoes what a crash left of a rewrite; called once at start, before
    // anything is read. Throws when that fails too; the next call tries again.
    void recover() { m_replacement.recover(); }

private:
    std::string m_programFolder;
    SystemCalls& m_calls;
    Replacement m_replacement;
};

// Each line followed by CR LF. Lines: a container of texts.
template <typename Lines>
std::string joinLines(const Lines& lines) {
    constexpr std::string_view lineEnd = "\r\n";
    std::size_t size = 0;
    for (const std::string_view line : lines)
        size += line.size() + lineEnd.size();
    std::string bytes;
    bytes.reserve(size);
    for (const std::string_view line : lines)
        bytes.append(line).append(lineEnd);
    return bytes;
}

} // namespace vantrel
