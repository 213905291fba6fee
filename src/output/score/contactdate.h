// SPDX-License-Identifier: MIT
// When a contact was made, as the calendar has it.
#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace vantrel {

// The day of a contact line's date, written year first or, after a month end, month first. A
// day past its month's end counts on into the next month: 2012-02-30 is 1 March, and only
// the log's own day roll writes it. Nothing when it is no date, or one before radio logs.
std::optional<std::chrono::year_month_day> contactDay(std::string_view contact);

// The hour, 0 to 23, and minute of a contact line's time. Nothing when it is no time of day.
struct ContactTime {
    int hour;
    int minute;
};
std::optional<ContactTime> contactTime(std::string_view contact);

// Both as one minute of the calendar. Nothing when either is missing.
using Moment = std::chrono::sys_time<std::chrono::minutes>;
std::optional<Moment> contactMoment(std::string_view contact);

} // namespace vantrel
