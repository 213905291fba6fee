// SPDX-License-Identifier: MIT
#include "output/score.h"

#include "output/regioncodes.h"
#include "shared/qsoline.h"
#include "shared/settings.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

namespace vantrel {

namespace {

using Contacts = std::vector<std::string_view>;

constexpr int centurionPoints = 5;
constexpr int tribunePoints = 10;
constexpr int senatorPoints = 15;
constexpr int clubStationPoints = 25;
constexpr int bonusStationPoints = 25;

constexpr std::string_view clubStation = "K9SKC";
constexpr std::string_view noNumber = "NONE";

// Different values of at most 7 characters, at most 400 of them: a small hash table of values
// packed into numbers, since every contact of the log is looked up in one or two of these.
class DistinctValues {
public:
    explicit DistinctValues(std::string_view name) : m_name(name) {}

    // Throws RuntimeError 9 naming the list at the 401st different value.
    void add(std::string_view value) {
        const std::uint64_t key = packed(value);
        std::size_t slot = key * spreading >> slotShift;
        while (m_slots[slot] != 0) {
            if (m_slots[slot] == key)
                return;
            slot = (slot + 1) % m_slots.size();
        }
        if (m_count == distinctValuesCapacity)
            throw RuntimeError(ErrorCode::subscriptOutOfRange,
                               std::string(m_name) + " holds at most " +
                                   std::to_string(distinctValuesCapacity) + " entries");
        m_slots[slot] = key;
        ++m_count;
    }
    bool empty() const { return m_count == 0; }
    Integer16 count() const { return m_count; }

private:
    static constexpr int slotShift = 64 - 10; // 1,024 slots: never more than 40 % in use
    static constexpr std::uint64_t spreading = 0x9E3779B97F4A7C15; // 2^64 by the golden ratio

    // The characters and, so that no value is 0, their count and one in the top byte.
    static std::uint64_t packed(std::string_view value) {
        std::uint64_t key = value.size() + 1;
        for (const char character : value)
            key = key << 8 | static_cast<unsigned char>(character);
        return key;
    }

    std::string_view m_name;
    std::array<std::uint64_t, 1 << (64 - slotShift)> m_slots{}; // 0: free
    int m_count = 0;
};

// The numbers worked by award letter. Duplicates are not left out: a duplicate repeats a
// number that is listed already.
struct AwardNumbers {
    DistinctValues centurions{"the list of Centurions"};
    DistinctValues tribunes{"the list of Tribunes"};
    DistinctValues senators{"the list of Senators"};

    void add(std::string_view number) {
        if (number.ends_with('C'))
            centurions.add(number);
        else if (number.ends_with('T'))
            tribunes.add(number);
        else if (number.ends_with('S'))
            senators.add(number);
    }
    void enter(Score& score) const {
        score.centurions = centurions.count();
        score.tribunes = tribunes.count();
        score.senators = senators.count();
    }
    Integer16 points() const {
        return centurionPoints * centurions.count() + tribunePoints * tribunes.count() +
               senatorPoints * senators.count();
    }
};

std::string_view memberNumber(std::string_view contact) {
    return trim(qso::hisNumber.of(contact));
}

template <typename Condition>
Integer16 countWhere(const Contacts& contacts, Condition condition) {
    return std::count_if(contacts.begin(), contacts.end(), condition);
}

Integer16 countQsos(const Contacts& contacts) {
    return countWhere(contacts, [](std::string_view contact) { return !isDupe(contact); });
}

// No bonus station is ten blanks, which must not match a contact without a call.
Integer16 countBonusStation(const Contacts& contacts, const OperatingSettings& settings) {
    const std::string station = fitLeft(settings.bonusStation, callWidth);
    if (trim(station).empty())
        return 0;
    return countWhere(contacts, [&](std::string_view contact) {
        return qso::hisCall.of(contact) == station && !isDupe(contact);
    });
}

// --- All contests but the European sprint ---------------------------------------------------

// A duplicate adds no S/P/C, except as the log's first contact: duplicates are told from new
// values only while looking through the list, and an empty list is not looked through.
Integer16 countRegions(const Contacts& contacts) {
    DistinctValues regions("the list of S/P/Cs");
    for (const std::string_view contact : contacts)
        if (regions.empty() || !isDupe(contact))
            regions.add(qso::hisState.of(contact));
    return regions.count();
}

// Every contact with the club's station counts, on any band.
Integer16 countClubStation(const Contacts& contacts) {
    return countWhere(contacts, [](std::string_view contact) {
        return qso::hisCall.of(contact).starts_with(clubStation) && !isDupe(contact);
    });
}

void scoreSprint(const Contacts& contacts, const OperatingSettings& settings, Score& score) {
    score.multipliers = countRegions(contacts);
    AwardNumbers awards;
    for (const std::string_view contact : contacts)
        awards.add(memberNumber(contact));
    awards.enter(score);
    score.k9skcQsos = countClubStation(contacts);
    score.bonusStationQsos = countBonusStation(contacts, settings);
    score.bonusPoints = awards.points() + clubStationPoints * *score.k9skcQsos +
                        bonusStationPoints * *score.bonusStationQsos;
}

// --- The European sprint --------------------------------------------------------------------

// Two-letter codes of states and provinces stand for their country. The field is compared as
// it stands in the line, with its padding: a code that is out of place stays what it is.
std::string_view countryOf(std::string_view field) {
    const std::string_view code = trimRight(field);
    if (length(code) != 2 || length(field) != qso::hisState.width)
        return field;
    if (adjoiningStates.holds(code))
        return "USA";
    if (canadianProvinces.holds(code))
        return "CAN";
    if (code == "AK")
        return "ALK";
    return code == "HI" ? "HAW" : field;
}

Integer16 countCountries(const Contacts& contacts) {
    DistinctValues countries("the list of DXCC countries");
    for (const std::string_view contact : contacts)
        if (!isDupe(contact))
            countries.add(countryOf(qso::hisState.of(contact)));
    return countries.count();
}

Integer16 countNoMembers(const Contacts& contacts) {
    return countWhere(contacts, [](std::string_view contact) {
        return memberNumber(contact).ends_with('W') ||
               qso::hisNumber.of(contact).starts_with(noNumber);
    });
}

// Senators are regular members too: a Senator gives his own 15 points and this one. A contact
// without any number counts as one member, as it always has.
Integer16 countRegularMembers(const Contacts& contacts) {
    DistinctValues members("the list of regular members");
    for (const std::string_view contact : contacts) {
        const std::string_view number = memberNumber(contact);
        const bool other = number.ends_with('T') || number.ends_with('C') ||
                           number.ends_with('W') || number == noNumber;
        if (!other)
            members.add(number);
    }
    return members.count();
}

void scoreEuropeanSprint(const Contacts& contacts, const OperatingSettings& settings,
                         Score& score) {
    AwardNumbers awards;
    for (const std::string_view contact : contacts)
        awards.add(memberNumber(contact));
    awards.enter(score);
    const Integer16 noMembers = countNoMembers(contacts);
    const Integer16 regularMembers = countRegularMembers(contacts);
    score.bonusStationQsos = countBonusStation(contacts, settings);
    score.multipliers = countCountries(contacts);
    // What is shown as regular members worked: Senators are not taken off.
    score.regularMembersWorked = *score.qsos - *score.centurions - *score.tribunes - noMembers;
    score.bonusPoints =
        awards.points() + bonusStationPoints * *score.bonusStationQsos + regularMembers;
}

} // namespace

Score computeScore(const std::vector<std::string_view>& contacts,
                   const OperatingSettings& settings) {
    Score score;
    score.european = settings.contestCode == contestSkse;
    try {
        score.qsos = countQsos(contacts);
        if (score.european)
            scoreEuropeanSprint(contacts, settings, score);
        else
            scoreSprint(contacts, settings, score);
        score.total = *score.qsos * *score.multipliers + *score.bonusPoints;
    } catch (const RuntimeError& error) {
        score.stoppedBy = error;
    }
    return score;
}

} // namespace vantrel
