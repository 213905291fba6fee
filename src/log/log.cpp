// SPDX-License-Identifier: MIT
#include "log/log.h"

#include "base/itemreader.h"
#include "platform/files.h"

#include <exception>

namespace vantrel {

namespace {

// Whether `bytes` are those before, unchanged or with more lines behind them.
bool hasOnlyNewLines(std::string_view bytes, std::string_view before) {
    return !before.empty() &&
           (bytes == before || (before.ends_with('\n') && bytes.starts_with(before)));
}

} // namespace

Contacts contactsIn(std::string_view logBytes) {
    Contacts contacts;
    for (ItemReader reader(logBytes); !reader.atEnd();)
        if (const std::string_view item = reader.next(); isContact(item))
            contacts.push_back(item);
    return contacts;
}

std::string workedLine(std::string_view contact) {
    // Where a contact line ends early only the number is padded; other fields become shorter.
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
    for (const Column field : {worked::name, worked::number, worked::state})
        if (trim(field.of(workedLine)).empty())
            return WorkedKind::incomplete;
    return WorkedKind::complete;
}

std::string_view markerOf(std::string_view workedLine) {
    return trim(worked::marker.of(workedLine));
}

void Log::open(const std::string& name) {
    m_name = name;
    ++m_reading;
    m_bytes.clear();
    m_contacts.clear();
    m_tooLong.reset();
    m_worked.clear();
    reread();
}

// Watchers run before a failure is thrown, so that pages show what could be read. They run from a
// copy of the list: a watcher may close a page or open one, and so change the list.
void Log::reread() {
    std::exception_ptr failure;
    const auto attempt = [&failure](const auto& step) {
        try {
            step();
        } catch (...) {
            if (!failure)
                failure = std::current_exception();
        }
    };
    attempt([this] { readAndUpdate(); });
    const auto watchers = m_watchers;
    for (const auto& watcher : watchers)
        if (const Watch watch = watcher.lock())
            attempt(*watch);
    if (failure)
        std::rethrow_exception(failure);
}

Log::Watch Log::watch(std::function<void()> watcher) {
    std::erase_if(m_watchers, [](const auto& known) { return known.expired(); });
    auto watch = std::make_shared<const std::function<void()>>(std::move(watcher));
    m_watchers.push_back(watch);
    return watch;
}

void Log::readAndUpdate() {
    std::string bytes = m_files.read(m_name);
    const bool grew = hasOnlyNewLines(bytes, m_bytes);
    const std::size_t before = m_contacts.size();
    parse(std::move(bytes), grew ? m_bytes.size() : 0);
    if (grew)
        addWorked(m_contacts.size() - before);
    else
        rewriteWorked();
    if (m_tooLong)
        throw RuntimeError(*m_tooLong);
}

// known: how many bytes at the beginning are unchanged. Only what follows is split into items, so
// that logging one contact does not parse the thousands before it.
void Log::parse(std::string bytes, std::size_t known) {
    const char* const before = m_bytes.data();
    ++m_reading;
    m_bytes.swap(bytes); // `bytes` keeps the old ones until the contacts point into the new ones
    if (known == 0) {
        m_contacts.clear();
        m_tooLong.reset();
    }
    for (std::string_view& contact : m_contacts)
        contact = {m_bytes.data() + (contact.data() - before), contact.size()};
    const Contacts added = contactsIn(std::string_view(m_bytes).substr(known));
    m_contacts.insert(m_contacts.end(), added.begin(), added.end());
    if (m_contacts.size() <= capacity)
        return;
    m_contacts.resize(capacity);
    m_tooLong.emplace(ErrorCode::subscriptOutOfRange, m_files.path(m_name) +
                                                          ": the QSO table holds at most " +
                                                          std::to_string(capacity) + " contacts");
}

// Writes nothing when nothing changed, so that the score can be seen on a full disk.
void Log::addWorked(std::size_t added) {
    if (added == 0 || (m_workedOnDisk && m_worked.size() == workedCapacity))
        return;
    if (added > 1 || !m_workedOnDisk) {
        rewriteWorked();
        return;
    }
    m_workedOnDisk = false;
    m_worked.push_back(workedLine(m_contacts.back()));
    m_files.appendLine(workedStationsFile, m_worked.back());
    m_workedOnDisk = true;
}

void Log::rewriteWorked() {
    m_workedOnDisk = false;
    m_worked.clear();
    for (const std::string_view contact : m_contacts)
        if (m_worked.size() < workedCapacity)
            m_worked.push_back(workedLine(contact));
    m_files.rewrite(workedStationsFile, joinLines(m_worked));
    m_workedOnDisk = true;
}

std::optional<LogLoss> Log::append(std::string_view line) {
    std::optional<LogLoss> loss;
    const bool vanished = !m_files.present(m_name);
    const std::string bytes = m_files.readOrEmpty(m_name);
    if (vanished || (!bytes.starts_with(m_bytes) && contactsIn(bytes).size() < m_contacts.size()))
        loss = {vanished,
                m_contacts.empty() ? std::string() : m_files.keepCopy(m_name + ".OLD", m_bytes)};
    m_files.appendLine(m_name, line);
    return loss;
}

} // namespace vantrel
