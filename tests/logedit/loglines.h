// SPDX-License-Identifier: MIT
// Logs for the tests of log maintenance.
#pragma once

#include "support/contacts.h"

#include <string>
#include <vector>

namespace vantrel::test {

inline const std::string logName = "SKS061611.CBR";
inline const std::string backupName = logName + ".BAK";

// A contact as the main page logs it: 107 columns, 105 with the "DUPE" marker.
inline std::string contact(const std::string& call, const std::string& name = "CLUB",
                           const std::string& marker = "      ") {
    return contactLine({.hisCall = call, .rstReceived = "589", .hisName = name, .marker = marker});
}

inline std::string logOf(const std::vector<std::string>& contacts) {
    std::string bytes = logHeaderLines;
    for (const std::string& text : contacts)
        bytes += text + "\r\n";
    return bytes;
}

} // namespace vantrel::test
