// SPDX-License-Identifier: MIT
#include "output/score/score.h"

#include "log/bands.h"
#include "log/qsoline.h"
#include "output/score/regioncodes.h"
#include "shared/settings.h"

#include <algorithm>
#include <array>
#include <string>

namespace vantrel {

namespace {

constexpr int centurionPoints = 5;
constexpr int tribunePoints = 10;
constexpr int senatorPoints = 15;
constexpr int clubStationPoints = 25;
constexpr int bonusStationPoints = 25;

constexpr int notedStations = 200; // with bonus points in the name field
constexpr Column notedStation{qso::hisCall.first, qso::hisCall.width + 1}; // the blank after it too

constexpr std::string_view clubStation = "K9SKC";
constexpr std::string_view noNumber = "NONE";
constexpr char noMember = 'W'; // as the last character of a number

std::string_view memberNumber(std::string_view contact) {
    return trim(qso::hisNumber.of(contact));
}

// The last character of a trimmed number; a blank when there is none.
char awardLetter(std::string_view number) {
    return number.empty() ? ' ' : number.back();
}

// A duplicate adds no S/P/C, except as the log's first contact. Deliberate: the totals of earlier
// contests were counted so.
bool addsRegion(std::string_view contact, bool noneYet) {
    return noneYet || !isDupe(contact);
}

// Two-letter codes of states and provinces stand for their country. The field is compared as
// it stands in the line, with its padding: a code that is out of place stays what it is.
std::string_view countryOf(std::string_view field) {
    const std::string_view code = trimRight(field);
    if (length(field) != qso::hisState.width)
        return field;
    if (isAdjoiningState(code))
        return "USA";
    if (isCanadianProvince(code))
        return "CAN";
    if (code == "AK")
        return "ALK";
    return code == "HI" ? "HAW" : field;
}

// Senators are regular members too: a Senator gives his own 15 points and this one. A contact
// without any number counts as one member: the sprint's manager scores the logs he gets so.
bool isRegularMember(std::string_view number) {
    const char award = awardLetter(number);
    return award != 'T' && award != 'C' && award != noMember && number != noNumber;
}

} // namespace

std::vector<BandScore> bandScores(const Contacts& contacts, const OperatingSettings& settings) {
    const bool european = settings.contestCode == contestSkse;
    std::array<BandScore, bands.size() + 1> all{};
    std::unordered_set<std::string_view> codes;
    for (const std::string_view contact : contacts) {
        BandScore& band = all[bandIndexOf(qso::frequency.of(contact))];
        const std::string_view state = qso::hisState.of(contact);
        band.qsos += isDupe(contact) ? 0 : 1;
        if (addsRegion(contact, codes.empty() && !european))
            band.newMultipliers += codes.insert(european ? countryOf(state) : state).second ? 1 : 0;
    }
    std::vector<BandScore> worked;
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i].band = i < bands.size() ? bands[i].label : "OTHER";
        if (all[i].qsos + all[i].newMultipliers > 0)
            worked.push_back(all[i]);
    }
    return worked;
}

bool DistinctValues::add(std::string_view value) {
    return m_values.size() <= static_cast<std::size_t>(distinctValuesCapacity)
               ? m_values.insert(value).second
               : !m_values.contains(value);
}

Integer16 DistinctValues::count(const char* list) const {
    requireCapacity("the list of " + std::string(list), m_values.size(), distinctValuesCapacity);
    return static_cast<long long>(m_values.size());
}

// No bonus station is ten blanks, which must not match a contact without a call.
ScoreTally::ScoreTally(const OperatingSettings& settings, const Contacts& contacts)
    : m_european(settings.contestCode == contestSkse),
      m_bonusStation(trim(settings.bonusStation).empty()
                         ? std::string()
                         : leftAligned(settings.bonusStation, qso::hisCall.width)) {
    for (const std::string_view contact : contacts)
        add(contact);
}

ScoreTally::ScoreTally(const OperatingSettings& settings, const Log& log)
    : ScoreTally(settings, log.tooLong() ? Contacts() : log.contacts()) {
    m_stoppedBy = log.tooLong();
}

void ScoreTally::add(std::string_view contact) {
    const std::string_view number = memberNumber(contact);
    const char award = awardLetter(number);
    if (award == 'C' || award == 'T' || award == 'S')
        (award == 'C' ? m_centurions : award == 'T' ? m_tribunes : m_senators).add(number);
    if (m_european && isRegularMember(number))
        m_regularMembers.add(number);
    if (award == noMember || qso::hisNumber.of(contact).starts_with(noNumber))
        ++m_noMembers;
    const std::string_view state = qso::hisState.of(contact);
    if (!m_european && addsRegion(contact, m_multipliers.empty()))
        m_multipliers.add(state);
    if (isDupe(contact))
        return;
    ++m_qsos;
    if (m_european && m_states.add(state))
        m_multipliers.add(countryOf(state));
    const std::string_view call = qso::hisCall.of(contact);
    m_clubStationQsos += call.starts_with(clubStation) ? 1 : 0;
    m_bonusStationQsos += !m_bonusStation.empty() && call == m_bonusStation ? 1 : 0;
}

Score ScoreTally::score() const {
    Score score;
    score.european = m_european;
    try {
        if (m_stoppedBy)
            throw RuntimeError(*m_stoppedBy);
        score.qsos = m_qsos;
        if (m_european)
            enterEuropeanSprint(score);
        else
            enterSprint(score);
    } catch (const RuntimeError& error) {
        score.stoppedBy = error;
    }
    return score;
}

void ScoreTally::enterSprint(Score& score) const {
    score.multipliers = m_multipliers.count("S/P/Cs");
    enterAwards(score);
    score.contestFigure = m_clubStationQsos;
    score.bonusStationQsos = m_bonusStationQsos;
    enterTotal(score, clubStationPoints * m_clubStationQsos);
}

void ScoreTally::enterEuropeanSprint(Score& score) const {
    enterAwards(score);
    score.membersPoints = m_regularMembers.count("regular members");
    score.bonusStationQsos = m_bonusStationQsos;
    score.multipliers = m_multipliers.count("DXCC countries");
    // What is shown as regular members worked: Senators are not taken off.
    score.contestFigure = m_qsos - *score.centurions - *score.tribunes - m_noMembers;
    enterTotal(score, score.membersPoints->value());
}

// All three figures or, when one list overflowed, none.
void ScoreTally::enterAwards(Score& score) const {
    const std::array counts{m_centurions.count("Centurions"), m_tribunes.count("Tribunes"),
                            m_senators.count("Senators")};
    score.centurions = counts[0];
    score.tribunes = counts[1];
    score.senators = counts[2];
}

// Bonus points and total. When they are beyond 16 bits, the error says what the total would be.
void ScoreTally::enterTotal(Score& score, int points) const {
    const int bonusPoints = points + centurionPoints * score.centurions->value() +
                            tribunePoints * score.tribunes->value() +
                            senatorPoints * score.senators->value() +
                            bonusStationPoints * m_bonusStationQsos;
    const int total = score.qsos->value() * score.multipliers->value() + bonusPoints;
    try {
        score.bonusPoints = bonusPoints;
        score.total = total;
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.code(), "THE WHOLE SCORE WOULD BE " + std::to_string(total));
    }
}

const ScoreTally& LogTally::tally() const {
    if (!m_tally || m_reading != m_log.reading()) {
        m_tally.emplace(m_settings, m_log);
        m_reading = m_log.reading();
    }
    return *m_tally;
}

Integer16 countBonusPoints(const Contacts& contacts) {
    std::vector<std::string_view> counted;
    Integer16 total;
    for (const std::string_view contact : contacts) {
        const std::string_view name = qso::hisName.of(contact);
        const std::string_view station = notedStation.of(contact);
        for (int position = 1; position <= length(name); ++position) {
            if (mid(name, position, 1) != "/")
                continue;
            const Integer16 points = numericValue(trim(midToEnd(name, position + 1)));
            // Once each: what a station has after a second slash, or on another band, adds nothing,
            // even when the first value was no number.
            if (std::ranges::find(counted, station) != counted.end())
                continue;
            counted.push_back(station);
            requireCapacity("the list of bonus stations", counted.size(), notedStations);
            total += points;
        }
    }
    return total;
}

} // namespace vantrel
