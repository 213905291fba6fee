// SPDX-License-Identifier: MIT
#include "output/score/bonuscount.h"

#include "base/runtimeerror.h"
#include "log/qsoline.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr int countedStations = 200;
constexpr Column stationKey{qso::hisCall.first, qso::hisCall.width + 1}; // the blank after it too

} // namespace

Integer16 countBonusPoints(const Contacts& contacts) {
    std::vector<std::string_view> counted;
    Integer16 total;
    for (const std::string_view contact : contacts) {
        const std::string_view name = qso::hisName.of(contact);
        const std::string_view station = stationKey.of(contact);
        for (int position = 1; position <= length(name); ++position) {
            if (mid(name, position, 1) != "/")
                continue;
            const Integer16 points = numericValue(trim(midToEnd(name, position + 1)));
            // Once each: what a station has after a second slash, or on another band, adds nothing,
            // even when the first value was no number.
            if (std::ranges::find(counted, station) != counted.end())
                continue;
            counted.push_back(station);
            requireCapacity("the list of bonus stations", counted.size(), countedStations);
            total += points;
        }
    }
    return total;
}

} // namespace vantrel
