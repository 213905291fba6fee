// SPDX-License-Identifier: MIT
// One contact from the entry boxes to its line in the log: what SEARCH and LOG do, step by
// step, without a window.
#pragma once

#include "base/runtimeerror.h"
#include "log/qsoline.h"
#include "platform/platform.h"

#include <array>
#include <string>
#include <string_view>

namespace vantrel {

class Roster;
struct LogLoss;
struct OperatingSettings;
struct UtcTime;

// What the entry boxes hold.
struct Entry {
    std::string call{};
    std::string name{};
    std::string state{};
    std::string number{};
    std::string rstSent{};
    std::string rstReceived{};
    std::string frequency{}; // MHz

    bool operator==(const Entry&) const = default;
};

// A box that a lookup fills: where a contact line holds the same, and what it is called.
struct LookupField {
    std::string Entry::*box;
    Column column;
    const char* name;
};
inline constexpr std::array<LookupField, 3> lookupFields{
    {{&Entry::name, qso::hisName, "NAME"},
     {&Entry::state, qso::hisState, "STATE"},
     {&Entry::number, qso::hisNumber, "SKCC#"}}};

// What both report boxes hold until another report is chosen.
inline constexpr const char* usualReport = "599";

inline constexpr std::string_view frequencyMissingText =
    " A FREQUENCY MUST BE ENTERED INTO THE FREQ BOX ";
inline constexpr std::string_view wrongBandText = " MHz IS NOT A VALID SPRINT FREQUENCY";
inline constexpr std::string_view invalidEntryText = "Invalid Entry - Pleasr try again";
inline constexpr std::string_view duplicateQsoText = " <<<<<< THIS IS A DUPLICATE QSO >>>>>> ";

// The log vanished under the program, so the contact is in a new one of that name.
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
LookupOutcome lookUp(Entry& entry, Roster& roster);

// False when the call has fewer than three characters: LOG then does nothing.
bool canBeLogged(const Entry& entry);

enum class FrequencyCheck { good, outsideSprintBands, unloggable };

// Whether LOG takes a frequency: completed, in MHz.
FrequencyCheck checkFrequency(std::string_view mhz, const OperatingSettings& settings);

// The line that LOG makes of the boxes, whose frequency is completed and good: every field cut or
// padded to its columns, commas and control characters as blanks. Throws RuntimeError 5 when a
// setting is wider than its field.
std::string contactLine(const Entry& entry, const OperatingSettings& settings,
                        std::string_view marker, const UtcTime& utc);

// A failure at LOG with what is to be done about it.
RuntimeError notLogged(const RuntimeError& error);

// What to tell the operator when something fails although the contact is in the log (a full
// table, a file), once his boxes are cleared.
Message failureOnceLogged(const RuntimeError& error);

// What to tell the operator of a log that had changed so; logPath: as text to show.
Message lossNotice(const LogLoss& loss, const std::string& logPath);

} // namespace vantrel
