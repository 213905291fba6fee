// SPDX-License-Identifier: MIT
// A roster file as the roster viewer shows it, and how many members all five hold.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vantrel {

class Files;

// How many lines of a roster file are viewed at most.
inline constexpr int viewedLinesCapacity = 8000;

struct RosterView {
    std::string path; // as text to show
    std::vector<std::string> lines;
};

// The items of roster file 1 to 5. Throws RuntimeError 53 when there is none, 9 for more than
// 8,000 items.
RosterView viewRosterFile(const Files& files, std::size_t number);

// The lines of all five files that hold a call; a missing file is an empty one. Throws as
// Files::read.
int countMembers(const Files& files);

// What stands over the columns of a file's lines.
std::string memberHeading();

} // namespace vantrel
