// SPDX-License-Identifier: MIT
// Logs for the tests of log maintenance.
#pragma once

#include "platform/files.h"
#include "shared/qsoline.h"

#include <random>
#include <string>
#include <vector>

namespace vantrel::test {

inline const std::string logName = "SKS061611.CBR";
inline const std::string backupName = logName + ".BAK";
inline const std::string fullName = logName + ".FULL";

// A contact as the main page logs it: 107 columns, 105 with the "DUPE" marker.
inline std::string contact(const std::string& call, const std::string& name = "CLUB",
                           const std::string& marker = std::string(noMarker)) {
    return assembleLine({"14050", "CW", "2011-06-16", "0012", fitLeft("W1ABC", 10), "599",
                         fitLeft("JOHN", 10), "MA ", "1234T ", fitLeft(call, 10), "589",
                         fitLeft(name, 10), "IL ", "5000S ", marker});
}

inline const std::vector<std::string> headerLines{" Contest: SKS", " My Call: W1ABC",
                                                  "My SKCC#: 1234T ", "   Count: 66 to HisCall"};

inline std::string logOf(std::vector<std::string> contacts) {
    contacts.insert(contacts.begin(), headerLines.begin(), headerLines.end());
    return joinLines(contacts);
}

// Seeded: the same log for the same seed on every machine.
class RandomLog {
public:
    explicit RandomLog(unsigned seed) : m_random(seed) {}

    int number(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }

    // Few different calls, so that prefixes and repeats are common.
    std::string call() { return std::string("K") + digit() + "AB" + (number(2) != 0 ? "C" : ""); }

    std::string anyText(int width) {
        std::string text;
        for (int i = 0; i < width; ++i)
            text += static_cast<char>(0x20 + number(0x5F));
        return text;
    }

    // A contact with odd bytes in every other field, now and then cut short or too long.
    std::string anyContact() {
        std::string line =
            withField(withField(anyText(107), qso::tag, "QSO: "), qso::hisCall, call());
        const int shape = number(6);
        if (shape == 0)
            line.resize(static_cast<std::size_t>(70 + number(37)));
        return shape == 1 ? line + anyText(5) : line;
    }

    // A line that no search may find, though a call stands in the right columns of some.
    std::string otherLine() {
        return number(2) != 0 ? "" : withField("SOAPBOX: ", qso::hisCall, call());
    }

    std::vector<std::string> lines(int count) {
        std::vector<std::string> lines = headerLines;
        for (int i = 0; i < count; ++i)
            lines.push_back(number(5) != 0 ? anyContact() : otherLine());
        return lines;
    }

private:
    char digit() { return static_cast<char>('1' + number(3)); }

    std::mt19937 m_random;
};

} // namespace vantrel::test
