// SPDX-License-Identifier: MIT
// How the deletion page shows the contact that it would delete.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

// His call (10), two blanks, his name (10), a blank, his state (3), a blank, his number (6).
// The report received is not shown.
std::string deletionCallText(std::string_view line);

// kHz (5), " MHz ", mode, date and time as in the line (18), a blank, marker (6 or 4).
std::string deletionDetailText(std::string_view line);

} // namespace vantrel
