// SPDX-License-Identifier: MIT
// A copy of the log in a folder of the operator's choice.
#pragma once

#include <string_view>

namespace vantrel {

class Files;

// What the operator is told meanwhile and afterwards.
inline constexpr std::string_view backupUnderWay = "    < WORKING >";
inline constexpr std::string_view backupDone = "DONE......CLICK EXIT";

// Copies the whole log, under the last part of its name, into the folder typed (blanks around
// it do not matter), in place of a copy made before. The copy is on the disk when this returns.
// Throws RuntimeError 76 for a folder that is empty or missing, 53 for a missing log, and as
// Files::rewrite; an earlier copy is then as it was. The log is never changed.
void backUpLog(Files& files, std::string_view logFileName, std::string_view folderTyped);

} // namespace vantrel
