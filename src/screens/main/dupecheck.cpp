// SPDX-License-Identifier: MIT
#include "screens/main/dupecheck.h"

#include "log/qsoline.h"

#include <algorithm>

namespace vantrel {

namespace {

// Equal as columns: a line that lost its last blanks in an editor is still the same contact.
bool sameField(Column column, std::string_view line, std::string_view value) {
    return trimRight(column.of(line)) == trimRight(left(value, column.width));
}

} // namespace

std::string_view duplicateOf(const Contacts& contacts, std::string_view call,
                             std::string_view bandTag) {
    const auto found = std::find_if(contacts.begin(), contacts.end(), [&](std::string_view line) {
        return qso::bandTag.of(line) == bandTag &&
               mid(line, qso::hisCall.first, length(call)) == call;
    });
    return found == contacts.end() ? std::string_view() : *found;
}

bool isK3yDupe(const Contacts& contacts, std::string_view contactLine) {
    return isK3yDupe(contacts, qso::hisCall.of(contactLine), qso::hisNumber.of(contactLine),
                     qso::bandTag.of(contactLine));
}

bool isK3yDupe(const Contacts& contacts, std::string_view call, std::string_view number,
               std::string_view bandTag) {
    return std::any_of(contacts.begin(), contacts.end(), [&](std::string_view line) {
        return sameField(qso::hisCall, line, call) && qso::bandTag.of(line) == bandTag &&
               sameField(qso::hisNumber, line, number);
    });
}

std::string asDupe(std::string_view contactLine) {
    // A region tag gives way to "DUPE": a duplicate counts for no region.
    return std::string(left(contactLine, qso::hisNumber.last())) + std::string(dupeMarker);
}

} // namespace vantrel
