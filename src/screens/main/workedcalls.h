// SPDX-License-Identifier: MIT
// Who was worked before and on which band: the duplicate tests, and the lists shown while a call is
// typed. A band is given by its tag, the first two columns of a contact's kHz.
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

// The event's own test: true when a logged contact has this call, number and band tag. Call and
// number are compared as far as their columns reach.
bool isK3yDupe(const Contacts& contacts, std::string_view call, std::string_view number,
               std::string_view bandTag);

// The contact line with "DUPE" for a marker: how a duplicate of the event is logged.
std::string asDupe(std::string_view contactLine);

struct WorkedCall {
    std::string call; // empty in the last entry when not all fit
    std::string text; // "K1ABC 20 40"; "..." in that entry
    bool dupe;        // worked on the band of the frequency box
};

// The logged calls that begin with what is typed, each with its bands, in the order of the log: as
// many as fit into `columns` characters with two blanks between them. None for fewer than two
// characters.
std::vector<WorkedCall> workedBefore(const Contacts& contacts, std::string_view typed,
                                     std::string_view bandTag, int columns);

struct MemberLine {
    std::string call;
    std::string text; // "K1ABC JOE CT 0123T"
    bool dupe;        // worked on the present band
    std::string gain; // what else he would bring: "NEW S/P/C +15"
};

// The members whose calls are like the one typed, none for fewer than two characters. Throws as
// Roster::partialMatches.
std::vector<MemberLine> memberLines(Roster& roster, const Contacts& contacts,
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
    // The call typed, if it was worked; otherwise the one worked call that begins so. Empty when
    // there are several.
    std::string call;
    std::vector<BandRow> rows;

    bool operator==(const BandTable&) const = default;
};

// A row for each band that can be worked in this contest and for each other one with a contact.
// allBands: 30, 17 and 12 m can be worked, too.
BandTable bandTable(const Contacts& contacts, std::string_view typed, std::string_view bandTag,
                    bool allBands);

} // namespace vantrel
