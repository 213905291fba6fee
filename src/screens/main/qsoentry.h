// SPDX-License-Identifier: MIT
// One contact from the entry boxes to its line in the log: what SEARCH and LOG do, step by
// step, without a window.
#pragma once

#include "platform/messages.h"
#include "shared/qsoline.h"

#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

class Clock;
class Files;
class Roster;
struct Module1;

// What the entry boxes hold.
struct Entry {
    std::string call{};
    std::string name{};
    std::string state{};
    std::string number{};
    std::string rstSent{};
    std::string rstReceived{};
    std::string frequency{}; // MHz
};

inline constexpr std::string_view frequencyMissingText =
    " A FREQUENCY MUST BE ENTERED INTO THE FREQ BOX ";
inline constexpr std::string_view wrongBandText = " MHz IS NOT A VALID SPRINT FREQUENCY";
inline constexpr std::string_view invalidEntryText = "Invalid Entry - Pleasr try again";
inline constexpr std::string_view duplicateQsoText = " <<<<<< THIS IS A DUPLICATE QSO >>>>>> ";

// Said with whatever fails after the contact is in the log.
inline constexpr std::string_view isLoggedText = "THE QSO IS IN THE LOG";

// The log vanished under the program: the contact is in a new one of that name.
inline constexpr std::string_view logStartedAgainText =
    "THE LOG FILE WAS NO LONGER THERE.  A NEW ONE HAS BEEN STARTED WITH THIS QSO";

// True when SEARCH has nothing left to do and logs: the number box holds more than one
// character.
bool isComplete(const Entry& entry);

// His call as the rules take it from its box: commas and control characters are blanks, none
// of them around it.
std::string callAsEntered(std::string_view box);

// False when a call is too short to look up, a letter and fewer than three characters (or
// nothing): SEARCH then goes back to the call box.
bool canLookUp(std::string_view call);

enum class LookupOutcome {
    found,        // name, state and number are filled in, with their padding
    notFound,     // the boxes are as they were
    callOfNumber, // a member number was typed: the call is now its owner's, padded
    nobody,       // a member number that nobody has: the call is empty, the check ends
};

// Looks the trimmed call, or member number, up in the roster. Throws as Files::read.
LookupOutcome lookUp(Entry& entry, Module1& module, Roster& roster);

// The values a lookup filled in and that the operator has not changed are cleared again:
// they belong to the call they were looked up for.
void forgetLookup(Entry& entry, const Entry& lookedUp);

// False when the call has fewer than three characters: LOG then does nothing.
bool canBeLogged(const Entry& entry);

// The contact's fields from the boxes and the settings, cut and padded to their widths, at the
// UTC time of `clock` (kept in module.utc); the frequency still missing. Commas and control
// characters become blanks. Throws RuntimeError 5 when a setting is wider than its field.
Qso contactFrom(const Entry& entry, Module1& module, const Clock& clock);

enum class FrequencyCheck { good, outsideSprintBands, missing };

// Completes `mhz` in place and puts it into the contact's kHz field.
FrequencyCheck enterFrequency(Qso& contact, std::string& mhz, const Module1& module);

// Reads the log into the table from nothing and rebuilds the worked-stations list and file.
// Throws RuntimeError 9 for a log beyond the table, what fits being there, and as Files.
void openLog(Module1& module, Files& files);

// Appends module.currentLine to the log: on the disk when this returns. Throws as
// Files::appendLine.
void appendContact(const Module1& module, Files& files);

// Reloads the log and adds the contact to the worked-stations list and file. The contact is
// logged whatever fails here (a full table, a file): returned is what to tell the operator
// then, once his boxes are cleared.
std::optional<Message> bringUpToDate(Module1& module, Files& files);

// The count box: "00", "09", "10", "12000".
std::string countText(const Module1& module);

} // namespace vantrel
