// SPDX-License-Identifier: MIT
// The frequency from the box (MHz, as typed or read) to the kHz field of the log line.
#pragma once

#include "log/bands.h"

#include <string>
#include <string_view>

namespace vantrel {

// What the frequency box makes of its text: without blanks around it, a comma as the point;
// 3 digits beginning 18, 19, 3, 5 or 7 become d.dd0 and 4 digits d.ddd; 5 digits beginning 10,
// 14, 18, 21, 24 or 28 become dd.ddd; digits with a point get exactly three decimals; anything
// else stays as typed.
std::string frequencyAsEntered(std::string_view typed);

// Completes an entry shorter than 5 characters: "14" becomes "14.000", "7.04" "7.0400".
std::string completedFrequency(std::string_view entry);

// True for 10, 18 and 24 MHz, which no sprint allows, as MHz or as kHz field.
bool isOutsideSprintBands(std::string_view mhz, std::string_view khzField);

// The 5-column kHz field of a completed frequency: "14.050" gives "14050", "7.040" " 7040".
std::string khzField(std::string_view mhz);

// Why a kHz field cannot be logged: it is not digits with blanks in front, or on no band. Empty
// when it can. typed: what the operator typed, which the text quotes.
std::string khzFault(std::string_view field, std::string_view typed);

// The band tag of a frequency in MHz: " 1", " 3", " 7", else its first two characters.
std::string bandTagOf(std::string_view mhz);

// The next higher or lower of the six sprint bands, counted from the one with that text; beyond the
// last one comes the first. 160 m for any other text.
const Band& bandUp(std::string_view bandText);
const Band& bandDown(std::string_view bandText);

} // namespace vantrel
