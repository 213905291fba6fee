// SPDX-License-Identifier: MIT
#include "log/log.h"

#include "base/fixedtext.h"
#include "base/itemreader.h"
#include "base/runtimeerror.h"
#include "platform/files.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <optional>

namespace vantrel {

namespace {

void addContacts(std::string_view bytes, Contacts& contacts) {
    ItemReader reader(bytes);
    while (!reader.atEnd()) {
        const std::string_view item = reader.next();
        if (!isContact(item))
            continue;
        if (contacts.size() == Log::capacity)
            throw RuntimeError(ErrorCode::subscriptOutOfRange, "the QSO table holds at most " +
                                                                   std::to_string(Log::capacity) +
                                                                   " contacts");
        contacts.push_back(item);
    }
}

// Whether `bytes` are those before, with nothing or whole lines behind them.
bool onlyGrew(std::string_view bytes, std::string_view before) {
    return bytes == before || (before.ends_with('\n') && bytes.starts_with(before));
}

} // namespace

Contacts contactsIn(std::string_view logBytes) {
    Contacts contacts;
    addContacts(logBytes, contacts);
    return contacts;
}

std::string workedLine(std::string_view contact) {
    // Only the number is padded: a shorter line's other fields stand as they are.
    return std::string(qso::hisCall.of(contact)) + "| " + std::string(qso::hisName.of(contact)) +
           '|' + leftAligned(qso::hisNumber.of(contact), qso::hisNumber.width) + " | " +
           std::string(qso::hisState.of(contact)) + " | " +
           std::string(qso::frequency.of(contact)) + " | " + std::string(qso::time.of(contact)) +
           " | " + std::string(qso::date.of(contact)) + '|' + std::string(qso::marker.of(contact));
}

std::string workedWords(std::string_view workedLine) {
    using namespace worked;
    std::string words;
    for (const Column field : {call, name, number, state, frequency, time, marker}) {
        const std::string_view text = trim(field.of(workedLine));
        if (text.empty())
            continue;
        words += words.empty() ? "" : field.first == time.first ? " at " : " ";
        words += text;
    }
    return words;
}

WorkedKind kindOf(std::string_view workedLine) {
    if (markerOf(workedLine) == dupeMarker)
        return WorkedKind::dupe;
    constexpr Column fields[] = {worked::name, worked::number, worked::state};
    const bool missing = std::any_of(std::begin(fields), std::end(fields), [&](Column field) {
        return trim(field.of(workedLine)).empty();
    });
    return missing ? WorkedKind::incomplete : WorkedKind::complete;
}

std::string_view markerOf(std::string_view workedLine) {
    return trim(worked::marker.of(workedLine));
}

void Log::open(const std::string& name) {
    m_name = name;
    m_readings = {};
    m_worked.clear();
    follow(true);
}

void Log::reread() {
    follow(false);
}

// Whoever watches is told before what failed is: he shows what there is.
void Log::follow(bool anew) {
    std::exception_ptr failure;
    try {
        readAndFollow(anew);
    } catch (...) {
        failure = std::current_exception();
    }
    tellWatchers();
    if (failure)
        std::rethrow_exception(failure);
}

void Log::readAndFollow(bool anew) {
    const std::size_t before = contacts().size();
    std::optional<RuntimeError> tooLong;
    bool grew = false;
    try {
        grew = read();
    } catch (const RuntimeError& error) {
        if (error.code() != ErrorCode::subscriptOutOfRange)
            throw;
        tooLong = error;
    }
    if (anew || !grew)
        rewriteWorked();
    else
        addWorked(contacts().size() - before);
    if (tooLong)
        throw RuntimeError(*tooLong);
}

Log::Watch Log::watch(std::function<void()> watcher) {
    std::erase_if(m_watchers, [](const auto& known) { return known.expired(); });
    auto watch = std::make_shared<const std::function<void()>>(std::move(watcher));
    m_watchers.push_back(watch);
    return watch;
}

// A page may close, or another one open, because of what it is told.
void Log::tellWatchers() {
    const auto watchers = m_watchers;
    for (const auto& watcher : watchers)
        if (const Watch watch = watcher.lock())
            (*watch)();
}

// Whether what was known stands there still, first of all. After a contact it does, and only
// the line that is new is taken apart.
bool Log::read() {
    const Reading& last = m_readings[m_turn];
    Reading& next = m_readings[1 - m_turn];
    next.contacts.clear();
    m_files.readInto(m_name, next.bytes);
    m_turn = 1 - m_turn;
    const std::string_view bytes = next.bytes;
    const bool grew = onlyGrew(bytes, last.bytes);
    if (grew) {
        next.contacts.reserve(last.contacts.size() + 1);
        for (const std::string_view contact : last.contacts)
            next.contacts.push_back(bytes.substr(
                static_cast<std::size_t>(contact.data() - last.bytes.data()), contact.size()));
    }
    try {
        addContacts(bytes.substr(grew ? last.bytes.size() : 0), next.contacts);
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.code(), m_files.path(m_name) + ": " + error.detail());
    }
    return grew;
}

// Writes nothing while nothing changed: a full disk must not keep a score from being shown.
void Log::addWorked(std::size_t added) {
    if (added == 0 || (m_workedOnDisk && m_worked.size() == workedCapacity))
        return;
    if (added > 1 || !m_workedOnDisk) {
        rewriteWorked();
        return;
    }
    m_workedOnDisk = false;
    m_worked.push_back(workedLine(contacts().back()));
    m_files.appendLine(workedStationsFile, m_worked.back());
    m_workedOnDisk = true;
}

void Log::rewriteWorked() {
    m_workedOnDisk = false;
    m_worked.clear();
    for (const std::string_view contact : contacts()) {
        if (m_worked.size() == workedCapacity)
            break;
        m_worked.push_back(workedLine(contact));
    }
    m_files.rewrite(workedStationsFile, joinLines(m_worked));
    m_workedOnDisk = true;
}

void Log::append(std::string_view line) {
    m_files.appendLine(m_name, line);
}

} // namespace vantrel
