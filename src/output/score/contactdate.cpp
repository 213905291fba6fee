// SPDX-License-Identifier: MIT
#include "output/score/contactdate.h"

#include "log/qsoline.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr int earliestYear = 1930;

// The number in `column` of the text; -1 unless every character is a digit.
int digitsIn(std::string_view text, Column column) {
    const std::string_view field = column.of(text);
    if (length(field) != column.width || !std::all_of(field.begin(), field.end(), isDigit))
        return -1;
    int value = 0;
    for (const char digit : field)
        value = value * 10 + (digit - '0');
    return value;
}

std::optional<std::chrono::year_month_day> dayOf(int year, int month, int day) {
    if (year < earliestYear || month < 1 || month > 12 || day < 1 || day > 31)
        return {};
    const std::chrono::year_month firstMonth(std::chrono::year{year},
                                             std::chrono::month(static_cast<unsigned>(month)));
    if (const auto written = firstMonth / day; written.ok())
        return written;
    return std::chrono::sys_days(firstMonth / 1) + std::chrono::days(day - 1);
}

} // namespace

std::optional<std::chrono::year_month_day> contactDay(std::string_view contact) {
    const std::string_view date = qso::date.of(contact);
    if (mid(date, 5, 1) == "-" && mid(date, 8, 1) == "-")
        return dayOf(digitsIn(date, {1, 4}), digitsIn(date, {6, 2}), digitsIn(date, {9, 2}));
    if (mid(date, 3, 1) == "-" && mid(date, 6, 1) == "-")
        return dayOf(digitsIn(date, {7, 4}), digitsIn(date, {1, 2}), digitsIn(date, {4, 2}));
    return {};
}

std::optional<ContactTime> contactTime(std::string_view contact) {
    const std::string_view time = qso::time.of(contact);
    const ContactTime result{digitsIn(time, {1, 2}), digitsIn(time, {3, 2})};
    const bool valid =
        result.hour >= 0 && result.hour < 24 && result.minute >= 0 && result.minute < 60;
    return valid ? std::optional(result) : std::nullopt;
}

std::optional<Moment> contactMoment(std::string_view contact) {
    const auto day = contactDay(contact);
    const auto time = contactTime(contact);
    if (!day || !time)
        return {};
    return std::chrono::sys_days(*day) + std::chrono::hours(time->hour) +
           std::chrono::minutes(time->minute);
}

} // namespace vantrel
