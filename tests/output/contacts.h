// SPDX-License-Identifier: MIT
// Contact lines for tests of what is made from a log: only what a test is about is said.
#pragma once

#include "support/contacts.h"

#include <algorithm>
#include <random>
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

// A log of `count` contacts as an operator's evening makes them, the same for the same seed.
inline std::vector<std::string> randomContacts(unsigned seed, int count) {
    std::mt19937 random(seed);
    const auto pick = [&](const std::vector<std::string>& choices) {
        return choices[random() % choices.size()];
    };
    std::vector<std::string> lines;
    for (int i = 0; i < count; ++i) {
        Contact contact;
        contact.call = pick({"K9SKC", "K9SKCA", "W4BON", "N5XYZ/7", "AA1A", "DL1ABC", "VE3XYZ",
                             "KH6ABCDEFG", "OK1ABC"});
        contact.number = pick({"NONE", "NONE1", "100W", "5W", "", "89S", "T", "12345C"});
        if (random() % 4 != 0)
            contact.number = std::to_string(random() % 120) + pick({"", "C", "T", "S", "W"});
        contact.state = pick(
            {"MA", "NY", "AK", "HI", "DL", "ON", "QC", "YT", "DC", "G", "OK", "EA8", "", " MA"});
        contact.frequency =
            pick({"14050", "7045", "3550", "1825", "21050", "28050", "10120", "50125", "472"});
        contact.name = pick({"JOHN",
                             "J\xDC"
                             "RGEN",
                             "JOHN/25", "ABCDEFGHIJ", "", "AL/5/6"});
        contact.date = pick({"2011-06-16", "2012-02-30", "07-01-2011", "01-01-2012"});
        contact.time = pick({"0000", "0959", "2359", "1830"});
        contact.marker = pick({"      ", "      ", "DUPE", "K3Y/EU", "DUPE  ", ""});
        lines.push_back(line(contact));
    }
    return lines;
}

} // namespace vantrel::test
