// SPDX-License-Identifier: MIT
// The lines that the list screen shows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

// The file's whole lines.
std::vector<std::string> wholeLines(std::string_view bytes);

} // namespace vantrel
