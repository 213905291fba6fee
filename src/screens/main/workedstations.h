// SPDX-License-Identifier: MIT
// The worked-stations list: one entry per contact, in memory and in "StnsWorked.TXT".
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

class Files;
struct Module1;

inline constexpr std::string_view workedStationsFile = "StnsWorked.TXT";

// The entry of a contact line: his call (10), "| ", his name (10), "|", his number (6),
// " | ", his state (3), " | ", kHz (5), " | ", time (4), " | ", date (10), "|", marker (6, or
// the bare four of "DUPE"). 70 columns, 68 with "DUPE".
std::string workedEntry(std::string_view contactLine);

// Rebuilds the list (entries 1 to 1,000) from module.qsoTable and rewrites the file. Throws
// as Files::rewrite; the list is rebuilt all the same.
void rebuildWorkedStations(Module1& module, Files& files);

// Adds the entry of a contact just logged, the last of module.qsoTable, to the list and
// appends it to the file; does nothing once the log holds more than 1,000. A list that is not
// in step with the table is rebuilt. Throws as Files::appendLine; the list has the entry all
// the same.
void addWorkedStation(Module1& module, Files& files, std::string_view contactLine);

} // namespace vantrel
