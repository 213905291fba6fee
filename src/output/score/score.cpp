// SPDX-License-Identifier: MIT
#include "output/score/score.h"

#include "log/bands.h"
#include "log/qsoline.h"
#include "output/score/regioncodes.h"
#include "shared/settings.h"

#include <array>
#include <string>
#include <unordered_set>

namespace vantrel {

namespace {

constexpr int centurionPoints = 5;
constexpr int tribunePoints = 10;
constexpr int senatorPoints = 15;
constexpr int clubStationPoints = 25;
constexpr int bonusStationPoints = 25;

constexpr std::string_view clubStation = "K9SKC";
constexpr std::string_view noNumber = "NONE";
constexpr char noMember = 'W'; // as the last character of a number

// Different values, views into the log's lines; 400 of them count.
class DistinctValues {
public:
    explicit DistinctValues(std::string_view name) : m_name(name) {}

    void add(std::string_view value) { m_values.insert(value); }
    bool empty() const { return m_values.empty(); }
    // Throws RuntimeError 9 naming the list when there was a 401st different value. Only here, and
    // not in add(): so the figures that come before this one are still reached.
    Integer16 count() const {
        if (m_values.size() > distinctValuesCapacity)
            throw RuntimeError(ErrorCode::subscriptOutOfRange,
                               std::string(m_name) + " holds at most " +
                                   std::to_string(distinctValuesCapacity) + " entries");
        return static_cast<long long>(m_values.size());
    }

private:
    std::string_view m_name;
    std::unordered_set<std::string_view> m_values;
};

std::string_view memberNumber(std::string_view contact) {
    return trim(qso::hisNumber.of(contact));
}

// The last character of a trimmed number; a blank when there is none.
char awardLetter(std::string_view number) {
    return number.empty() ? ' ' : number.back();
}

// The numbers worked by award letter. Duplicates are not left out: a duplicate repeats a
// number that is listed already.
struct AwardNumbers {
    DistinctValues centurions{"the list of Centurions"};
    DistinctValues tribunes{"the list of Tribunes"};
    DistinctValues senators{"the list of Senators"};

    void add(std::string_view number) {
        switch (awardLetter(number)) {
        case 'C':
            return centurions.add(number);
        case 'T':
            return tribunes.add(number);
        case 'S':
            return senators.add(number);
        default:
            return;
        }
    }
    // All three figures or, when one list overflowed, none.
    void enter(Score& score) const {
        const std::array counts{centurions.count(), tribunes.count(), senators.count()};
        score.centurions = counts[0];
        score.tribunes = counts[1];
        score.senators = counts[2];
    }
    int points() const {
        return centurionPoints * centurions.count().value() +
               tribunePoints * tribunes.count().value() + senatorPoints * senators.count().value();
    }
};

class BonusStation {
public:
    explicit BonusStation(const OperatingSettings& settings)
        : m_call(leftAligned(settings.bonusStation, callWidth)), m_isSet(!trim(m_call).empty()) {}

    // No bonus station is ten blanks, which must not match a contact without a call.
    bool worked(std::string_view contact) const {
        return m_isSet && qso::hisCall.of(contact) == m_call;
    }

private:
    std::string m_call;
    bool m_isSet;
};

// Bonus points and total. When they are beyond 16 bits, the error says what the total would be.
void enterTotal(Score& score, int bonusPoints) {
    const int total = score.qsos->value() * score.multipliers->value() + bonusPoints;
    try {
        score.bonusPoints = bonusPoints;
        score.total = total;
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.code(), "THE WHOLE SCORE WOULD BE " + std::to_string(total));
    }
}

// --- All contests but the European sprint ---------------------------------------------------

// A duplicate adds no S/P/C, except as the log's first contact: duplicates are told from new values
// only while looking through the list, and an empty list is not looked through.
bool addsRegion(std::string_view contact, bool noneYet) {
    return noneYet || !isDupe(contact);
}

void scoreSprint(const Contacts& contacts, const OperatingSettings& settings, Score& score) {
    const BonusStation bonusStation(settings);
    DistinctValues regions("the list of S/P/Cs");
    AwardNumbers awards;
    int qsos = 0;
    int clubStationQsos = 0; // on any band
    int bonusStationQsos = 0;
    for (const std::string_view contact : contacts) {
        awards.add(memberNumber(contact));
        if (addsRegion(contact, regions.empty()))
            regions.add(qso::hisState.of(contact));
        if (isDupe(contact))
            continue;
        ++qsos;
        clubStationQsos += qso::hisCall.of(contact).starts_with(clubStation) ? 1 : 0;
        bonusStationQsos += bonusStation.worked(contact) ? 1 : 0;
    }
    score.qsos = qsos;
    score.multipliers = regions.count();
    awards.enter(score);
    score.k9skcQsos = clubStationQsos;
    score.bonusStationQsos = bonusStationQsos;
    enterTotal(score, awards.points() + clubStationPoints * clubStationQsos +
                          bonusStationPoints * bonusStationQsos);
}

// --- The European sprint --------------------------------------------------------------------

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

void scoreEuropeanSprint(const Contacts& contacts, const OperatingSettings& settings,
                         Score& score) {
    const BonusStation bonusStation(settings);
    AwardNumbers awards;
    DistinctValues regularMembers("the list of regular members");
    std::unordered_set<std::string_view> states;
    int qsos = 0;
    int noMembers = 0;
    int bonusStationQsos = 0;
    for (const std::string_view contact : contacts) {
        const std::string_view number = memberNumber(contact);
        awards.add(number);
        if (isRegularMember(number))
            regularMembers.add(number);
        if (awardLetter(number) == noMember || qso::hisNumber.of(contact).starts_with(noNumber))
            ++noMembers;
        if (isDupe(contact))
            continue;
        ++qsos;
        states.insert(qso::hisState.of(contact));
        bonusStationQsos += bonusStation.worked(contact) ? 1 : 0;
    }
    score.qsos = qsos;
    awards.enter(score);
    score.membersPoints = regularMembers.count();
    score.bonusStationQsos = bonusStationQsos;
    DistinctValues countries("the list of DXCC countries");
    for (const std::string_view state : states)
        countries.add(countryOf(state));
    score.multipliers = countries.count();
    // What is shown as regular members worked: Senators are not taken off.
    score.regularMembersWorked = *score.qsos - *score.centurions - *score.tribunes - noMembers;
    enterTotal(score, awards.points() + bonusStationPoints * bonusStationQsos +
                          score.membersPoints->value());
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

Score computeScore(const Contacts& contacts, const OperatingSettings& settings) {
    Score score;
    score.european = settings.contestCode == contestSkse;
    try {
        if (score.european)
            scoreEuropeanSprint(contacts, settings, score);
        else
            scoreSprint(contacts, settings, score);
    } catch (const RuntimeError& error) {
        score.stoppedBy = error;
    }
    return score;
}

Score computeScore(const Log& log, const OperatingSettings& settings) {
    if (!log.tooLong())
        return computeScore(log.contacts(), settings);
    Score score;
    score.european = settings.contestCode == contestSkse;
    score.stoppedBy = log.tooLong();
    return score;
}

} // namespace vantrel
