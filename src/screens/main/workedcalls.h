// SPDX-License-Identifier: MIT
// Who was worked before and where: the duplicate tests, and what is shown while a call is typed.
// A band is told by its tag, the first two columns of a contact's kHz.
#pragma once

#include "log/log.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class Roster;
struct Member;

// The first logged contact that has the band tag and whose call begins with `call` as it stands:
// K1AB is a duplicate of K1ABC, K1ABCD is not. Empty when there is none.
std::string_view duplicateOf(const Contacts& contacts, std::string_view call,
                             std::string_view bandTag);

// The event's own test: true when a logged contact has the call, the number and the band tag (2).
// What of call and number exceeds their columns does not count.
bool isK3yDupe(const Contacts& contacts, std::string_view call, std::string_view number,
               std::string_view bandTag);

// The contact line as an event's duplicate is logged: its first 101 columns and "DUPE".
std::string asDupe(std::string_view contactLine);

struct WorkedCall {
    std::string call; // empty: those that find no room
    std::string text; // "K1ABC 20 40", or "..." for those
    bool dupe;        // worked on the band of the frequency box
};

// The logged calls that begin with what is typed, each with the bands it was worked on, in the
// order of the log. None for fewer than two characters. At most as many as fit `columns`
// characters with two blanks between them.
std::vector<WorkedCall> workedBefore(const Contacts& contacts, std::string_view typed,
                                     std::string_view bandTag, int columns);

struct MemberLine {
    std::string call;
    std::string text; // "K1ABC JOE CT 0123T"
    bool dupe;        // worked on the present band
    std::string gain; // what else he would bring: "NEW S/P/C +15"
};

// Members like what is typed, from two characters on. Throws as Roster::partialMatches.
std::vector<MemberLine> membersLike(Roster& roster, const Contacts& contacts,
                                    std::string_view typed, std::string_view bandTag,
                                    const std::function<std::string(const Member&)>& gainOf);

enum class CallOnBand { notWorked, worked, dupe };

struct BandRow {
    std::string name;  // "160"
    int contacts;      // without duplicates
    bool present;      // the frequency box is on it
    CallOnBand onBand; // of the call being entered

    bool operator==(const BandRow&) const = default;
};

struct BandTable {
    // The worked call that is typed, otherwise the one that begins so; empty when there are
    // several.
    std::string call;
    std::vector<BandRow> rows;

    bool operator==(const BandTable&) const = default;
};

// A row for each band that can be worked in this contest (allBands: those of the event) or was.
BandTable bandTable(const Contacts& contacts, std::string_view typed, std::string_view bandTag,
                    bool allBands);

} // namespace vantrel
