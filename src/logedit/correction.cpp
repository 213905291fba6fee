// SPDX-License-Identifier: MIT
#include "logedit/correction.h"

#include "logedit/logedit.h"

namespace vantrel {

namespace {

constexpr std::size_t callBox = 0;

std::string inColumns(std::string_view value, Column column) {
    // kHz stand to the right: a four-digit value leaves the first column blank.
    return column.first == qso::frequency.first ? rightAligned(value, column.width)
                                                : leftAligned(value, column.width);
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
    Correction result{std::string(line), shown, {}};
    for (std::size_t i = 0; i < typed.size(); ++i) {
        if (typed[i] == shown[i])
            continue;
        const CorrectionField& field = correctionFields[i];
        const std::string value = tidied(typed[i]);
        result.line = withField(result.line, field.column, inColumns(value, field.column));
        result.boxes[i] = trim(field.column.of(result.line));
        if (length(value) > field.column.width)
            result.cut += (result.cut.empty() ? "" : ", ") + std::string(field.label);
    }
    return result;
}

bool keepsFindable(const CorrectionBoxes& shown, const CorrectionBoxes& typed) {
    return typed[callBox] == shown[callBox] ||
           length(tidied(typed[callBox])) >= LogEdit::shortestCall;
}

} // namespace vantrel
