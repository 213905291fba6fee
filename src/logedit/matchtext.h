// SPDX-License-Identifier: MIT
// A contact in few words: as a line of the list of matches, and as a name in a sentence.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

inline constexpr int matchColumns = 33;

// "> " for the current one or two blanks, call (10), a blank, date (10), a blank, time (4), a
// blank, band: what tells one contact with a call from the next.
std::string matchText(std::string_view line, bool current);
// The same line of the list without its mark: where one is, is heard by itself.
std::string matchWords(std::string_view matchText);

// "K1ABC 20M 0015"; the kHz where there is no band.
std::string briefly(std::string_view line);

} // namespace vantrel
