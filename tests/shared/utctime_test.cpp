// SPDX-License-Identifier: MIT
// UTC of a contact from the local clock: hour wrap and the date on the days that matter.
#include "base/fixedtext.h"
#include "shared/utctime.h"

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

struct UtcRow {
    const char* rule;
    LocalTime local;
    const char* offset;
    const char* time;
    std::string date;
};

const UtcRow utcRows[] = {
    {"no offset", {2011, 6, 16, 23, 59, 59}, "0", "2359", "2011-06-16"},
    {"west: the last hour of the day", {2011, 6, 16, 18, 5, 0}, "5", "2305", "2011-06-16"},
    {"west: midnight is tomorrow", {2011, 6, 8, 19, 0, 0}, "5", "0000", "2011-06-09"},
    {"west: the farthest", {2011, 6, 16, 23, 59, 0}, "12", "1159", "2011-06-17"},

    // East of Greenwich the hour goes back before midnight, the date stays the local one.
    {"east: before UTC midnight", {2012, 1, 1, 1, 15, 0}, "-2", "2315", "2012-01-01"},
    {"east: UTC midnight", {2011, 6, 16, 2, 15, 0}, "-2", "0015", "2011-06-16"},

    // After a month end the date is month first.
    {"year end", {2011, 12, 31, 23, 0, 0}, "2", "0100", "01-01-2012"},
    {"not yet the year end", {2011, 12, 30, 23, 0, 0}, "2", "0100", "2011-12-31"},
    {"month end, the same day still", {2011, 12, 31, 20, 0, 0}, "2", "2200", "2011-12-31"},

    // February always has 28 days.
    {"leap year: 27th", {2012, 2, 27, 23, 0, 0}, "2", "0100", "2012-02-28"},
    {"leap year: 28th", {2012, 2, 28, 23, 0, 0}, "2", "0100", "03-01-2012"},
    {"leap year: 29th", {2012, 2, 29, 23, 0, 0}, "2", "0100", "2012-02-30"},

    // Whatever stands in the saved offset, the reading does not fail.
    {"empty offset", {2011, 6, 16, 9, 5, 0}, "", "0905", "2011-06-16"},
    {"sign and blanks", {2011, 6, 16, 9, 5, 0}, " +5 ", "1405", "2011-06-16"},
};

void expectRow(const UtcRow& row) {
    const UtcTime utc = utcTime(row.local, row.offset);
    EXPECT_EQ(utc.time, row.time) << row.rule;
    EXPECT_EQ(utc.date, row.date) << row.rule;
}

TEST(UtcTime, TimeAndDate) {
    for (const UtcRow& row : utcRows)
        expectRow(row);
    const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30};
    for (int month = 1; month <= 11; ++month) {
        const std::string date = zeroPadded(month + 1, 2) + "-01-2011";
        expectRow({"month end", {2011, month, lengths[month - 1], 23, 0, 0}, "2", "0100", date});
    }
}

} // namespace
} // namespace vantrel::test
