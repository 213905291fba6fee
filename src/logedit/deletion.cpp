// SPDX-License-Identifier: MIT
#include "logedit/deletion.h"

#include "log/qsoline.h"

namespace vantrel {

namespace {

// Runs of whole fields with the blanks between them.
constexpr Column callAndBlank{66, 11};
constexpr Column blankToNumber{80, 22};
constexpr Column modeToTime{12, 18};

std::string text(Column column, std::string_view line) {
    return std::string(column.of(line));
}

} // namespace

std::string deletionCallText(std::string_view line) {
    return text(callAndBlank, line) + text(blankToNumber, line);
}

std::string deletionDetailText(std::string_view line) {
    // Deliberate: the columns hold kHz, but this is the wording that operators know.
    return text(qso::frequency, line) + " MHz " + text(modeToTime, line) + ' ' +
           text(qso::marker, line);
}

} // namespace vantrel
