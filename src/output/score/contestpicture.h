// SPDX-License-Identifier: MIT
// Contacts by band over the time of the contest, for the score screen's picture.
#pragma once

#include "log/bands.h"
#include "log/log.h"

#include <array>
#include <vector>

namespace vantrel {

struct PictureBar {
    int minuteOfDay;                              // when it begins, UTC
    bool afterBreak;                              // no contact in the hour before it
    std::array<int, bands.size() + 1> contacts{}; // as `bands`; the last: on none of them
};

struct ContestPicture {
    int minutesPerBar;
    std::vector<PictureBar> bars; // oldest first
};

// A log that spans less than three hours has a bar for each ten minutes, pauses included. A longer
// one has a bar for each clock hour with contacts, the last 48 of them. Duplicates are left out, as
// in the score, and lines without a readable date and time.
inline constexpr int pictureHours = 48;
ContestPicture contestPicture(const Contacts& contacts);

} // namespace vantrel
