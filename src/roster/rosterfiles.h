// SPDX-License-Identifier: MIT
// The five roster files: the columns of a member's record, which file holds it, counting, viewing
// and sorting.
#pragma once

#include "log/qsoline.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class Files;

// Columns of a member record, without separators. Nothing behind column 33 is ever looked at.
namespace member {
inline constexpr Column call{1, 10};
inline constexpr Column number{11, 10}; // with its award letter
inline constexpr Column name{21, 10};
inline constexpr Column state{31, 3}; // state, province or country
inline constexpr int width = state.last();
} // namespace member

// The five files, in the order in which a number is looked for.
inline constexpr std::array<std::string_view, 5> rosterFiles{
    "SKSDB1.TXT", "SKSDB2.TXT", "SKSDB3.TXT", "SKSDB4.TXT", "SKSDB5.TXT"};

// How many lines each of them has room for.
inline constexpr std::array<int, rosterFiles.size()> rosterCapacities{5000, 10000, 5000, 7000,
                                                                      5000};

// Index into rosterFiles of the file that holds this call: calls beginning with A, K, N and W
// have files of their own, every other text (lower case, the empty text) goes to the last.
std::size_t rosterFileOf(std::string_view call);

// The number with zeros in front until its digits are four: "12C" becomes "0012C". Award
// letters are C and T only; a number ending in S is padded as if the S were a digit ("012S").
// Five digits and more stay as they are, and so does a number without any.
std::string normalisedNumber(std::string_view number);

// A record of 33 columns from a member list's fields as they stand there: all upper case; the
// call without its leading blanks; name and state are cut before they are trimmed, so a name
// loses as many letters at its end as it has blanks in front.
std::string memberRecord(std::string_view number, std::string_view call, std::string_view name,
                         std::string_view state);

// The number without its award letter, padded likewise: "12C" becomes "0012".
std::string numberKey(std::string_view number);

// How many lines hold a call: of roster file 1 to 5, of all five. A missing file is an empty one.
// Throw as Files::read.
int countMembers(const Files& files, std::size_t number);
int countMembers(const Files& files);

// How many lines of a roster file are viewed at most.
inline constexpr int viewedLinesCapacity = 8000;

struct RosterView {
    std::string path; // as text to show
    std::vector<std::string> lines;
};

// The comma-delimited items of roster file 1 to 5. Throws RuntimeError 53 when there is no such
// file, 9 for more than 8,000 items.
RosterView viewRosterFile(const Files& files, std::size_t number);

// Sorts each of the five files by the number in its lines; lines with equal numbers keep their
// order. One file after the other is replaced: what was sorted before a failure stays so. Throws
// RuntimeError 53 for a missing file, 9 for one of more than 8,000 lines, and as Files::rewrite.
void sortRosterFiles(Files& files);

} // namespace vantrel
