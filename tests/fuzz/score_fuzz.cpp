// SPDX-License-Identifier: MIT
// Any bytes as a log, scored by each contest's rules: figures that agree with each other, or
// the reason why they end.
#include "fuzz/fuzztarget.h"
#include "output/score.h"
#include "output/scorereport.h"
#include "shared/qsoline.h"
#include "shared/qsotable.h"
#include "shared/settings.h"

#include <algorithm>

namespace vantrel::test {
namespace {

constexpr std::string_view contests[] = {contestSks, contestSkse, contestWes, contestK3y};

void figuresAgree(const Score& score, const std::vector<std::string_view>& contacts) {
    require(score.total.has_value() != score.stoppedBy.has_value(), "a total, or why not");
    require(scoreReport(score, "A.CBR").size() == scoreReport(Score(), "A.CBR").size(),
            "a report has all its lines");
    if (score.stoppedBy)
        return;
    const auto notDupes = static_cast<long long>(std::count_if(
        contacts.begin(), contacts.end(), [](std::string_view line) { return !isDupe(line); }));
    require(*score.qsos == notDupes, "every contact but the duplicates is counted");
    require(*score.total == *score.qsos * *score.multipliers + *score.bonusPoints, "the total");
    for (const Score::Figure& figure : {score.multipliers, score.centurions, score.tribunes,
                                        score.senators, score.bonusStationQsos})
        require(*figure >= 0 && figure->value() <= static_cast<int>(contacts.size()),
                "no figure is greater than the log");
}

} // namespace
} // namespace vantrel::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantrel;
    using namespace vantrel::test;
    Input input(data, size);
    OperatingSettings settings;
    settings.contestCode = contests[input.choice(std::size(contests))];
    settings.bonusStation = fitLeft(input.text(), callWidth);
    QsoTable table;
    table.refill(input.rest());
    figuresAgree(computeScore(table.lines(), settings), table.lines());
    return 0;
}
