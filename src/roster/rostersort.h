// SPDX-License-Identifier: MIT
// The five roster files brought into the order of their members' numbers.
#pragma once

#include <string_view>

namespace vantrel {

class Files;

// What the operator is told when it is done.
inline constexpr std::string_view rosterSorted =
    "THE DATABASE FILES HAVE BEEN ALPHABETIZED BY SKCC#s";

// Sorts "SKSDB1.TXT" to "SKSDB5.TXT", each by the number in its lines; lines with equal numbers
// keep their order. One file after the other is replaced: what was sorted before a failure stays
// so. Throws RuntimeError 53 for a missing file, 9 for one of more than 8,000 lines, and as
// Files::rewrite.
void sortRosterFiles(Files& files);

} // namespace vantrel
