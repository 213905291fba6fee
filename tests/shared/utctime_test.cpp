// SPDX-License-Identifier: MIT
// UTC of a contact from the local clock: hour wrap and the date on the days that matter.
#include "shared/fixedtext.h"
#include "shared/utctime.h"

#include <gtest/gtest.h>
#include <ostream>

namespace vantrel::test {
namespace {

struct UtcRow {
    const char* name;
    LocalTime local;
    const char* offset;
    const char* time;
    const char* date;
};

void PrintTo(const UtcRow& row, std::ostream* out) {
    *out << row.name;
}

class Utc : public ::testing::TestWithParam<UtcRow> {};

TEST_P(Utc, TimeAndDate) {
    const UtcTime utc = utcTime(GetParam().local, GetParam().offset);
    EXPECT_EQ(utc.time, GetParam().time);
    EXPECT_EQ(utc.date, GetParam().date);
    EXPECT_EQ(utc.hourText + utc.minuteText, utc.time);
    EXPECT_EQ(zeroPadded(utc.hour.value(), 2), utc.hourText);
}

const UtcRow utcRows[] = {
    {"NoOffset", {2011, 6, 16, 9, 5, 59}, "0", "0905", "2011-06-16"},
    {"NoOffset_LastMinute", {2011, 6, 16, 23, 59, 59}, "0", "2359", "2011-06-16"},
    {"West_LastHourOfTheSameDay", {2011, 6, 16, 18, 0, 0}, "5", "2300", "2011-06-16"},
    {"West_MidnightIsTomorrow", {2011, 6, 16, 19, 0, 0}, "5", "0000", "2011-06-17"},
    {"West_Evening", {2011, 6, 16, 22, 30, 0}, "5", "0330", "2011-06-17"},
    {"West_FarthestOffset", {2011, 6, 16, 23, 59, 0}, "12", "1159", "2011-06-17"},
    {"Tomorrow_OneDigitDayIsPadded", {2011, 6, 8, 23, 0, 0}, "1", "0000", "2011-06-09"},
    {"Tomorrow_NinthToTenth", {2011, 6, 9, 23, 0, 0}, "1", "0000", "2011-06-10"},

    // East of Greenwich the hour goes back before midnight, the date stays the local one.
    {"East_KeepsTheLocalDate", {2011, 6, 16, 1, 15, 0}, "-2", "2315", "2011-06-16"},
    {"East_KeepsTheLocalDateAtNewYear", {2012, 1, 1, 0, 0, 0}, "-12", "1200", "2012-01-01"},
    {"East_MidnightExactly", {2011, 6, 16, 2, 15, 0}, "-2", "0015", "2011-06-16"},
    {"East_Afternoon", {2011, 6, 16, 14, 7, 0}, "-2", "1207", "2011-06-16"},

    // After a month end the date is month first.
    {"MonthEnd_January", {2011, 1, 31, 23, 0, 0}, "2", "0100", "02-01-2011"},
    {"MonthEnd_February", {2011, 2, 28, 23, 0, 0}, "2", "0100", "03-01-2011"},
    {"MonthEnd_March", {2011, 3, 31, 23, 0, 0}, "2", "0100", "04-01-2011"},
    {"MonthEnd_April", {2011, 4, 30, 23, 0, 0}, "2", "0100", "05-01-2011"},
    {"MonthEnd_May", {2011, 5, 31, 23, 0, 0}, "2", "0100", "06-01-2011"},
    {"MonthEnd_June", {2011, 6, 30, 23, 0, 0}, "2", "0100", "07-01-2011"},
    {"MonthEnd_July", {2011, 7, 31, 23, 0, 0}, "2", "0100", "08-01-2011"},
    {"MonthEnd_August", {2011, 8, 31, 23, 0, 0}, "2", "0100", "09-01-2011"},
    {"MonthEnd_September", {2011, 9, 30, 23, 0, 0}, "2", "0100", "10-01-2011"},
    {"MonthEnd_October", {2011, 10, 31, 23, 0, 0}, "2", "0100", "11-01-2011"},
    {"MonthEnd_November", {2011, 11, 30, 23, 0, 0}, "2", "0100", "12-01-2011"},
    {"MonthEnd_YearEnd", {2011, 12, 31, 23, 0, 0}, "2", "0100", "01-01-2012"},
    {"MonthEnd_NotYetInA31DayMonth", {2011, 1, 30, 23, 0, 0}, "2", "0100", "2011-01-31"},
    {"MonthEnd_NotYetInDecember", {2011, 12, 30, 23, 0, 0}, "2", "0100", "2011-12-31"},
    {"MonthEnd_SameDayIsNoRoll", {2011, 12, 31, 20, 0, 0}, "2", "2200", "2011-12-31"},

    // February always has 28 days.
    {"LeapYear_28thRollsToMarch", {2012, 2, 28, 23, 0, 0}, "2", "0100", "03-01-2012"},
    {"LeapYear_29thRollsToThe30th", {2012, 2, 29, 23, 0, 0}, "2", "0100", "2012-02-30"},
    {"LeapYear_27th", {2012, 2, 27, 23, 0, 0}, "2", "0100", "2012-02-28"},

    // Whatever stands in the saved offset, the reading does not fail.
    {"EmptyOffsetIsNone", {2011, 6, 16, 9, 5, 0}, "", "0905", "2011-06-16"},
    {"OffsetWithSignAndBlanks", {2011, 6, 16, 9, 5, 0}, " +5 ", "1405", "2011-06-16"},
};

INSTANTIATE_TEST_SUITE_P(UtcTime, Utc, ::testing::ValuesIn(utcRows),
                         [](const auto& row) { return row.param.name; });

} // namespace
} // namespace vantrel::test
