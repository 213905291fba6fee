// SPDX-License-Identifier: MIT
// The claimed score of a log: one set of rules for the European sprint, one for all others.
#pragma once

#include "base/runtimeerror.h"
#include "log/log.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace vantrel {

struct OperatingSettings;

// How many different values each list of the score holds at most.
inline constexpr std::size_t distinctValuesCapacity = 400;

struct Score {
    // Empty when the computation stopped before it.
    using Figure = std::optional<Integer16>;

    bool european = false;       // by the rules of the European sprint
    Figure qsos;                 // without duplicates
    Figure multipliers;          // S/P/Cs; DXCC countries in the European sprint
    Figure centurions;           // different numbers worked
    Figure tribunes;             // likewise
    Figure senators;             // likewise
    Figure bonusStationQsos;     // without duplicates
    Figure k9skcQsos;            // without duplicates; not in the European sprint
    Figure regularMembersWorked; // European sprint only; below 0 when duplicates abound
    Figure membersPoints;        // European sprint only: a point for each regular member
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

// The score of a log's contact lines by the rules of `settings.contestCode`. Never throws a
// RuntimeError: see Score::stoppedBy.
Score computeScore(const Contacts& contacts, const OperatingSettings& settings);
// The same for the open log. One with more contacts than it could read has no figures: those of
// the first 12,000 would look like the whole.
Score computeScore(const Log& log, const OperatingSettings& settings);

} // namespace vantrel
