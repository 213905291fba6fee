// SPDX-License-Identifier: MIT
#include "log/contactdate.h"

#include "log/qsoline.h"

namespace vantrel {

namespace chrono = std::chrono;

namespace {

constexpr int earliestYear = 1930; // no radio log is older

// The number in `column` of the text; -1 unless every character is a digit.
int digitsIn(std::string_view text, Column column) {
    const std::string_view field = column.of(text);
    return length(field) == column.width && allDigits(field) ? static_cast<int>(numericValue(field))
                                                             : -1;
}

std::optional<chrono::year_month_day> dayOf(int year, int month, int day) {
    if (year < earliestYear || month < 1 || month > 12 || day < 1 || day > 31)
        return {};
    const chrono::year_month_day first(chrono::year(year),
                                       chrono::month(static_cast<unsigned>(month)), chrono::day(1));
    return chrono::sys_days(first) + chrono::days(day - 1);
}

} // namespace

std::optional<chrono::year_month_day> readDate(std::string_view text) {
    if (mid(text, 5, 1) == "-" && mid(text, 8, 1) == "-")
        return dayOf(digitsIn(text, {1, 4}), digitsIn(text, {6, 2}), digitsIn(text, {9, 2}));
    if (mid(text, 3, 1) == "-" && mid(text, 6, 1) == "-")
        return dayOf(digitsIn(text, {7, 4}), digitsIn(text, {1, 2}), digitsIn(text, {4, 2}));
    return {};
}

std::optional<chrono::minutes> readTime(std::string_view text) {
    const int hour = digitsIn(text, {1, 2});
    const int minute = digitsIn(text, {3, 2});
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59)
        return {};
    return chrono::hours(hour) + chrono::minutes(minute);
}

std::optional<UtcMinute> readMinute(std::string_view date, std::string_view time) {
    const auto day = readDate(date);
    const auto minutes = readTime(time);
    if (!day || !minutes)
        return {};
    return chrono::sys_days(*day) + *minutes;
}

std::optional<UtcMinute> contactMinute(std::string_view contact) {
    return readMinute(qso::date.of(contact), qso::time.of(contact));
}

std::string dateText(const chrono::year_month_day& date) {
    return zeroPadded(static_cast<int>(date.year()), 4) + '-' +
           zeroPadded(static_cast<int>(static_cast<unsigned>(date.month())), 2) + '-' +
           zeroPadded(static_cast<int>(static_cast<unsigned>(date.day())), 2);
}

std::string timeText(chrono::minutes time) {
    const auto minutes = static_cast<int>(time.count());
    return zeroPadded(minutes / 60, 2) + zeroPadded(minutes % 60, 2);
}

} // namespace vantrel
