// SPDX-License-Identifier: MIT
#include "platform/linesettings.h"

#include "base/fixedtext.h"

namespace vantrel {

std::optional<LineSettings> lineSettings(std::string_view text) {
    const auto baudEnd = text.find(',');
    if (baudEnd == std::string_view::npos || baudEnd == 0 || baudEnd > 6)
        return std::nullopt;
    const std::string_view baud = text.substr(0, baudEnd);
    const std::string_view rest = text.substr(baudEnd);
    const bool form =
        rest.size() == 6 && rest[0] == ',' && rest[2] == ',' && rest[4] == ',' && allDigits(baud);
    if (!form || std::string_view("neo").find(rest[1]) == std::string_view::npos ||
        (rest[3] != '7' && rest[3] != '8') || (rest[5] != '1' && rest[5] != '2'))
        return std::nullopt;
    return LineSettings{static_cast<int>(numericValue(baud)), rest[1], rest[3] - '0',
                        rest[5] - '0'};
}

} // namespace vantrel
