// SPDX-License-Identifier: MIT
#include "logedit/editor.h"

#include "logedit/logedit.h"

namespace vantrel {

namespace {

constexpr std::size_t frequencyBox = 0;
constexpr int shortFrequency = 4; // digits of a frequency below 10 MHz

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
std::string besideTheFields(std::string_view line) {
    std::string rest(line);
    for (const EditorField& field : editorFields)
        rest = withField(rest, field.read, "");
    return std::string(trimRight(withField(rest, qso::marker, "")));
}

} // namespace

EditorBoxes editorBoxes(std::string_view line) {
    EditorBoxes boxes;
    for (std::size_t i = 0; i < boxes.size(); ++i)
        boxes[i] = editorFields[i].read.of(line);
    return boxes;
}

EditorBoxes tidiedBoxes(const EditorBoxes& typed) {
    EditorBoxes boxes;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const std::string text = withoutSeparators(typed[i]);
        boxes[i] = i == frequencyBox ? tidiedFrequency(text)
                                     : tidiedBox(text, editorFields[i].written.width);
    }
    return boxes;
}

std::string rebuiltLine(std::string_view line, const EditorBoxes& boxes) {
    std::string edited(line);
    for (std::size_t i = 0; i < boxes.size(); ++i)
        edited = withField(edited, editorFields[i].written, boxes[i]);

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

std::string changedBesides(std::string_view before, const EditorBoxes& shown,
                           const EditorBoxes& typed, std::string_view rebuilt) {
    std::string changes;
    for (std::size_t i = 0; i < editorFields.size(); ++i) {
        const EditorField& field = editorFields[i];
        const bool isMarker = field.read.first == qso::marker.first;
        const Column column = isMarker ? qso::marker : field.read;
        const std::string meant =
            typed[i] == shown[i] ? std::string(trim(column.of(before))) : tidied(typed[i]);
        const std::string_view saved = trim(column.of(rebuilt));
        if (meant == saved)
            continue;
        changes += (changes.empty() ? "" : ", ") + std::string(isMarker ? "MARK" : field.label) +
                   ' ' + orBlank(meant) + " > " + orBlank(saved);
    }
    if (besideTheFields(before) != besideTheFields(rebuilt))
        changes += (changes.empty() ? "" : ", ") + std::string("COLUMNS BETWEEN THE FIELDS");
    return changes;
}

} // namespace vantrel
