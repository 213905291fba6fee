// SPDX-License-Identifier: MIT
// The score in words: its figures, how the total comes about, what one contact more would bring,
// the printed report.
#pragma once

#include "output/score/score.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

// The figure as the boxes and the report show it; empty when the score stopped before it.
std::string figureText(const Score::Figure& figure);

// How the total comes about, for the score screen: "28 x 20 + 190"; empty without a total.
std::string totalText(const Score& score);
// The same for the main page: "30 QSOs x 21 S/P/C + 190", "30 QSOs x 9 DXCC + 190"; "SEE SCORE"
// without a total.
std::string scoreSum(const Score& score);

// What the contact line would add to the score: "NEW S/P/C  +5 CENTURION", in brief "NEW S/P/C +5",
// "DUPE  +5 CENTURION" (the number of a duplicate can be new), "DUPE: +0"; empty when it only
// counts as a QSO, or when the score stops.
enum class GainText { full, brief };
std::string scoreGain(const ScoreTally& tally, std::string_view contact, GainText text);

// Two empty lines, the log's full path, an empty line, eight lines of label and figure, an
// empty line, the total.
std::vector<std::string> scoreReport(const Score& score, std::string_view logPath);

// The lines broken for the paper, which takes 72 columns: behind a separator of folders where there
// is one. Otherwise a long path would shrink the print of the whole report.
std::vector<std::string> wrappedForPaper(const std::vector<std::string>& lines);

} // namespace vantrel
