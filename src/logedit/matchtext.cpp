// SPDX-License-Identifier: MIT
#include "logedit/matchtext.h"

#include "log/bands.h"
#include "log/qsoline.h"

namespace vantrel {

namespace {

std::string bandText(std::string_view line) {
    const std::string_view khz = qso::frequency.of(line);
    const Band* band = bandOfKhz(khz);
    return std::string(band != nullptr ? band->label : trim(khz));
}

constexpr std::string_view mark = "> ";
constexpr std::string_view noMark = "  "; // as wide

std::string field(Column column, std::string_view line) {
    return leftAligned(column.of(line), column.width);
}

} // namespace

std::string matchText(std::string_view line, bool current) {
    return std::string(current ? mark : noMark) + field(qso::hisCall, line) + ' ' +
           field(qso::date, line) + ' ' + field(qso::time, line) + ' ' + bandText(line);
}

std::string matchWords(std::string_view matchText) {
    return std::string(midToEnd(matchText, length(mark) + 1));
}

std::string briefly(std::string_view line) {
    return std::string(trim(qso::hisCall.of(line))) + ' ' + bandText(line) + ' ' +
           std::string(qso::time.of(line));
}

} // namespace vantrel
