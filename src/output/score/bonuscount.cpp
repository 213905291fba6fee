// SPDX-License-Identifier: MIT
#include "output/score/bonuscount.h"

#include "base/boundedtable.h"
#include "log/qsoline.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr int countedStations = 200;
constexpr Column stationKey{qso::hisCall.first, qso::hisCall.width + 1}; // the blank after it too

} // namespace

Integer16 countBonusPoints(const Contacts& contacts) {
    BoundedTable<std::string_view> counted("the list of bonus stations", countedStations);
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
            if (std::find(counted.begin(), counted.end(), station) != counted.end())
                continue;
            counted.append(station);
            total += points;
        }
    }
    return total;
}

} // namespace vantrel
