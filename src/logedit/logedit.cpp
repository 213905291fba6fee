// SPDX-License-Identifier: MIT
#include "logedit/logedit.h"

#include "base/itemreader.h"
#include "log/logfile.h"
#include "log/qsoline.h"
#include "logedit/contacttext.h"
#include "platform/files.h"

#include <algorithm>
#include <utility>

namespace vantrel {

namespace {

constexpr std::string_view backupSuffix = ".BAK";
constexpr std::string_view fullSuffix = ".FULL";

std::string withSuffix(const std::string& logName, std::string_view suffix) {
    return logName + std::string(suffix);
}

// Header and other lines have no call, so they are never found and never changed.
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

// Whether `bytes` are those before with more lines behind them.
bool hasGrownFrom(std::string_view bytes, std::string_view before) {
    return bytes.starts_with(before) &&
           (before.ends_with('\n') || bytes.substr(before.size()).starts_with("\r\n"));
}

std::vector<std::string> tableOf(std::string_view bytes) {
    std::vector<std::string_view> lines = linesOf(bytes);
    lines.resize(std::min<std::size_t>(lines.size(), LogEdit::lineCapacity));
    return {lines.begin(), lines.end()};
}

} // namespace

ContactPlace placeOf(const Contacts& contacts, int contact) {
    if (contact < 1 || contact > static_cast<int>(contacts.size()))
        return {};
    const auto place = contacts.begin() + (contact - 1);
    return {std::string(*place), static_cast<int>(std::count(contacts.begin(), place, *place))};
}

// --- Finding ---------------------------------------------------------------------------------

SearchResult LogEdit::search(std::string_view key) {
    if (length(key) < shortestCall)
        return SearchResult::keyTooShort;
    readLog();
    return searchFrom(1, key);
}

SearchResult LogEdit::searchNext(std::string_view key) {
    if (length(key) < shortestCall)
        return SearchResult::keyTooShort;
    return searchFrom(m_position + 1, key);
}

SearchResult LogEdit::searchFrom(int position, std::string_view key) {
    for (int index = position; index <= lineCount(); ++index) {
        if (!isContactWith(lineAt(index), key))
            continue;
        goTo(index);
        m_key = key;
        return SearchResult::found;
    }
    return SearchResult::notFound;
}

SearchResult LogEdit::find(const ContactPlace& place) {
    readLog();
    int alike = -1;
    for (int index = 1; index <= lineCount() && alike < place.alikeBefore; ++index) {
        // The text of a contact ends at a comma; its line may go on.
        const std::string_view line = lineAt(index);
        if (!isContact(line) || line.substr(0, line.find(',')) != place.text)
            continue;
        goTo(index);
        ++alike;
    }
    if (!m_found)
        return SearchResult::notFound;
    m_key = trim(qso::hisCall.of(line()));
    return SearchResult::found;
}

void LogEdit::readLog() {
    std::string bytes = m_files.read(m_log.name());
    forget();
    take(m_log.name(), std::move(bytes));
}

void LogEdit::forget() {
    take({}, {});
    m_found = false;
    m_key.clear();
}

std::vector<int> LogEdit::matches() const {
    std::vector<int> positions;
    for (int index = 1; index <= lineCount(); ++index)
        if (isAt(index) || (!m_key.empty() && isContactWith(lineAt(index), m_key)))
            positions.push_back(index);
    return positions;
}

std::string LogEdit::fullCopyName() const {
    return std::string(lastPart(m_files.freeName(withSuffix(m_logName, fullSuffix))));
}

// --- Changing --------------------------------------------------------------------------------

// nullptr removes the line found.
ChangeResult LogEdit::changeLine(const std::string* replacement) {
    if (!m_found)
        return {};
    if (!takeNewLines())
        return {false, logChangedNotice(m_files.path(m_logName))};
    // A save that changes nothing must not cost the operator the copy of his last change.
    if (replacement != nullptr && *replacement == line())
        return {.made = true, .changedLog = false};
    std::vector<std::string> lines = m_lines;
    const auto changed = lines.erase(lines.begin() + (m_position - 1));
    if (replacement != nullptr)
        lines.insert(changed, *replacement);
    return carryOut({m_logName, m_logBytes, joinLines(lines), m_droppedLines,
                     replacement == nullptr, m_position});
}

// Takes in lines that were added since the search. False when the log changed otherwise; also when
// only now a rewrite would drop lines, because the operator has not been warned of that.
bool LogEdit::takeNewLines() {
    if (m_log.name() != m_logName)
        return false;
    std::string bytes = m_files.readOrEmpty(m_logName);
    if (bytes == m_logBytes)
        return true;
    if (!hasGrownFrom(bytes, m_logBytes) || (!dropsLines() && linesOf(bytes).size() > lineCapacity))
        return false;
    const int position = m_position;
    take(m_logName, std::move(bytes));
    m_position = position;
    return true;
}

ChangeResult LogEdit::undo() {
    if (!m_change)
        return {};
    Change reversed = *m_change;
    std::swap(reversed.before, reversed.after);
    reversed.undone = !reversed.undone;
    const bool otherLog = m_log.name() != reversed.logName;
    const std::string backup = withSuffix(reversed.logName, backupSuffix);
    for (const auto& [name, bytes] :
         {std::pair(reversed.logName, reversed.before), std::pair(backup, reversed.after)})
        if (otherLog || m_files.readOrEmpty(name) != bytes)
            return {false, noUndoNotice(m_files.path(name))};
    return carryOut(std::move(reversed));
}

// Writes the log and goes on from there. After a removal nothing is found, and searchNext() goes on
// with the line that moved up. Where the call was changed, the matches are from now on those of the
// new call.
ChangeResult LogEdit::carryOut(Change change) {
    const std::string& log = change.logName;
    std::optional<Message> notice;
    // An undo brings dropped lines back; the redo drops them again.
    if (change.droppedLines > 0 && !change.undone) {
        const std::string full = m_files.keepCopy(withSuffix(log, fullSuffix), change.before);
        notice = droppedNotice(change.droppedLines, m_files.path(log), full);
    }
    // Both together. Otherwise a crash between the two would leave a copy equal to the log, and an
    // undo would lose the other version.
    m_files.rewriteAll({{withSuffix(log, backupSuffix), {}, log}, {log, change.after}});
    take(log, change.after);
    m_found = !change.isRemoval || change.undone;
    m_position = m_found ? change.position : change.position - 1;
    if (m_found && (change.undone || !isContactWith(line(), m_key)))
        m_key = trim(qso::hisCall.of(line()));
    m_change = std::move(change);
    return {true, std::move(notice)};
}

std::vector<std::string> LogEdit::newsOfDuplicates(bool byNumber) const {
    return duplicateNews(tableOf(m_change->before), tableOf(m_change->after), byNumber);
}

void LogEdit::take(const std::string& logName, std::string bytes) {
    m_lines = tableOf(bytes);
    m_droppedLines = static_cast<int>(linesOf(bytes).size()) - lineCount();
    m_logName = logName;
    m_logBytes = std::move(bytes);
    m_position = 0;
}

} // namespace vantrel
