// SPDX-License-Identifier: MIT
// Who was worked before, while the call is still being typed.
#pragma once

#include "log/log.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

// Stands for those that find no room.
inline constexpr std::string_view moreWorked = "...";

struct WorkedCall {
    std::string text; // "K1ABC 20 40"
    bool dupe;        // worked on the band of the frequency box
};

// The logged calls that begin with what is typed, each with the bands it was worked on, in the
// order of the log. None for fewer than two characters. At most as many as fit `columns`
// characters with two blanks between them.
std::vector<WorkedCall> workedBefore(const Contacts& contacts, std::string_view typed,
                                     std::string_view bandTag, int columns);

} // namespace vantrel
