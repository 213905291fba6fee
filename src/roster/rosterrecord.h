// SPDX-License-Identifier: MIT
// The member record: its one column table, how a number is written in it, and which of the
// five roster files holds it.
#pragma once

#include "log/qsoline.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace vantrel {

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
// call without its leading blanks; name and state are cut first and trimmed then, so blanks in
// front of a name cost it its last letters.
std::string memberRecord(std::string_view number, std::string_view call, std::string_view name,
                         std::string_view state);

// The number without its award letter, padded likewise: "12C" becomes "0012".
std::string numberKey(std::string_view number);

} // namespace vantrel
