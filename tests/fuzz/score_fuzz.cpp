// SPDX-License-Identifier: MIT
// Any bytes as a log, scored by each contest's rules: figures that agree with each other, or
// the reason why they end.
#include "fuzz/fuzztarget.h"
#include "log/log.h"
#include "log/qsoline.h"
#include "output/score/score.h"
#include "output/score/scorereport.h"
#include "shared/settings.h"

#include <algorithm>

namespace vantrel::test {
namespace {

constexpr std::string_view contests[] = {contestSks, contestSkse, contestWes, contestK3y};

void figuresAgree(const Score& score, const Contacts& contacts) {
    require(score.total.has_value() != score.stoppedBy.has_value(), "a total, or why not");
    require(scoreReport(score, "A.CBR").size() == scoreReport(Score(), "A.CBR").size(),
            "a report has all its lines");
    if (score.stoppedBy)
        return;
    const auto notDupes = std::count_if(contacts.begin(), contacts.end(),
                                        [](std::string_view line) { return !isDupe(line); });
    require(*score.qsos == static_cast<int>(notDupes), "all contacts but duplicates are counted");
    require(*score.total == *score.qsos * *score.multipliers + *score.bonusPoints, "the total");
    for (const Score::Figure& figure : {score.multipliers, score.centurions, score.tribunes,
                                        score.senators, score.bonusStationQsos})
        require(*figure >= 0 && *figure <= static_cast<int>(contacts.size()),
                "no figure is greater than the log");
}

} // namespace

void fuzz(Input& input) {
    OperatingSettings settings;
    settings.contestCode = contests[input.choice(std::size(contests))];
    settings.bonusStation = input.text();
    const Contacts contacts = contactsIn(input.rest());
    figuresAgree(computeScore(contacts, settings), contacts);
}

} // namespace vantrel::test
