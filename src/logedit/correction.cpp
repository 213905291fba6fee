// SPDX-License-Identifier: MIT
#include "logedit/correction.h"

#include "log/bands.h"
#include "log/contactdate.h"
#include "logedit/logedit.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr std::size_t callBox = 0;

// The kHz of a frequency in MHz: one or two digits, a point or a comma, decimals (the first three
// count). Empty for anything else.
std::string khzOfMhz(std::string_view typed) {
    constexpr int khzDigits = 3;
    typed = trim(typed);
    const std::size_t point = typed.find_first_of(".,");
    if (point == std::string_view::npos || point == 0 || point > 2)
        return {};
    const std::string_view mhz = typed.substr(0, point);
    std::string decimals(typed.substr(point + 1));
    if (!allDigits(mhz) || !allDigits(decimals))
        return {};
    decimals.resize(khzDigits, '0');
    const std::string khz = std::string(mhz) + decimals;
    return khz.substr(std::min(khz.find_first_not_of('0'), khz.size()));
}

bool isFrequency(const Column& column) {
    return column.first == qso::frequency.first;
}

std::string valueOf(std::string_view typed, Column column) {
    std::string khz = isFrequency(column) ? khzOfMhz(typed) : std::string();
    return khz.empty() ? tidied(typed) : khz;
}

std::string inColumns(std::string_view value, Column column) {
    // kHz stand to the right: a four-digit value leaves the first column blank.
    return isFrequency(column) ? rightAligned(value, column.width)
                               : leftAligned(value, column.width);
}

// One of the two forms in which the program writes dates.
bool isDate(std::string_view text) {
    const auto date = readDate(text);
    const bool firstOfMonth = mid(text, 3, 4) == "-01-";
    return date && (firstOfMonth || dateText(*date) == text);
}

// Whether the field is valid. Only these three can be checked; in the others any text is.
bool isRight(Column column, std::string_view line) {
    const std::string_view text = column.of(line);
    switch (column.first) {
    case qso::frequency.first:
        return !trim(text).empty() && allDigits(trimLeft(text)) && isOnBand(text);
    case qso::time.first:
        return readTime(text).has_value();
    case qso::date.first:
        return isDate(text);
    default:
        return true;
    }
}

void addLabel(std::string& labels, const char* label) {
    labels += (labels.empty() ? "" : ", ") + std::string(label);
}

} // namespace

CorrectionBoxes correctionBoxes(std::string_view key, std::string_view line) {
    CorrectionBoxes boxes;
    for (std::size_t i = 0; i < boxes.size(); ++i)
        boxes[i] = trim(correctionFields[i].column.of(line));
    boxes[callBox] = key;
    return boxes;
}

Correction corrected(std::string_view line, const CorrectionBoxes& shown,
                     const CorrectionBoxes& typed) {
    Correction result{std::string(line), shown, {}, {}};
    for (std::size_t i = 0; i < typed.size(); ++i) {
        if (typed[i] == shown[i])
            continue;
        const CorrectionField& field = correctionFields[i];
        const std::string value = valueOf(typed[i], field.column);
        result.line = withField(result.line, field.column, inColumns(value, field.column));
        result.boxes[i] = trim(field.column.of(result.line));
        if (length(value) > field.column.width)
            addLabel(result.cut, field.label);
        if (!isRight(field.column, result.line))
            addLabel(result.wrong, field.label);
    }
    return result;
}

CorrectionBoxes withCallShown(CorrectionBoxes shown, std::string_view line) {
    shown[callBox] = trim(qso::hisCall.of(line));
    return shown;
}

bool keepsFindable(const CorrectionBoxes& shown, const CorrectionBoxes& typed) {
    return typed[callBox] == shown[callBox] || length(tidied(typed[callBox])) >= shortestCall;
}

} // namespace vantrel
