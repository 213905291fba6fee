// SPDX-License-Identifier: MIT
// What the main page's hint line says, and what the next contact will end in: texts that keep
// the operator from logging something else than he thinks.
#pragma once

#include "shared/screens.h"

#include <string>
#include <string_view>

namespace vantrel {

struct Entry;

// From the calmest up.
enum class HintTone { plain, caution, alarm };

struct Hint {
    std::string text{};
    HintTone tone = HintTone::plain;
    std::string filledIn{}; // what a lookup has put into the boxes, to be spoken before the text

    bool operator==(const Hint&) const = default;
};

// Both side by side, in the tone of the graver one.
Hint joined(const Hint& one, const Hint& other);

// What a screen reader says of the hint.
std::string spokenHint(const Hint& hint);

// What is still to be typed of who is in no roster; empty when it is there.
std::string missingText(const Entry& boxes, bool hasRoster);

// Who is in no roster, but in the log: Space fills in what this contact says of him.
std::string inLogText(std::string_view contact);

// After a contact is logged: call, kHz and time, and which of name, state and number are blank.
// repeated: the earlier contact with this call on this band that it was not marked for; empty for
// none.
Hint loggedHint(std::string_view contact, std::string_view repeated);

// After a duplicate was refused: the contact that stands in the log, which may be that of a call
// that only begins with the one typed.
Hint refusedHint(std::string_view logged);

// After another page made this line of a contact of the log, or took that line out of it.
Hint changedHint(ContactChange change, std::string_view contact);

// While a chosen K3Y tag is taken back by SEARCH; nothing without one.
Hint takenBackHint(std::string_view tag);

} // namespace vantrel
