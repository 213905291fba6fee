// SPDX-License-Identifier: MIT
// Contacts per hour by band: what the score screen's picture shows.
#pragma once

#include "log/bands.h"
#include "log/log.h"

#include <array>
#include <vector>

namespace vantrel {

// One clock hour (UTC) in which contacts were made.
struct PictureHour {
    int hour;                                     // 0 to 23
    bool afterBreak;                              // no contact in the hour before it
    std::array<int, bands.size() + 1> contacts{}; // as `bands`; the last: on none of them
};

// The last 48 hours with contacts, oldest first. Duplicates are left out, like in the score, and
// lines without a readable date and time.
inline constexpr int pictureHours = 48;
std::vector<PictureHour> contactsPerHour(const Contacts& contacts);

} // namespace vantrel
