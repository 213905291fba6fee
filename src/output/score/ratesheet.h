// SPDX-License-Identifier: MIT
// Contacts by band over the time of the contest: the rate sheet, which the score screen draws.
#pragma once

#include "log/bands.h"
#include "log/log.h"

#include <array>
#include <vector>

namespace vantrel {

struct RateSheetBar {
    int minuteOfDay;                              // when it begins, UTC
    bool afterBreak;                              // no contact in the hour before it
    std::array<int, bands.size() + 1> contacts{}; // as `bands`; the last: on none of them
};

struct RateSheet {
    int minutesPerBar;
    std::vector<RateSheetBar> bars; // oldest first
};

// A log that spans less than three hours has a bar for each ten minutes, pauses included. A longer
// one has a bar for each clock hour with contacts, the last 48 of them. Duplicates are left out, as
// in the score, and lines without a readable date and time.
inline constexpr int rateSheetHours = 48;
RateSheet rateSheet(const Contacts& contacts);

} // namespace vantrel
