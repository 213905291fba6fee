// SPDX-License-Identifier: MIT
// The lines that the list screen shows.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

// The file's whole lines.
std::vector<std::string> wholeLines(std::string_view bytes);

// Index of the last contact among a log's lines; of the last line when there is none.
std::size_t lastContactOf(const std::vector<std::string>& lines);

} // namespace vantrel
