// SPDX-License-Identifier: MIT
// The log as correction, deletion and editor work on it: one table of lines, one search, one
// rewrite with its undo.
#pragma once

#include "base/boundedtable.h"
#include "platform/messages.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class Files;
class Log;

// What a page's message label reads after an undo and after the next one, which redoes.
inline constexpr std::string_view undoneText = " Undone....Click EXIT ";
inline constexpr std::string_view redoneText = " Redone....Click EXIT ";

// A typed entry as these pages use it: commas and control characters become blanks, then upper
// case, then trimmed.
std::string tidied(std::string_view typed);

enum class SearchResult { keyTooShort, found, notFound };

struct ChangeResult {
    bool made = false;
    std::optional<Message> notice{}; // why nothing was written, or which lines went where
};

class LogEdit {
public:
    static constexpr int lineCapacity = 2000; // a rewrite drops the lines beyond, see change
    static constexpr int shortestCall = 3;    // a shorter key finds nothing

    // Of `log` it takes the name of the open log; to read that again is left to the page.
    LogEdit(Files& files, const Log& log) : m_files(files), m_log(log) {}

    // Reads the log and finds the first contact whose call begins with the key (tidied). A key
    // that is too short leaves everything as it was. Throws as Files::read.
    SearchResult search(std::string_view key);
    // The next such contact of the lines read by the search; the one found before stays when
    // there is none.
    SearchResult searchNext(std::string_view key);

    // True while there is a contact to change: found by a search and not deleted since.
    bool found() const { return m_found; }
    // The line found last.
    const std::string& line() const { return m_lines.at(m_position); }

    // Both rewrite the log whole, lines ended CR LF, and keep the log before as NAME.BAK;
    // with lines beyond the table's 2,000 those are dropped, the whole log before being kept
    // as NAME.FULL too. Nothing is written when nothing is found, or (with a notice) when the
    // log on the disk is no longer what the search read. Throw as Files::rewriteAll and
    // Files::keepCopy, the log then being as it was.
    ChangeResult replaceLine(const std::string& line);
    // A next search goes on with the line that moved up.
    ChangeResult removeLine();

    bool canUndo() const { return m_change.has_value(); }
    // Exchanges the log and its NAME.BAK: undoes the last change made here, or redoes it when
    // it was undone. Refused, with a notice, unless both are byte for byte as that left them.
    // Afterwards nothing is found. Throws as the change.
    ChangeResult undo();
    // The message label's text after an undo().
    std::string_view undoText() const { return m_change->undone ? undoneText : redoneText; }

private:
    // A change made here, or its undo; `before` and `after` are whole logs.
    struct Change {
        std::string logName;
        std::string before;
        std::string after;
        int droppedLines;
        bool undone = false;
    };

    SearchResult searchFrom(int position, std::string_view key);
    ChangeResult change(const std::vector<std::string>& lines);
    ChangeResult write(const Change& change);
    void take(const std::string& logName, std::string bytes);
    bool isOnDisk(const std::string& name, std::string_view bytes) const;

    Files& m_files;
    const Log& m_log;
    BoundedTable<std::string> m_lines{"the table of log lines", lineCapacity};
    std::string m_logName;  // the log that the table was read from
    std::string m_logBytes; // all of it
    int m_droppedLines = 0; // how many of its lines the table has no room for
    int m_position = 0;     // line found last; 0 before the first
    bool m_found = false;
    std::optional<Change> m_change;
};

} // namespace vantrel
