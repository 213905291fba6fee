// SPDX-License-Identifier: MIT
// The key sheet of each page: what F1 shows.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

struct OperatingSettings;

// Lines of keys and what they do on the page of that objectName, the contest's exchange first where
// contacts are entered. Every page has at least what all pages share.
std::string keySheet(std::string_view page, const OperatingSettings& settings);

} // namespace vantrel
