// SPDX-License-Identifier: MIT
// What the file screen, the list and the printer show of files.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class Files;

// How the files of the file screen's jobs are now, each shown beside its job.

// "145 MEMBERS" of roster file 1 to 5, or that there is none. Throws as Files::read.
std::string membersText(const Files& files, std::size_t number);
// "TODAY 1423 SKS112126.ADI": when the file was written, UTC, and the last part of its name; with
// the date when that was on another day than `utcToday` (YYYY-MM-DD). Or that there is none.
std::string writtenText(const Files& files, std::string_view name, std::string_view utcToday);
// "SKS112126.CBR 28 QSOS".
std::string logText(std::string_view name, int contacts);

// Index of the last contact among a log's lines; of the last line when there is none.
std::size_t lastContactOf(const std::vector<std::string>& lines);

// How many items of a log are printed at most.
inline constexpr int printedItemsCapacity = 12000;

// The log's name, an empty line, then every comma-delimited item of the log, header lines
// included. Throws RuntimeError 9 at the 12,001st item.
std::vector<std::string> logPrintLines(std::string_view logFileName, std::string_view logBytes);

} // namespace vantrel
