// SPDX-License-Identifier: MIT
// Contact lines of the K3Y event for tests.
#pragma once

#include "support/contacts.h"

#include <string>
#include <vector>

namespace vantrel::test {

// A full contact line; khz as written ("7030" or "14050").
inline std::string k3yLine(const std::string& call, const std::string& khz,
                           const std::string& number = "1234T",
                           const std::string& marker = "      ") {
    return contactLine({.frequency = std::string(5 - khz.size(), ' ') + khz,
                        .hisCall = call,
                        .hisName = "BILL",
                        .hisNumber = number,
                        .marker = marker});
}

// A log's bytes: a header line and the contacts.
inline std::string k3yLog(const std::vector<std::string>& lines) {
    std::string bytes = " Contest: K3Y\r\n";
    for (const std::string& line : lines)
        bytes += line + "\r\n";
    return bytes;
}

} // namespace vantrel::test
