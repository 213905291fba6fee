// SPDX-License-Identifier: MIT
// The log as printed lines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

// How many items of a log are printed at most.
inline constexpr int printedItemsCapacity = 12000;

// What the operator is told when the job is on its way.
inline constexpr std::string_view logPrinted = "THE FILE HAS BEEN SENT TO THE PRINTER";

// The log's name, an empty line, then every comma-delimited item of the log, header lines
// included. Throws RuntimeError 9 at the 12,001st item.
std::vector<std::string> logPrintLines(std::string_view logFileName, std::string_view logBytes);

} // namespace vantrel
