// SPDX-License-Identifier: MIT
#include "screens/main/contactentry.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "platform/files.h"
#include "rig/rigs.h"
#include "shared/module1.h"
#include "shared/utctime.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace vantrel {

namespace {
constexpr std::string_view startFrequency = "14.050";
} // namespace

ContactEntry::ContactEntry(Module1& shared, Platform& platform, Radio radio)
    : m_shared(shared),
      m_platform(platform),
      m_radio(std::move(radio)),
      m_roster(platform.files),
      m_score(shared.log, shared.settings) {}

ViewContext ContactEntry::context() const {
    return {m_shared, m_score, utcTime(m_platform.clock.now(), m_shared.settings.gmtOffset)};
}

EntryView ContactEntry::view() const {
    return viewOf(m_draft, context());
}

// SEARCH reports a roster that cannot be read: a message at each key would stop the typing.
std::vector<MemberLine> ContactEntry::members() {
    const ViewContext now = context();
    const auto gain = [&](const Member& member) { return gainOf(member, m_draft, now); };
    try {
        return memberLines(m_roster, m_shared.log.contacts(), trim(m_draft.boxes.call),
                           m_draft.bandTag(), gain);
    } catch (const RuntimeError&) {
        return {};
    }
}

void ContactEntry::readRoster() {
    try {
        m_roster.readAll();
    } catch (const RuntimeError&) { // as in members()
    }
}

bool ContactEntry::spaceFillsIn() const {
    return !lastContact(m_draft, m_shared.log.contacts()).empty();
}

void ContactEntry::opened() {
    const bool autoReads = m_draft.autoReads;
    m_draft = Draft();
    m_draft.autoReads = autoReads;
    setFrequency(std::string(startFrequency));
    m_shared.marker = noMarker;
    clear();
    m_cleared.reset();
}

// --- What is typed ---------------------------------------------------------------------------

void ContactEntry::edited(const Entry& boxes) {
    const Entry before = std::exchange(m_draft.boxes, boxes);
    m_draft.boxes.frequency = before.frequency;
    if (m_draft.boxes != before) {
        m_draft.happened.reset();
        if (!m_draft.searched)
            m_draft.takenBack.clear();
    }
    m_draft.boxes.frequency = boxes.frequency;
    for (std::size_t i = 0; i < lookupFields.size(); ++i)
        if (boxes.*lookupFields[i].box != before.*lookupFields[i].box)
            m_draft.lookedUp[i] = false;
    if (boxes.call != before.call)
        callChosen(boxes.call);
}

// What was found for the call before does not hold for this one.
void ContactEntry::callChosen(std::string_view call) {
    m_draft.boxes.call = call;
    m_draft.searched.reset();
    m_draft.happened.reset();
    m_draft.takenBack.clear();
    forgetLookup();
}

// Otherwise he would be logged with the name of the call before.
void ContactEntry::forgetLookup() {
    for (std::size_t i = 0; i < lookupFields.size(); ++i)
        if (std::exchange(m_draft.lookedUp[i], false))
            (m_draft.boxes.*lookupFields[i].box).clear();
}

// --- Frequency and band ----------------------------------------------------------------------

ContactEntry::Step ContactEntry::enterFrequencyBox(Answer& answer) {
    return tune(frequencyAsEntered(m_draft.boxes.frequency), answer);
}

void ContactEntry::setFrequency(const std::string& mhz) {
    m_draft.boxes.frequency = m_draft.mhz = mhz;
    m_draft.bandText = bandTextOf(mhz, m_draft.bandText);
}

// SEARCH looked for a duplicate on one band: on another one it is looked for again.
ContactEntry::Step ContactEntry::tune(const std::string& mhz, Answer& answer) {
    setFrequency(mhz);
    if (!m_draft.searched || m_draft.searched->bandTag == m_draft.bandTag())
        return Step::on;
    return testForDupe(answer);
}

// A duplicate is marked or refused, as the dupe mode says. In the event the operator is also told
// when call, number and band are those of a contact.
ContactEntry::Step ContactEntry::testForDupe(Answer& answer) {
    const OperatingSettings& settings = m_shared.settings;
    const Contacts& contacts = m_shared.log.contacts();
    const std::string& call = m_draft.boxes.call;
    const std::string bandTag = m_draft.bandTag();
    const std::string_view logged = duplicateOf(contacts, call, bandTag);
    answer.dupeScreen = answer.dupeScreen || !logged.empty();
    if (!logged.empty() && !settings.logsDupes()) {
        clear();
        m_draft.happened = {refusedHint(logged), std::string(logged)};
        return Step::ended;
    }
    m_draft.searched->bandTag = bandTag;
    m_draft.searched->marked = !logged.empty();
    if (m_draft.searched->marked)
        m_shared.marker = noMarker;
    if (settings.isK3y() && isK3yDupe(contacts, call, m_draft.boxes.number, bandTag))
        answer.messages.push_back({std::string(duplicateQsoText), BoxIcon::exclamation});
    return Step::on;
}

Answer ContactEntry::frequencyEntered() {
    Answer answer;
    std::ignore = enterFrequencyBox(answer); // nothing follows that a refusal could end
    return answer;
}

Answer ContactEntry::frequencyLeft() {
    Answer answer;
    answer.toCallBox = enterFrequencyBox(answer) == Step::ended;
    return answer;
}

Answer ContactEntry::stepTo(const Band& (*next)(std::string_view bandText)) {
    Answer answer;
    if (enterFrequencyBox(answer) == Step::on)
        std::ignore = tune(std::string(next(m_draft.bandText).defaultFrequency), answer);
    return answer;
}

// --- The radio -------------------------------------------------------------------------------

Answer ContactEntry::radioAsked() {
    Answer answer;
    std::ignore = readRadio(ReadCause::manual, answer);
    return answer;
}

Answer ContactEntry::autoReadToggled() {
    m_draft.autoReads = !m_draft.autoReads;
    m_draft.lastRead = ReadOutcome::noRadio;
    return {};
}

// When the radio does not answer, that is reported and the frequency in the box is used. Ends when
// the boxes are no longer as they were: another event came while the radio was waited for.
ContactEntry::Step ContactEntry::readRadio(ReadCause cause, Answer& answer) {
    const Entry began = m_draft.boxes;
    const ReadResult result = m_draft.autoReads || cause == ReadCause::manual
                                  ? m_radio.read()
                                  : ReadResult{ReadOutcome::noRadio};
    if (result.outcome == ReadOutcome::cancelled) {
        answer.toCallBox = false;
        return Step::ended;
    }
    if (m_draft.boxes != began)
        return Step::ended;
    m_draft.lastRead = result.outcome;
    if (result.outcome == ReadOutcome::read)
        return tune(result.frequency, answer);
    if (result.outcome == ReadOutcome::noReader && cause == ReadCause::manual)
        m_draft.happened =
            Draft::Happened{Hint{rigNeeds(m_shared.settings.rig), HintTone::caution}};
    if (result.outcome != ReadOutcome::failed)
        return Step::on;
    Message message = cause == ReadCause::log
                          ? withFrequencyUsed(result.message, m_draft.boxes.frequency)
                          : result.message;
    if (m_draft.autoReads)
        message.informative += "\nALT+A STOPS THE READING";
    m_radio.tellFailure(message);
    return m_draft.boxes == began ? Step::on : Step::ended;
}

// --- SEARCH ----------------------------------------------------------------------------------

Answer ContactEntry::search() {
    Answer answer;
    if (enterFrequencyBox(answer) == Step::ended)
        return answer;
    if (isComplete(m_draft.boxes) && !m_draft.broughtBack)
        logEntered(answer);
    else
        searchEntered(answer);
    return answer;
}

void ContactEntry::searchEntered(Answer& answer) {
    m_draft.broughtBack = false;
    m_draft.searched.reset();
    m_draft.happened.reset();
    m_draft.takenBack.clear();
    m_draft.boxes.call = callAsEntered(m_draft.boxes.call);
    Draft::Searched found{};
    if (!canLookUp(m_draft.boxes.call) || lookUpCall(found) == Step::ended)
        return;
    if (readRadio(ReadCause::search, answer) == Step::ended)
        return;
    if (trim(m_draft.mhz).empty()) {
        answer.messages.push_back({std::string(frequencyMissingText), BoxIcon::exclamation});
        m_draft.boxes.call.clear();
        forgetLookup();
        return;
    }
    setFrequency(completedFrequency(m_draft.mhz));
    m_draft.takenBack = trim(std::exchange(m_shared.marker, noMarker));
    m_draft.station = noStationLabel;
    m_draft.searched = found;
    if (testForDupe(answer) == Step::on)
        m_draft.searched->nameMissing = trim(m_draft.boxes.name).empty();
}

// Fills the boxes. Ends where a number was typed that nobody has.
ContactEntry::Step ContactEntry::lookUpCall(Draft::Searched& found) {
    const std::string typed = m_draft.boxes.call;
    found.outcome = lookUp(m_draft.boxes, m_roster);
    if (found.outcome == LookupOutcome::found)
        m_draft.lookedUp.fill(true);
    if (found.outcome == LookupOutcome::notFound)
        found.hasRoster = m_roster.hasMembers();
    if (found.outcome != LookupOutcome::nobody)
        return Step::on;
    m_draft.happened = Draft::Happened{{"NO MEMBER " + typed, HintTone::caution}};
    return Step::ended;
}

Answer ContactEntry::filledFromLog() {
    const std::string_view contact = lastContact(m_draft, m_shared.log.contacts());
    for (std::size_t i = 0; i < lookupFields.size(); ++i) {
        const std::string_view text = trim(lookupFields[i].column.of(contact));
        std::string& box = m_draft.boxes.*lookupFields[i].box;
        if (text.empty() || !trim(box).empty())
            continue;
        box = text;
        m_draft.lookedUp[i] = true;
    }
    return {};
}

// --- LOG -------------------------------------------------------------------------------------

Answer ContactEntry::log() {
    Answer answer;
    if (enterFrequencyBox(answer) == Step::on)
        logEntered(answer);
    return answer;
}

void ContactEntry::logEntered(Answer& answer) {
    if (!canBeLogged(m_draft.boxes))
        return;
    const UtcTime utc = context().utc; // before the radio is waited for
    if (readRadio(ReadCause::log, answer) == Step::ended ||
        completeFrequency(answer) == Step::ended)
        return;
    const std::optional<std::string> line = assembledLine(utc, answer);
    if (!line)
        return;
    if (m_shared.settings.isK3y() && isK3yDupe(m_shared.log.contacts(), qso::hisCall.of(*line),
                                               qso::hisNumber.of(*line), qso::bandTag.of(*line))) {
        m_asked = asDupe(*line);
        answer.asksAboutDupe = true;
        answer.toCallBox = false;
        return;
    }
    append(*line, answer);
    m_draft.station = noStationLabel;
}

// Completes the frequency, which stays on its band. Ends where LOG refuses it.
ContactEntry::Step ContactEntry::completeFrequency(Answer& answer) {
    const std::string typed = m_draft.mhz;
    setFrequency(completedFrequency(typed));
    const std::string& mhz = m_draft.mhz;
    const FrequencyCheck check = checkFrequency(mhz, m_shared.settings);
    if (check == FrequencyCheck::good)
        return Step::on;
    if (check == FrequencyCheck::unloggable) {
        answer.messages.push_back({std::string(frequencyMissingText), BoxIcon::exclamation,
                                   khzFault(khzField(mhz), typed)});
        return Step::ended;
    }
    answer.messages.push_back({mhz + std::string(wrongBandText), BoxIcon::critical});
    clear();
    return Step::ended;
}

// Nothing when a setting does not fit the line; the answer then says which.
std::optional<std::string> ContactEntry::assembledLine(const UtcTime& utc, Answer& answer) {
    try {
        return contactLine(m_draft.boxes, m_shared.settings, markerOf(m_draft, m_shared), utc);
    } catch (const RuntimeError& error) {
        if (error.code() != ErrorCode::invalidCall)
            throw;
        answer.messages.push_back(
            {std::string(invalidEntryText), BoxIcon::exclamation, error.detail()});
        clear();
        return std::nullopt;
    }
}

// Once its line is on the disk the contact is logged: whatever fails after that is reported, but
// the boxes are cleared all the same, so that nobody logs it twice.
void ContactEntry::append(const std::string& line, Answer& answer) {
    Log& log = m_shared.log;
    // A duplicate that is not marked: there was no search, or the log has changed since.
    const std::string repeated(
        isDupe(line) ? std::string_view()
                     : duplicateOf(log.contacts(), qso::hisCall.of(line), qso::bandTag.of(line)));
    std::optional<LogLoss> loss;
    try {
        loss = log.append(line);
    } catch (const RuntimeError& error) {
        throw notLogged(error);
    }
    clear();
    m_cleared.reset(); // Ctrl+Z must not bring back what is in the log
    m_draft.takenBack.clear();
    try {
        log.reread();
    } catch (const RuntimeError& error) {
        answer.messages.push_back(
            {error.headline(), BoxIcon::critical, error.detail() + "\nTHE QSO IS IN THE LOG"});
    }
    m_draft.happened = {loggedHint(line, repeated), line};
    if (loss)
        answer.messages.push_back(lossNotice(*loss, m_platform.files.path(log.name())));
}

Answer ContactEntry::logAsDupe() {
    Answer answer;
    append(m_asked, answer);
    return answer;
}

// --- Dropping and bringing back --------------------------------------------------------------

Answer ContactEntry::droppedDupe() {
    clear(" ");
    return {};
}

// The hint about the contact logged, corrected or deleted last survives NO LOG.
Answer ContactEntry::dropped() {
    const auto happened = std::exchange(m_draft.happened, std::nullopt);
    clear();
    if (happened && !happened->contact.empty())
        m_draft.happened = happened;
    m_draft.station = noStationLabel;
    return {};
}

// Keeps what it clears for broughtBack().
void ContactEntry::clear(const std::string& left) {
    if (!trim(m_draft.boxes.call).empty())
        m_cleared = {m_draft.boxes, m_draft.lookedUp};
    m_draft.boxes = {left, left, left, left, usualReport, usualReport, m_draft.boxes.frequency};
    m_draft.lookedUp = {};
    m_draft.broughtBack = false;
    m_draft.searched.reset();
    m_draft.happened.reset();
}

// It may have been refused: Enter searches again before it logs.
Answer ContactEntry::broughtBack() {
    if (!m_cleared)
        return {};
    const std::string frequency = m_draft.boxes.frequency;
    m_draft.boxes = m_cleared->boxes;
    m_draft.boxes.frequency = frequency;
    m_draft.lookedUp = m_cleared->lookedUp;
    m_draft.broughtBack = true;
    m_draft.happened.reset();
    m_cleared.reset();
    return {};
}

// --- What comes from elsewhere ---------------------------------------------------------------

void ContactEntry::tagChosen(std::string_view label) {
    m_draft.station = label;
    m_draft.takenBack.clear();
    if (m_draft.searched)
        m_draft.searched->marked = false;
}

void ContactEntry::logChanged() {
    const auto& happened = m_draft.happened;
    if (!happened || happened->contact.empty())
        return;
    const Contacts& contacts = m_shared.log.contacts();
    const auto found = std::find(contacts.rbegin(), contacts.rend(), happened->contact);
    if ((found != contacts.rend()) != happened->inLog)
        m_draft.happened.reset();
}

// While a contact is being entered, the hint line is about that one.
void ContactEntry::contactChanged(ContactChange change, std::string_view contact) {
    const Entry& boxes = m_draft.boxes;
    if (trim(boxes.call + boxes.name + boxes.state + boxes.number).empty())
        m_draft.happened = {changedHint(change, contact), std::string(contact),
                            change == ContactChange::corrected};
}

} // namespace vantrel
