// SPDX-License-Identifier: MIT
// How fast contacts come: the last ten minutes, the last hour, the time since the last one.
#pragma once

#include "log/contactdate.h"
#include "log/log.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

struct Rate {
    int lastTenMinutes = 0;
    std::optional<int> minutesSinceLast{}; // nothing without any contact
    std::array<int, 12> perFiveMinutes{};  // of the last hour, oldest first
    std::optional<UtcMinute> bestSince{};  // the first contact of the best five minutes
};

// When each contact was made, duplicates included. Contacts without a readable time are left out.
std::vector<UtcMinute> contactMinutes(const Contacts& contacts);

// The rate at `now`. With a negative GMT offset contacts made before midnight UTC carry the local
// date, which may be a day ahead: one dated up to a day ahead is taken a day earlier, one further
// ahead is left out.
Rate rateAt(const std::vector<UtcMinute>& moments, UtcMinute now);

// "5 (30/h)", "LAST 3 MIN AGO", "LAST 11 H AGO" (empty without a contact).
std::string rateText(const Rate& rate);
std::string lastText(const Rate& rate);
// "12 contacts in the last hour, most at 0010".
std::string hourText(const Rate& rate);

} // namespace vantrel
