// SPDX-License-Identifier: MIT
// Contact lines for tests, laid out by hand and not by the code under test.
#pragma once

#include <string>

namespace vantrel::test {

// The fields of a line; each is padded to its width below.
struct Fields {
    std::string frequency = "14050";
    std::string date = "2011-06-16";
    std::string time = "0012";
    std::string myCall = "W1ABC";
    std::string rstSent = "599";
    std::string myName = "JOHN";
    std::string myState = "MA";
    std::string myNumber = "1234T";
    std::string hisCall = "K9SKC";
    std::string rstReceived = "599";
    std::string hisName = "CLUB";
    std::string hisState = "IL";
    std::string hisNumber = "5000S";
    std::string marker = "      ";
};

inline std::string padded(std::string text, std::size_t width) {
    text.resize(width, ' ');
    return text;
}

// "QSO: 14050 CW 2011-06-16 0012 W1ABC      599 JOHN       MA 1234T K9SKC      599 CLUB
// IL  5000S       ": 101 columns and the marker.
inline std::string contactLine(const Fields& f) {
    return "QSO: " + f.frequency + " CW " + f.date + " " + f.time + " " + padded(f.myCall, 10) +
           " " + padded(f.rstSent, 3) + " " + padded(f.myName, 10) + " " + padded(f.myState, 3) +
           padded(f.myNumber, 6) + padded(f.hisCall, 10) + " " + padded(f.rstReceived, 3) + " " +
           padded(f.hisName, 10) + " " + padded(f.hisState, 3) + " " + padded(f.hisNumber, 6) +
           f.marker;
}

inline const std::string logHeaderLines = " Contest: SKS\r\n"
                                          " My Call: W1ABC\r\n"
                                          "My SKCC#: 1234T \r\n"
                                          "   Count: 66 to HisCall\r\n";

} // namespace vantrel::test
