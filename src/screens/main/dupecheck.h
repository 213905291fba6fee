// SPDX-License-Identifier: MIT
// The duplicate test by call and band, and what a duplicate does to the contact.
#pragma once

#include <string_view>

namespace vantrel {

class QsoTable;
struct Module1;

// True when a logged contact has the band tag and its call begins with `call` as it stands:
// K1AB is a duplicate of K1ABC, K1ABCD is not.
bool isDuplicate(const QsoTable& table, std::string_view call, std::string_view bandTag);

// Ends the check: sets the marker to six blanks, or to "DUPE" when the dupe flag is set and
// duplicates are logged; clears the flag. False when the contact must not be logged.
bool settleDupe(Module1& module);

// After a contact is logged or dropped: a "DUPE" marker goes back to six blanks, a K3Y tag
// stays.
void resetDupeMarker(Module1& module);

} // namespace vantrel
