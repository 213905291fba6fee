// SPDX-License-Identifier: MIT
// Anything typed into the correction page and the editor over any contact line: what was
// changed stands in its columns, the rest is as it was, and the line stays a contact.
#include "base/fixedtext.h"
#include "fuzz/fuzztarget.h"
#include "logedit/correction.h"
#include "logedit/deletion.h"
#include "logedit/editor.h"
#include "logedit/logedit.h"

#include <algorithm>

namespace vantrel::test {
namespace {

constexpr std::size_t hisCallBox = 9; // of the editor

// A box left alone is an empty text; a cleared one is a blank.
template <typename Boxes>
Boxes typedOver(const Boxes& shown, Input& input) {
    Boxes boxes = shown;
    for (std::string& box : boxes)
        if (const std::string text = input.text(); !text.empty())
            box = text;
    return boxes;
}

void staysOneContact(std::string_view after, std::string_view before) {
    require(isContact(after), "a contact stays one");
    require(before.find(',') != std::string_view::npos || after.find(',') == std::string_view::npos,
            "no comma gets into a line");
    require(after.find('\n') == std::string_view::npos, "a line stays one");
}

void correctionChangesWhatWasTyped(std::string_view line, Input input) {
    const CorrectionBoxes shown = correctionBoxes(input.text(), line);
    const CorrectionBoxes typed = typedOver(shown, input);
    const Correction result = corrected(line, shown, typed);
    staysOneContact(result.line, line);

    std::string others = result.line;
    for (std::size_t i = 0; i < typed.size(); ++i) {
        const Column column = correctionFields[i].column;
        if (typed[i] == shown[i])
            continue;
        requireEqual(trim(column.of(result.line)), trim(left(tidied(typed[i]), column.width)),
                     "a changed box stands in its columns");
        others = withField(others, column, column.of(line));
    }
    requireEqual(others, leftAligned(line, length(others)), "all other columns stay");
    requireEqual(corrected(result.line, result.boxes, result.boxes).line, result.line,
                 "saving once more changes nothing");
}

void editorWritesItsBoxes(std::string_view line, Input input) {
    const EditorBoxes boxes = tidiedBoxes(typedOver(editorBoxes(line), input));
    require(tidiedBoxes(boxes) == boxes, "tidied boxes stay as they are");
    const std::string rebuilt = rebuiltLine(line, boxes);
    staysOneContact(rebuilt, line);
    require(length(rebuilt) == qso::dupeColumns.last(), "a rebuilt line has its length");
    requireEqual(qso::hisCall.of(rebuilt), boxes[hisCallBox], "his call stands in its columns");
}

} // namespace

void fuzz(Input& input) {
    const std::string line = "QSO" + input.text();
    if (line.find('\n') != std::string::npos)
        return;
    correctionChangesWhatWasTyped(line, input);
    editorWritesItsBoxes(line, input);
    require(length(deletionCallText(line)) <= 33, "the deletion page has one width");
    require(length(deletionDetailText(line)) <= 35, "the deletion page has one width");
}

} // namespace vantrel::test
