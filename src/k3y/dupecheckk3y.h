// SPDX-License-Identifier: MIT
// Duplicates in the K3Y event: same call, same member number, same band; and logging one
// that the operator wants in the log all the same.
#pragma once

#include <string_view>

namespace vantrel {

class Files;
class QsoTable;
struct Module1;

// LOG's test: true when a logged contact has the call, the number and the band tag of the
// assembled contact line.
bool isK3yDupe(const QsoTable& table, std::string_view contactLine);

// SEARCH's test, before there is a line: the call and the number as the boxes hold them
// (what exceeds their columns does not count), the band tag (2) of the completed frequency.
bool isK3yDupe(const QsoTable& table, std::string_view call, std::string_view number,
               std::string_view bandTag);

// Logs module.currentLine as a duplicate: its first 101 columns and "DUPE", on the disk when
// this returns. Table and list are then brought up to date as after any contact. Throws as
// Files::appendLine.
void logTheDupe(Module1& module, Files& files);

} // namespace vantrel
