// SPDX-License-Identifier: MIT
#include "logedit/logedit.h"

#include "base/itemreader.h"
#include "log/log.h"
#include "log/qsoline.h"
#include "platform/files.h"

#include <utility>

namespace vantrel {

namespace {

constexpr std::string_view backupSuffix = ".BAK";
constexpr std::string_view fullSuffix = ".FULL";

std::string withSuffix(const std::string& logName, std::string_view suffix) {
    return logName + std::string(suffix);
}

// Only contacts have a call: header and other lines are never found, so never changed.
bool isContactWith(std::string_view line, std::string_view key) {
    return isContact(line) && mid(line, qso::hisCall.first, length(key)) == key;
}

Message logChangedNotice(const std::string& path) {
    return {"THE LOG HAS CHANGED SINCE THE SEARCH", BoxIcon::exclamation,
            path + " is no longer what was read, so nothing was written. SEARCH again, then make "
                   "the change again."};
}

Message noUndoNotice(const std::string& path) {
    return {"THE CHANGE CANNOT BE UNDONE", BoxIcon::exclamation,
            path + " is no longer as the change left it, so nothing was written."};
}

Message droppedNotice(int lines, const std::string& log, const std::string& fullCopy) {
    return {"LINES DROPPED FROM THE LOG: " + std::to_string(lines), BoxIcon::exclamation,
            log + " was cut to the " + std::to_string(LogEdit::lineCapacity) +
                " lines that a change can hold. The whole log as it was before is kept in " +
                fullCopy + "."};
}

} // namespace

std::string tidied(std::string_view typed) {
    return std::string(trim(upper(withoutSeparators(typed))));
}

SearchResult LogEdit::search(std::string_view key) {
    if (length(key) < shortestCall)
        return SearchResult::keyTooShort;
    const std::string& name = m_log.name();
    take(name, m_files.read(name));
    m_found = false;
    return searchFrom(1, key);
}

SearchResult LogEdit::searchNext(std::string_view key) {
    if (length(key) < shortestCall)
        return SearchResult::keyTooShort;
    return searchFrom(m_position + 1, key);
}

SearchResult LogEdit::searchFrom(int position, std::string_view key) {
    for (int index = position; index <= m_lines.size(); ++index) {
        if (!isContactWith(m_lines.at(index), key))
            continue;
        m_position = index;
        m_found = true;
        return SearchResult::found;
    }
    return SearchResult::notFound;
}

ChangeResult LogEdit::replaceLine(const std::string& line) {
    if (!m_found)
        return {};
    const int position = m_position;
    std::vector<std::string> lines = m_lines.entries();
    lines[static_cast<std::size_t>(position - 1)] = line;
    const ChangeResult result = change(lines);
    if (result.made)
        m_position = position;
    return result;
}

ChangeResult LogEdit::removeLine() {
    if (!m_found)
        return {};
    const int position = m_position;
    std::vector<std::string> lines = m_lines.entries();
    lines.erase(lines.begin() + (position - 1));
    const ChangeResult result = change(lines);
    if (result.made) {
        m_position = position - 1;
        m_found = false;
    }
    return result;
}

ChangeResult LogEdit::change(const std::vector<std::string>& lines) {
    if (m_log.name() != m_logName || !isOnDisk(m_logName, m_logBytes))
        return {false, logChangedNotice(m_files.path(m_logName))};
    Change change{m_logName, m_logBytes, joinLines(lines), m_droppedLines};
    // A save that changes nothing must not cost the operator the copy of his last change.
    if (change.after == change.before)
        return {true};
    const ChangeResult result = write(change);
    take(change.logName, change.after);
    m_change = std::move(change);
    return result;
}

// The log and its copy are replaced together: one after the other, a stop between the two
// would leave a copy that is the log itself, and in an undo the only other version lost.
ChangeResult LogEdit::write(const Change& change) {
    std::optional<Message> notice;
    // An undo brings dropped lines back; the redo drops them again.
    if (change.droppedLines > 0 && !change.undone) {
        const std::string full =
            m_files.keepCopy(withSuffix(change.logName, fullSuffix), change.before);
        notice = droppedNotice(change.droppedLines, m_files.path(change.logName), full);
    }
    m_files.rewriteAll({{withSuffix(change.logName, backupSuffix), change.before},
                        {change.logName, change.after}});
    return {true, std::move(notice)};
}

ChangeResult LogEdit::undo() {
    if (!m_change)
        return {};
    const std::string backup = withSuffix(m_change->logName, backupSuffix);
    if (m_log.name() != m_change->logName || !isOnDisk(m_change->logName, m_change->after))
        return {false, noUndoNotice(m_files.path(m_change->logName))};
    if (!isOnDisk(backup, m_change->before))
        return {false, noUndoNotice(m_files.path(backup))};

    Change reversed{m_change->logName, m_change->after, m_change->before, m_change->droppedLines,
                    !m_change->undone};
    const ChangeResult result = write(reversed);
    take(reversed.logName, reversed.after);
    m_found = false;
    m_change = std::move(reversed);
    return result;
}

void LogEdit::take(const std::string& logName, std::string bytes) {
    m_lines.clear();
    m_droppedLines = 0;
    LineReader reader(bytes);
    while (!reader.atEnd()) {
        const std::string_view line = reader.next();
        if (m_lines.full())
            ++m_droppedLines;
        else
            m_lines.append(std::string(line));
    }
    m_logName = logName;
    m_logBytes = std::move(bytes);
    m_position = 0;
}

bool LogEdit::isOnDisk(const std::string& name, std::string_view bytes) const {
    return m_files.readOrEmpty(name) == bytes;
}

} // namespace vantrel
