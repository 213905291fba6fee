// SPDX-License-Identifier: MIT
// The claimed score of a log: one set of rules for the European sprint, one for all others. The
// bonus points noted in the log.
#pragma once

#include "base/runtimeerror.h"
#include "log/log.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace vantrel {

struct OperatingSettings;

// How many different values each list of the score holds at most.
inline constexpr int distinctValuesCapacity = 400;

struct Score {
    // Empty when the computation stopped before it.
    using Figure = std::optional<Integer16>;

    bool european = false;   // by the rules of the European sprint
    Figure qsos;             // without duplicates
    Figure multipliers;      // S/P/Cs; DXCC countries in the European sprint
    Figure centurions;       // different numbers worked
    Figure tribunes;         // likewise
    Figure senators;         // likewise
    Figure bonusStationQsos; // without duplicates
    // K9SKC QSOs without duplicates; in the European sprint regular members worked, which is below
    // 0 when duplicates abound.
    Figure contestFigure;
    Figure membersPoints; // European sprint only: a point for each regular member
    Figure bonusPoints;
    Figure total;

    // What stopped it: 9 for a 401st different value in a list or a 12,001st contact, 6 for a
    // figure beyond 32,767. The figures reached before it stand.
    std::optional<RuntimeError> stoppedBy;
};

// What was made on one band.
struct BandScore {
    std::string_view band; // "160M", "OTHER" for those on none
    int qsos;              // without duplicates
    int newMultipliers;    // worked there first
};

// The bands with a contact, from the lowest frequency up. Added up they are the score's QSOs and
// multipliers.
std::vector<BandScore> bandScores(const Contacts& contacts, const OperatingSettings& settings);

// Different values, as views into the log's lines. Keeps one more than the score's list holds,
// which shows that there were too many.
class DistinctValues {
public:
    bool add(std::string_view value); // false for one that is kept already
    bool empty() const { return m_values.empty(); }
    // Throws RuntimeError 9 naming the list when there was a 401st. Only here, and not in add():
    // so the figures that come before this one are still reached.
    Integer16 count(const char* list) const;

private:
    std::unordered_set<std::string_view> m_values;
};

// What a score is made of, by the rules of `settings.contestCode`. The contacts are views that
// must live as long as it and its copies.
class ScoreTally {
public:
    explicit ScoreTally(const OperatingSettings& settings, const Contacts& contacts = {});
    // Has no figures when the log is too long: those of its first 12,000 contacts would look like
    // the whole.
    ScoreTally(const OperatingSettings& settings, const Log& log);

    void add(std::string_view contact);
    // Never throws a RuntimeError: see Score::stoppedBy.
    Score score() const;

private:
    void enterSprint(Score& score) const;
    void enterEuropeanSprint(Score& score) const;
    void enterAwards(Score& score) const;
    void enterTotal(Score& score, int points) const;

    bool m_european;
    std::string m_bonusStation; // ten columns; empty for none
    std::optional<RuntimeError> m_stoppedBy;
    int m_qsos = 0;
    int m_clubStationQsos = 0; // on any band
    int m_bonusStationQsos = 0;
    int m_noMembers = 0;
    DistinctValues m_multipliers; // S/P/Cs, or countries
    DistinctValues m_states;      // those that the countries were made of
    // Numbers. Duplicates are not left out: a duplicate repeats a number that is listed already.
    DistinctValues m_centurions;
    DistinctValues m_tribunes;
    DistinctValues m_senators;
    DistinctValues m_regularMembers;
};

// The open log's tally: it is counted when the log has been read again, not for each key.
class LogTally {
public:
    LogTally(const Log& log, const OperatingSettings& settings)
        : m_log(log), m_settings(settings) {}
    const ScoreTally& tally() const;

private:
    const Log& m_log;
    const OperatingSettings& m_settings; // of the log, as long as that is not opened again
    mutable std::optional<ScoreTally> m_tally;
    mutable int m_reading = 0;
};

inline Score computeScore(const Contacts& contacts, const OperatingSettings& settings) {
    return ScoreTally(settings, contacts).score();
}

// The bonus points noted in the name field after a slash ("JOHN/25") of all contacts, duplicates
// included, once per station: the first contact with a slash decides for its station. The score
// does not hold them. Throws RuntimeError 9 at the 201st station with a slash, 6 when a value or
// the sum is beyond 32,767.
Integer16 countBonusPoints(const Contacts& contacts);

} // namespace vantrel
