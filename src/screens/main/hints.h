// SPDX-License-Identifier: MIT
// The texts of the main page's hint line, which keep the operator from logging something else than
// he thinks.
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

// For a call that is in no roster: which of name, state and number are still to be typed. Empty
// when none is.
std::string missingText(const Entry& boxes, bool hasRoster);

// For a call that is in no roster but has this contact in the log: what Space would fill in.
std::string inLogText(std::string_view contact);

// After a contact is logged: call, kHz and time, and which of name, state and number are blank.
// repeated: the contact that it duplicates without being marked; empty for none.
Hint loggedHint(std::string_view contact, std::string_view repeated);

// After a duplicate was refused: the contact in the log, whose call may be longer than the one
// typed.
Hint refusedHint(std::string_view logged);

// After another page made this line of a contact of the log, or took that line out of it.
Hint changedHint(ContactChange change, std::string_view contact);

// After SEARCH has reset a chosen K3Y tag; empty when none was chosen.
Hint takenBackHint(std::string_view tag);

} // namespace vantrel
