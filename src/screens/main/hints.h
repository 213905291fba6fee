// SPDX-License-Identifier: MIT
// What the main page's hint line says, and what the next contact will end in: texts that keep
// the operator from logging something else than he thinks.
#pragma once

#include "screens/main/qsoentry.h"

#include <string>
#include <string_view>

namespace vantrel {

enum class HintTone { plain, caution, alarm };

struct Hint {
    std::string text{};
    HintTone tone = HintTone::plain;
    std::string filledIn{}; // what a lookup has put into the boxes, to be spoken before the text
};

// After a lookup: whom it did not find and what to type then, or what Enter does next. typed: the
// call box's text that was looked up; hasRoster: whether there is any roster file.
Hint lookupHint(LookupOutcome outcome, std::string_view typed, bool hasRoster);

// "CLUB, IL, 5000S"; the call when a number was looked up; nothing unless somebody was found.
std::string filledIn(LookupOutcome outcome, const Entry& entry);

// What a screen reader says of the hint.
std::string spokenHint(const Hint& hint);

// After a contact is logged: call, kHz and time, and which of name, state and number are blank.
// repeated: the earlier contact with this call on this band when no check was made; empty for
// none.
Hint loggedHint(std::string_view contact, std::string_view repeated);

// After a duplicate was refused: the contact that stands in the log, which may be that of a call
// that only begins with the one typed.
Hint refusedHint(std::string_view logged);

// After SEARCH took a chosen K3Y tag back.
Hint takenBackHint(std::string_view marker);

// "NEXT QSO: K3Y/EU"; empty while it ends in six blanks.
std::string nextMarkerText(std::string_view marker);

} // namespace vantrel
