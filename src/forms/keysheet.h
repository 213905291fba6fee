// SPDX-License-Identifier: MIT
// The key sheet of each page: what F1 shows.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

struct OperatingSettings;

// The page's keys and what each does, a line each, then the keys of all pages. page: its
// objectName. The main page's sheet begins with the contest's exchange.
std::string keySheet(std::string_view page, const OperatingSettings& settings);

} // namespace vantrel
