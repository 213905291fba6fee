// SPDX-License-Identifier: MIT
// The score as printed lines.
#pragma once

#include "output/score/score.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

// The figure as the boxes and the report show it; empty when it was not reached.
std::string figureText(const Score::Figure& figure);

// What the operator is told when the report is on its way to the printer.
inline constexpr std::string_view reportPrinted = "The File has been sent to the Printer!";

// Two empty lines, the log's full path, an empty line, eight lines of label and figure, an
// empty line, the total.
std::vector<std::string> scoreReport(const Score& score, std::string_view logPath);

} // namespace vantrel
