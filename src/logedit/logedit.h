// SPDX-License-Identifier: MIT
// The log as correction, deletion and editor work on it: a table of lines, a search, a rewrite with
// undo.
#pragma once

#include "log/log.h"
#include "platform/platform.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class Files;

enum class SearchResult { keyTooShort, found, notFound };

struct ChangeResult {
    bool made = false;
    std::optional<Message> notice{}; // why nothing was written, or which lines went where
    bool changedLog = made;          // false for a save that changes nothing
};

// A contact of the open log, described by its text and not by its number alone, so that it is found
// in a log that has changed since.
struct ContactPlace {
    std::string text;    // empty: no such contact
    int alikeBefore = 0; // how many contacts before it have the same text
};
// contact: 1 to their number.
ContactPlace placeOf(const Contacts& contacts, int contact);

class LogEdit {
public:
    static constexpr int lineCapacity = 2000; // a rewrite drops the lines beyond

    // Takes only its name from `log`; the page rereads the log after a change.
    LogEdit(Files& files, const Log& log) : m_files(files), m_log(log) {}

    // Reads the log and finds the first contact whose call begins with the key (tidied). A key
    // that is too short leaves everything as it was. Throws as Files::read.
    SearchResult search(std::string_view key);
    // The next such contact of the lines read by the search; when there is none, the one found
    // before stays found.
    SearchResult searchNext(std::string_view key);
    // Reads the log and finds the very contact, as if its call had been searched for.
    SearchResult find(const ContactPlace& place);
    bool isAt(int position) const { return m_found && m_position == position; }
    // Goes to one of matches().
    void goTo(int position) {
        m_position = position;
        m_found = true;
    }
    // Nothing is found any more.
    void forget();

    // Positions, from 1, of the contacts with the call searched for last and of the one found.
    std::vector<int> matches() const;
    // A line as it was read; valid until the next reading or change.
    const std::string& lineAt(int position) const {
        return m_lines[static_cast<std::size_t>(position - 1)];
    }
    // Whether a rewrite would drop lines, and the name, without folder, of the file that would
    // keep them all.
    bool dropsLines() const { return m_droppedLines > 0; }
    std::string fullCopyName() const;

    // True while there is a contact to change: found by a search and not deleted since.
    bool found() const { return m_found; }
    // The line found last.
    const std::string& line() const { return lineAt(m_position); }

    // Both rewrite the whole log with CR LF behind each line and keep the log before as NAME.BAK.
    // Lines beyond the table's 2,000 are dropped, and the whole log before is kept as NAME.FULL
    // too. Contacts added since the search stay. Nothing is written when nothing is found or
    // changed, or (with a notice) when the log on the disk is no longer what the search read.
    // Throw as Files::rewriteAll and Files::keepCopy; the log is then as it was.
    ChangeResult replaceLine(const std::string& line) { return changeLine(&line); }
    // A next search goes on with the line that moved up.
    ChangeResult removeLine() { return changeLine(nullptr); }

    bool canUndo() const { return m_change.has_value(); }
    // Exchanges the log and its NAME.BAK: undoes the last change made here, or redoes it. Refused,
    // with a notice, unless both files are byte for byte as that change left them. The contact
    // that comes back is then the one found. Throws as replaceLine().
    ChangeResult undo();
    // The message label's text after an undo().
    const char* undoText() const {
        return m_change->undone ? " Undone....Click EXIT " : " Redone....Click EXIT ";
    }
    // What the last change, undo or redo did to duplicates; see duplicateNews.
    std::vector<std::string> newsOfDuplicates(bool byNumber) const;

private:
    // A change made here, or its undo; `before` and `after` are whole logs.
    struct Change {
        std::string logName;
        std::string before;
        std::string after;
        int droppedLines;
        bool isRemoval;
        int position; // of the line changed
        bool undone = false;
    };

    int lineCount() const { return static_cast<int>(m_lines.size()); }
    void readLog();
    SearchResult searchFrom(int position, std::string_view key);
    bool takeNewLines();
    ChangeResult changeLine(const std::string* replacement);
    ChangeResult carryOut(Change change);
    void take(const std::string& logName, std::string bytes);

    Files& m_files;
    const Log& m_log;
    std::vector<std::string> m_lines; // the first 2,000; positions count from 1
    std::string m_key;                // of the last successful search
    std::string m_logName;            // the log that the table was read from
    std::string m_logBytes;           // the whole file
    int m_droppedLines = 0;           // lines for which the table has no room
    int m_position = 0;               // of the line found last; 0 before the first line
    bool m_found = false;
    std::optional<Change> m_change;
};

} // namespace vantrel
