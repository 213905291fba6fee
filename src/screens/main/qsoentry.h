// SPDX-License-Identifier: MIT
// The single steps of SEARCH and LOG, from the entry boxes to the line in the log.
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

// A box that a lookup fills, its column in a contact line, and its name in hints.
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

// Shown when the log file was gone at LOG and the contact started a new one.
inline constexpr std::string_view logStartedAgainText =
    "THE LOG FILE WAS NO LONGER THERE.  A NEW ONE HAS BEEN STARTED WITH THIS QSO";

// True when the number box holds more than one character: SEARCH has nothing left to do and logs.
bool isComplete(const Entry& entry);

// The call without blanks around it, commas and control characters turned into blanks.
std::string callAsEntered(std::string_view box);

// False for an empty call and for one of fewer than three characters that begins with a letter:
// SEARCH then goes back to the call box.
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

// Whether LOG takes the frequency; mhz: completed.
FrequencyCheck checkFrequency(std::string_view mhz, const OperatingSettings& settings);

// The contact line that LOG writes for these boxes, 107 columns or 105 with "DUPE", without a line
// end: every field cut or padded to its columns, commas and control characters turned into blanks.
// The frequency is a completed one that checkFrequency calls good. Throws RuntimeError 5 when a
// setting is wider than its field.
std::string contactLine(const Entry& entry, const OperatingSettings& settings,
                        std::string_view marker, const UtcTime& utc);

// The failure to append, with what the operator can do about it.
RuntimeError notLogged(const RuntimeError& error);

// The message for a log that had vanished or lost contacts; logPath: as text to show.
Message lossNotice(const LogLoss& loss, const std::string& logPath);

} // namespace vantrel
