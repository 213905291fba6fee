// SPDX-License-Identifier: MIT
#include "logedit/boxes.h"

#include "log/bands.h"
#include "log/contactdate.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr std::size_t callBox = 0;            // of the correction page
constexpr std::size_t editorFrequencyBox = 0; // of the editor
constexpr int shortFrequency = 4;             // digits of a frequency below 10 MHz

void addTo(std::string& list, const std::string& item) {
    list += (list.empty() ? "" : ", ") + item;
}

// --- Correction -------------------------------------------------------------------------------

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

// --- Editor -----------------------------------------------------------------------------------

std::string tidiedFrequency(std::string_view typed) {
    std::string khz = upper(left(typed, qso::frequency.width));
    if (length(khz) == shortFrequency)
        khz.insert(khz.begin(), ' ');
    return leftAligned(khz, qso::frequency.width);
}

std::string tidiedBox(std::string_view typed, int width) {
    return leftAligned(trim(upper(left(typed, width))), width);
}

std::string orBlank(std::string_view text) {
    return std::string(text.empty() ? "BLANK" : text);
}

// The line with its fields blanked.
std::string betweenTheFields(std::string_view line) {
    std::string rest(line);
    for (const BoxField& field : editorFields)
        rest = withField(rest, field.column, "");
    return std::string(trimRight(withField(rest, qso::marker, "")));
}

} // namespace

std::string tidied(std::string_view typed) {
    return std::string(trim(upper(withoutSeparators(typed))));
}

Boxes correctionBoxes(std::string_view key, std::string_view line) {
    Boxes boxes;
    for (const BoxField& field : correctionFields)
        boxes.emplace_back(trim(field.column.of(line)));
    boxes[callBox] = key;
    return boxes;
}

Correction corrected(std::string_view line, const Boxes& shown, const Boxes& typed) {
    Correction result{std::string(line), shown, {}, {}};
    for (std::size_t i = 0; i < typed.size(); ++i) {
        if (typed[i] == shown[i])
            continue;
        const BoxField& field = correctionFields.at(i);
        const std::string value = valueOf(typed[i], field.column);
        result.line = withField(result.line, field.column, inColumns(value, field.column));
        result.boxes[i] = trim(field.column.of(result.line));
        if (length(value) > field.column.width)
            addTo(result.cut, field.label);
        if (!isRight(field.column, result.line))
            addTo(result.wrong, field.label);
    }
    return result;
}

bool keepsFindable(const Boxes& shown, const Boxes& typed) {
    return typed[callBox] == shown[callBox] || length(tidied(typed[callBox])) >= shortestCall;
}

Boxes editorBoxes(std::string_view line) {
    Boxes boxes;
    for (const BoxField& field : editorFields)
        boxes.emplace_back(field.column.of(line));
    return boxes;
}

Boxes tidiedBoxes(const Boxes& typed) {
    Boxes boxes;
    for (std::size_t i = 0; i < typed.size(); ++i) {
        const std::string text = withoutSeparators(typed[i]);
        boxes.push_back(i == editorFrequencyBox
                            ? tidiedFrequency(text)
                            : tidiedBox(text, editorFields.at(i).written.width));
    }
    return boxes;
}

std::string rebuiltLine(std::string_view line, const Boxes& boxes) {
    std::string edited(line);
    for (std::size_t i = 0; i < boxes.size(); ++i)
        edited = withField(edited, editorFields.at(i).written, boxes[i]);

    // Deliberate, since old logs hold lines rebuilt so: columns 59 and 65 become blanks, hence a
    // three-letter state and a six-character number of mine lose their last character, and the
    // report sent is the old first digit with the first two of the box.
    constexpr Column myStateKept{qso::myState.first, 2};
    constexpr Column myNumberKept{qso::myNumber.first, 5};
    std::string rebuilt = "QSO:";
    for (const Column piece : {qso::frequency, qso::mode, qso::date, qso::time, qso::myCall,
                               qso::rstSent, qso::myName, myStateKept, myNumberKept, qso::hisCall,
                               qso::rstReceived, qso::hisName, qso::hisState, qso::hisNumber})
        rebuilt += ' ' + std::string(piece.of(edited));
    return rebuilt + std::string(qso::dupeColumns.of(edited));
}

std::string changedBesides(std::string_view before, const Boxes& shown, const Boxes& typed,
                           std::string_view rebuilt) {
    std::string changes;
    for (std::size_t i = 0; i < typed.size(); ++i) {
        const BoxField& field = editorFields.at(i);
        const bool isMarker = field.column.first == qso::marker.first;
        const Column column = isMarker ? qso::marker : field.column;
        const std::string meant =
            typed[i] == shown[i] ? std::string(trim(column.of(before))) : tidied(typed[i]);
        const std::string_view saved = trim(column.of(rebuilt));
        if (meant != saved)
            addTo(changes, (isMarker ? "MARK " : field.label + std::string(" ")) + orBlank(meant) +
                               " > " + orBlank(saved));
    }
    if (betweenTheFields(before) != betweenTheFields(rebuilt))
        addTo(changes, "COLUMNS BETWEEN THE FIELDS");
    return changes;
}

} // namespace vantrel
