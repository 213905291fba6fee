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

// "28 x 20 + 190": how the total comes about; empty when it was not reached.
std::string totalText(const Score& score);

// What the operator is told when the report is on its way to the printer.
inline constexpr std::string_view reportPrinted = "The File has been sent to the Printer!";

// Two empty lines, the log's full path, an empty line, eight lines of label and figure, an
// empty line, the total.
std::vector<std::string> scoreReport(const Score& score, std::string_view logPath);

// The lines as they go on paper: what is longer than a line of the largest print goes on in the
// next, behind a separator of folders where there is one. A long path does not make the whole
// report small.
std::vector<std::string> wrappedForPaper(const std::vector<std::string>& lines);

} // namespace vantrel
