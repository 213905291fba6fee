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

int linesIn(std::string_view bytes) {
    int lines = 0;
    for (LineReader reader(bytes); !reader.atEnd(); reader.next())
        ++lines;
    return lines;
}

std::vector<std::string> tableOf(std::string_view bytes) {
    std::vector<std::string> lines;
    for (LineReader reader(bytes); !reader.atEnd() && lines.size() < LogEdit::lineCapacity;)
        lines.emplace_back(reader.next());
    return lines;
}

} // namespace

std::string tidied(std::string_view typed) {
    return std::string(trim(upper(withoutSeparators(typed))));
}

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

std::vector<Match> LogEdit::matches() const {
    std::vector<Match> matches;
    for (int index = 1; index <= lineCount(); ++index) {
        const bool current = m_found && index == m_position;
        if (current || (!m_key.empty() && isContactWith(lineAt(index), m_key)))
            matches.push_back({index, lineAt(index), current});
    }
    return matches;
}

std::string LogEdit::fullCopyName() const {
    const std::string first = withSuffix(m_logName, fullSuffix);
    std::string name = first;
    for (int number = 2; m_files.present(name); ++number)
        name = first + std::to_string(number);
    return std::string(lastPart(name));
}

// --- Changing --------------------------------------------------------------------------------

ChangeResult LogEdit::replaceLine(const std::string& line) {
    if (!m_found)
        return {};
    if (!followGrowth())
        return {false, logChangedNotice(m_files.path(m_logName))};
    // A save that changes nothing must not cost the operator the copy of his last change.
    if (line == this->line())
        return {.made = true, .changedLog = false};
    std::vector<std::string> lines = m_lines;
    lines[static_cast<std::size_t>(m_position - 1)] = line;
    return change(lines, Kind::replacement);
}

ChangeResult LogEdit::removeLine() {
    if (!m_found)
        return {};
    if (!followGrowth())
        return {false, logChangedNotice(m_files.path(m_logName))};
    std::vector<std::string> lines = m_lines;
    lines.erase(lines.begin() + (m_position - 1));
    return change(lines, Kind::removal);
}

// Takes in lines that were added since the search. False when the log changed otherwise; also when
// only now a rewrite would drop lines, because the operator has not been warned of that.
bool LogEdit::followGrowth() {
    if (m_log.name() != m_logName)
        return false;
    std::string bytes = m_files.readOrEmpty(m_logName);
    if (bytes == m_logBytes)
        return true;
    if (!hasGrownFrom(bytes, m_logBytes) || (!dropsLines() && linesIn(bytes) > lineCapacity))
        return false;
    const int position = m_position;
    take(m_logName, std::move(bytes));
    m_position = position;
    return true;
}

ChangeResult LogEdit::change(const std::vector<std::string>& lines, Kind kind) {
    Change change{m_logName, m_logBytes, joinLines(lines), m_droppedLines, kind, m_position};
    const ChangeResult result = write(change);
    takeAfter(change);
    m_change = std::move(change);
    return result;
}

// The log and its copy are replaced together. Otherwise a crash between the two would leave a copy
// equal to the log, and an undo would lose the other version.
ChangeResult LogEdit::write(const Change& change) {
    std::optional<Message> notice;
    // An undo brings dropped lines back; the redo drops them again.
    if (change.droppedLines > 0 && !change.undone) {
        const std::string full =
            m_files.keepCopy(withSuffix(change.logName, fullSuffix), change.before);
        notice = droppedNotice(change.droppedLines, m_files.path(change.logName), full);
    }
    m_files.rewriteAll({{withSuffix(change.logName, backupSuffix), {}, change.logName},
                        {change.logName, change.after}});
    return {true, std::move(notice)};
}

// After a removal nothing is found, and searchNext() goes on with the line that moved up. Where the
// call was changed, the matches are from now on those of the new call.
void LogEdit::takeAfter(const Change& change) {
    take(change.logName, change.after);
    m_found = change.kind == Kind::replacement || change.undone;
    m_position = m_found ? change.position : change.position - 1;
    if (m_found && (change.undone || !isContactWith(line(), m_key)))
        m_key = trim(qso::hisCall.of(line()));
}

ChangeResult LogEdit::undo() {
    if (!m_change)
        return {};
    const std::string backup = withSuffix(m_change->logName, backupSuffix);
    if (m_log.name() != m_change->logName || !isOnDisk(m_change->logName, m_change->after))
        return {false, noUndoNotice(m_files.path(m_change->logName))};
    if (!isOnDisk(backup, m_change->before))
        return {false, noUndoNotice(m_files.path(backup))};

    Change reversed = *m_change;
    std::swap(reversed.before, reversed.after);
    reversed.undone = !reversed.undone;
    const ChangeResult result = write(reversed);
    takeAfter(reversed);
    m_change = std::move(reversed);
    return result;
}

std::vector<std::string> LogEdit::newsOfDuplicates(bool byNumber) const {
    if (!m_change)
        return {};
    return duplicateNews(tableOf(m_change->before), tableOf(m_change->after), byNumber);
}

void LogEdit::take(const std::string& logName, std::string bytes) {
    m_lines = tableOf(bytes);
    m_droppedLines = linesIn(bytes) - lineCount();
    m_logName = logName;
    m_logBytes = std::move(bytes);
    m_position = 0;
}

bool LogEdit::isOnDisk(const std::string& name, std::string_view bytes) const {
    return m_files.readOrEmpty(name) == bytes;
}

} // namespace vantrel
