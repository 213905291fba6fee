// SPDX-License-Identifier: MIT
// UTC time and date of a contact, from the PC's local clock and the operator's offset.
#pragma once

#include "platform/platform.h"

#include <string>
#include <string_view>

namespace vantrel {

struct UtcTime {
    std::string time; // HHMM
    std::string date; // YYYY-MM-DD; MM-01-YYYY on a month-end roll
};

// gmtOffset: whole hours to add to local time, "-12" to "12".
UtcTime utcTime(const LocalTime& local, std::string_view gmtOffset);

} // namespace vantrel
