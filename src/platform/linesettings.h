// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace vantrel {

// The settings text of a serial port, "38400,n,8,2", taken apart.
struct LineSettings {
    int baud;
    char parity; // 'n', 'e' or 'o'
    int dataBits;
    int stopBits;
};

// Nothing when the text has another form ("None,n,8,1").
std::optional<LineSettings> lineSettings(std::string_view text);

} // namespace vantrel
