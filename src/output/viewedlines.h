// SPDX-License-Identifier: MIT
// The lines that the viewers show.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class Files;
struct Module1;

// How many lines of a roster file are viewed at most.
inline constexpr int viewedLinesCapacity = 8000;

// The file's whole lines.
std::vector<std::string> wholeLines(std::string_view bytes);

// The file that the list screen shows now: the log, or its ADIF file.
std::string listedFile(const Module1& module);

// Makes roster file 1 to 5 the current one (module.rosterFile, "\SKSDB1.TXT") and reads its
// items into module.rosterLines. Throws RuntimeError 53 when there is none, 9 for more than
// 8,000 items; no lines are kept then.
void readRosterFile(Module1& module, const Files& files, std::size_t number);

} // namespace vantrel
