// SPDX-License-Identifier: MIT
// Contacts in words on the log pages: as the deletion page shows one, as a line of the list of
// matches, and what a change does to duplicates.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

// What the deletion page shows of a contact, in two labels. His call (10), two blanks, his name
// (10), a blank, his state (3), a blank, his number (6); the report received is left out.
std::string deletionCallText(std::string_view line);
// kHz (5), " MHz ", mode, date and time as in the line (18), a blank, marker (6 or 4).
std::string deletionDetailText(std::string_view line);

inline constexpr int matchColumns = 33;

// A line of the list of matches: "> " for the contact found or two blanks, call (10), a blank, date
// (10), a blank, time (4), a blank, band.
std::string matchText(std::string_view line, bool current);
// A line of that list without its mark: screen readers say by themselves which line is current.
std::string matchWords(std::string_view matchText);

// What a change did to duplicates: a sentence for each contact that
// - now repeats an earlier one on its band without the mark, and would count twice;
// - is no longer a duplicate;
// - still has the mark though it repeats none any more, and would not count at all.
// before, after: the log's lines, one of them changed, removed or put back. byNumber: in the event,
// equal calls with different member numbers are no duplicates.
std::vector<std::string> duplicateNews(const std::vector<std::string>& before,
                                       const std::vector<std::string>& after, bool byNumber);

} // namespace vantrel
