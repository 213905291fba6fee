// SPDX-License-Identifier: MIT
// The radios a test can have: one of each family, what it is asked and how it answers.
#pragma once

#include "shared/settings.h"
#include "support/testing.h"

#include <ostream>

namespace vantrel::test {

struct Radio {
    std::string name; // for the test's name
    std::string rig;
    std::string baud;
    std::string civAddress;
    std::string lineSettings; // what the port must be opened with
    std::string query;
    std::string (*reply)(long hertz);
    std::string noReplyText; // the box's text when there is no good reply
    int queries = 1;         // how often a silent radio is asked
};

inline void PrintTo(const Radio& radio, std::ostream* out) {
    *out << radio.name;
}

// One of each family.
const std::vector<Radio>& radios();
const Radio& radioNamed(const std::string& name);

// What may stand in front of its answer, each by itself and several times; the last is the query
// echoed by an interface, which comes once.
std::vector<std::string> straysOf(const Radio& radio);

// Settings with this radio on `com1`.
OperatingSettings settingsFor(const Radio& radio);

} // namespace vantrel::test
