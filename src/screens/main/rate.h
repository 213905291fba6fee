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

// The minutes of the contacts that have one, duplicates too: they were worked.
std::vector<UtcMinute> momentsOf(const Contacts& contacts);

// As of `now`. With a negative offset a contact before midnight UTC keeps the local date: one dated
// up to a day ahead counts a day earlier, and one that lies further ahead does not count.
Rate rateAt(const std::vector<UtcMinute>& moments, UtcMinute now);

// "5 (30/h)", "LAST 3 MIN AGO", "LAST 11 H AGO" (empty without a contact).
std::string rateText(const Rate& rate);
std::string lastText(const Rate& rate);
// "12 contacts in the last hour, most at 0010".
std::string hourText(const Rate& rate);

} // namespace vantrel
