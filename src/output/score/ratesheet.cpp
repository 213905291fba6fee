// SPDX-License-Identifier: MIT
#include "output/score/ratesheet.h"

#include "log/contactdate.h"
#include "log/qsoline.h"

#include <algorithm>
#include <map>
#include <utility>

namespace vantrel {

namespace chrono = std::chrono;

namespace {

constexpr chrono::hours shortLog{3};
constexpr chrono::minutes hour{60};
constexpr chrono::minutes shortStep{10};

UtcMinute stepOf(UtcMinute moment, chrono::minutes step) {
    return moment - moment.time_since_epoch() % step;
}

} // namespace

RateSheet rateSheet(const Contacts& contacts) {
    std::vector<std::pair<UtcMinute, std::size_t>> made; // when, and the index of the band
    for (const std::string_view contact : contacts)
        if (const auto moment = contactMinute(contact); moment && !isDupe(contact))
            made.emplace_back(*moment, bandIndexOf(qso::frequency.of(contact)));
    if (made.empty())
        return {};

    const auto [first, last] = std::ranges::minmax_element(made);
    const bool isShort = last->first - first->first < shortLog;
    const chrono::minutes step = isShort ? shortStep : hour;
    std::map<UtcMinute, decltype(RateSheetBar::contacts)> steps; // under their beginnings
    for (const auto& [moment, band] : made)
        ++steps[stepOf(moment, step)][band];
    if (isShort)
        for (UtcMinute moment = stepOf(first->first, step); moment < last->first; moment += step)
            steps[moment]; // a pause shows as bars of no height
    while (steps.size() > rateSheetHours)
        steps.erase(steps.begin());

    RateSheet sheet{static_cast<int>(step.count()), {}};
    UtcMinute expected = steps.begin()->first;
    for (const auto& [moment, counts] : steps) {
        const auto minuteOfDay = (moment - chrono::floor<chrono::days>(moment)).count();
        sheet.bars.push_back({static_cast<int>(minuteOfDay), moment != expected, counts});
        expected = moment + step;
    }
    return sheet;
}

} // namespace vantrel
