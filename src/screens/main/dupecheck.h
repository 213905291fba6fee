// SPDX-License-Identifier: MIT
// The duplicate tests: by call and band in a sprint; in the K3Y event by call, member number
// and band.
#pragma once

#include "log/log.h"

#include <string>
#include <string_view>

namespace vantrel {

// The first logged contact that has the band tag and whose call begins with `call` as it stands:
// K1AB is a duplicate of K1ABC, K1ABCD is not. Empty when there is none.
std::string_view duplicateOf(const Contacts& contacts, std::string_view call,
                             std::string_view bandTag);

// LOG's test in the event: true when a logged contact has the call, the number and the band tag
// of the assembled contact line.
bool isK3yDupe(const Contacts& contacts, std::string_view contactLine);

// SEARCH's test in the event, before there is a line: the call and the number as the boxes hold
// them (what exceeds their columns does not count), the band tag (2) of the completed frequency.
bool isK3yDupe(const Contacts& contacts, std::string_view call, std::string_view number,
               std::string_view bandTag);

// The contact line as an event's duplicate is logged: its first 101 columns and "DUPE".
std::string asDupe(std::string_view contactLine);

} // namespace vantrel
