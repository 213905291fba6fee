// SPDX-License-Identifier: MIT
// Contact lines for tests of what is made from a log: only what a test is about is said.
#pragma once

#include "support/contacts.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantrel::test {

struct Contact {
    std::string call = "K1ABC";
    std::string number = "1234";
    std::string state = "MA";
    std::string name = "JOHN";
    std::string frequency = "14050"; // kHz
    std::string date = "2011-06-16";
    std::string time = "0012";
    std::string marker = "      ";
    std::string myCall = "W1ABC";
    std::string myState = "MA";
};

inline std::string line(const Contact& contact) {
    return contactLine(
        {.frequency = std::string(5 - contact.frequency.size(), ' ') + contact.frequency,
         .date = contact.date,
         .time = contact.time,
         .myCall = contact.myCall,
         .myState = contact.myState,
         .hisCall = contact.call,
         .rstReceived = "579",
         .hisName = contact.name,
         .hisState = contact.state,
         .hisNumber = contact.number,
         .marker = contact.marker});
}

inline std::vector<std::string_view> views(const std::vector<std::string>& lines) {
    return {lines.begin(), lines.end()};
}

inline std::string logOf(const std::vector<std::string>& lines) {
    std::string bytes = logHeaderLines;
    for (const std::string& text : lines)
        bytes += text + "\r\n";
    return bytes;
}

} // namespace vantrel::test
