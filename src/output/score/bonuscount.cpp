// SPDX-License-Identifier: MIT
#include "output/score/bonuscount.h"

#include "base/boundedtable.h"
#include "log/qsoline.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr int countedStations = 200;
constexpr Column stationKey{qso::hisCall.first, qso::hisCall.width + 1}; // the blank after it too

class BonusCount {
public:
    // Counts a station once: what it has after a second slash, or on another band, adds
    // nothing, even when the first value was no number.
    void add(std::string_view station, Integer16 points) {
        if (std::find(m_counted.begin(), m_counted.end(), station) != m_counted.end())
            return;
        m_counted.append(station);
        m_total += points;
    }
    Integer16 total() const { return m_total; }

private:
    BoundedTable<std::string_view> m_counted{"the list of bonus stations", countedStations};
    Integer16 m_total;
};

} // namespace

Integer16 countBonusPoints(const Contacts& contacts) {
    BonusCount count;
    for (const std::string_view contact : contacts) {
        const std::string_view name = qso::hisName.of(contact);
        for (int position = 1; position <= length(name); ++position)
            if (mid(name, position, 1) == "/")
                count.add(stationKey.of(contact), numericValue(trim(midToEnd(name, position + 1))));
    }
    return count.total();
}

} // namespace vantrel
