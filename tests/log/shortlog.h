// SPDX-License-Identifier: MIT
// A log's contacts said in words: only what a test is about.
#pragma once

#include "support/contacts.h"

#include <algorithm>
#include <initializer_list>
#include <sstream>

namespace vantrel::test {

using FieldList = std::initializer_list<std::string Fields::*>;

// logOf({&Fields::hisCall, &Fields::marker}, "K1ABC; W1AW K3Y/0_"): a line for each contact,
// its words in this order: "-" is empty, "_" a blank, what is not said is the same in all. What
// begins "QSO" is a line as it stands.
inline std::string logOf(FieldList fields, const std::string& contacts) {
    std::string log;
    std::istringstream all(contacts);
    for (std::string contact; std::getline(all, contact, ';');) {
        Fields line{.hisCall = "K1ABC", .hisName = "TOM", .hisState = "MA", .hisNumber = "1234"};
        std::istringstream words(contact);
        std::string word;
        for (const auto field : fields)
            if (words >> word) {
                std::replace(word.begin(), word.end(), '_', ' ');
                line.*field = word == "-" ? "" : word;
            }
        line.frequency.insert(0, 5 - line.frequency.size(), ' ');
        log += (contact.find("QSO") == contact.npos ? contactLine(line) : contact) + "\r\n";
    }
    return log;
}

} // namespace vantrel::test
