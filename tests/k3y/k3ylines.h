// SPDX-License-Identifier: MIT
// Contact lines of the K3Y event for tests.
#pragma once

#include "shared/qsoline.h"

#include <string>
#include <vector>

namespace vantrel::test {

// A full contact line; khz as written ("7030" or "14050"), everything cut or padded to width.
inline std::string k3yLine(const std::string& call, const std::string& khz,
                           const std::string& number = "1234T",
                           const std::string& marker = std::string(noMarker)) {
    return assembleLine({fitRight(khz, 5), "CW", "2011-01-05", "0012", fitLeft("W1ABC", 10), "599",
                         fitLeft("JOHN", 10), "MA ", "1234T ", fitLeft(call, 10), "599",
                         fitLeft("BILL", 10), "IL ", fitLeft(number, 6), marker});
}

// A log's bytes: a header line and the contacts.
inline std::string k3yLog(const std::vector<std::string>& lines) {
    std::string bytes = " Contest: K3Y\r\n";
    for (const std::string& line : lines)
        bytes += line + "\r\n";
    return bytes;
}

} // namespace vantrel::test
