// SPDX-License-Identifier: MIT
#include "logedit/correction.h"

#include "logedit/logedit.h"

#include <algorithm>
#include <chrono>

namespace vantrel {

namespace {

constexpr std::size_t callBox = 0;

bool isDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), isDigit);
}

// The kHz of a frequency in MHz: one or two digits, a point or a comma, decimals of which three
// count. Nothing for anything else.
std::string khzOfMhz(std::string_view typed) {
    constexpr int khzDigits = 3;
    typed = trim(typed);
    const std::size_t point = typed.find_first_of(".,");
    if (point == std::string_view::npos || point == 0 || point > 2)
        return {};
    const std::string_view mhz = typed.substr(0, point);
    std::string decimals(typed.substr(point + 1));
    if (!isDigits(mhz) || !isDigits(decimals))
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

int number(std::string_view text, Column column) {
    return static_cast<int>(numericValue(column.of(text)));
}

bool isTime(std::string_view text) {
    constexpr Column hours{1, 2};
    constexpr Column minutes{3, 2};
    return isDigits(text) && number(text, hours) < 24 && number(text, minutes) < 60;
}

// YYYY-MM-DD, or MM-01-YYYY as it is logged after the end of a month.
bool isDate(std::string_view text) {
    const bool monthFirst = mid(text, 3, 1) == "-";
    const Column year = monthFirst ? Column{7, 4} : Column{1, 4};
    const Column month = monthFirst ? Column{1, 2} : Column{6, 2};
    const Column day = monthFirst ? Column{4, 2} : Column{9, 2};
    std::string pattern(text);
    std::replace_if(pattern.begin(), pattern.end(), isDigit, '9');
    using namespace std::chrono;
    return pattern == (monthFirst ? "99-99-9999" : "9999-99-99") &&
           (!monthFirst || day.of(text) == "01") &&
           year_month_day(std::chrono::year(number(text, year)),
                          std::chrono::month(static_cast<unsigned>(number(text, month))),
                          std::chrono::day(static_cast<unsigned>(number(text, day))))
               .ok();
}

// Whether a field holds what a contact can have there; only these three can be told.
bool isRight(Column column, std::string_view line) {
    const std::string_view text = column.of(line);
    switch (column.first) {
    case qso::frequency.first:
        return !trim(text).empty() && isDigits(trimLeft(text));
    case qso::time.first:
        return isTime(text);
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
    return typed[callBox] == shown[callBox] ||
           length(tidied(typed[callBox])) >= LogEdit::shortestCall;
}

} // namespace vantrel
