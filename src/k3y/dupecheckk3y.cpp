// SPDX-License-Identifier: MIT
#include "k3y/dupecheckk3y.h"

#include "screens/main/qsoentry.h"
#include "shared/module1.h"
#include "shared/qsoline.h"

#include <algorithm>

namespace vantrel {

namespace {

// Equal as columns: a line that lost its last blanks in an editor is still the same contact.
bool sameField(Column column, std::string_view line, std::string_view value) {
    return trimRight(column.of(line)) == trimRight(left(value, column.width));
}

} // namespace

bool isK3yDupe(const QsoTable& table, std::string_view contactLine) {
    return isK3yDupe(table, qso::hisCall.of(contactLine), qso::hisNumber.of(contactLine),
                     qso::bandTag.of(contactLine));
}

bool isK3yDupe(const QsoTable& table, std::string_view call, std::string_view number,
               std::string_view bandTag) {
    const auto& lines = table.lines();
    return std::any_of(lines.begin(), lines.end(), [&](std::string_view line) {
        return sameField(qso::hisCall, line, call) && qso::bandTag.of(line) == bandTag &&
               sameField(qso::hisNumber, line, number);
    });
}

void logTheDupe(Module1& module, Files& files) {
    // A region tag gives way to "DUPE": a duplicate counts for no region.
    module.currentLine =
        std::string(left(module.currentLine, qso::hisNumber.last())) + std::string(dupeMarker);
    appendContact(module, files);
}

} // namespace vantrel
