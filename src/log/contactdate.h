// SPDX-License-Identifier: MIT
// Dates and times as contacts carry them, read into the calendar and written from it. All UTC.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

using UtcMinute = std::chrono::sys_time<std::chrono::minutes>;

// "2011-06-16" or, after a month end, month first: "07-01-2011". A day past its month's end counts
// on into the next month: 2012-02-30 is 1 March, as the log's own day roll writes it in a leap
// year. Nothing for any other text, and for years before 1930.
std::optional<std::chrono::year_month_day> readDate(std::string_view text);

// "0012" as minutes since midnight, 0 to 1,439. Nothing for any other text.
std::optional<std::chrono::minutes> readTime(std::string_view text);

// The minute of a date and a time, or of a contact line's. Nothing when either is missing.
std::optional<UtcMinute> readMinute(std::string_view date, std::string_view time);
std::optional<UtcMinute> contactMinute(std::string_view contact);

// "2011-06-16".
std::string dateText(const std::chrono::year_month_day& date);
// "0012" of the minutes since midnight.
std::string timeText(std::chrono::minutes time);

} // namespace vantrel
