// SPDX-License-Identifier: MIT
#include "logedit/editor.h"
#include "logedit/loglines.h"
#include "support/errors.h"

namespace vantrel::test {
namespace {

constexpr std::size_t frequency = 0;
constexpr std::size_t rstSent = 5;
constexpr std::size_t myState = 7;
constexpr std::size_t myNumber = 8;
constexpr std::size_t hisName = 11;
constexpr std::size_t dupeMark = 14;

// The line that saving leaves after `text` was typed into the box.
std::string savedWith(const std::string& line, std::size_t box, const std::string& text) {
    EditorBoxes boxes = editorBoxes(line);
    boxes[box] = text;
    return rebuiltLine(line, tidiedBoxes(boxes));
}

const std::string logged = "QSO: 14050 CW 2011-06-16 0012 W1ABC      599 JOHN       MA 1234T "
                           "K9SKC      589 CLUB       IL  5000S       ";

struct Saved {
    const char* name;
    std::size_t box;
    std::string typed;
    std::string line;
};

void PrintTo(const Saved& row, std::ostream* out) {
    *out << row.name;
}

class EditorSaved : public ::testing::TestWithParam<Saved> {};

TEST_P(EditorSaved, RebuildsTheLine) {
    EXPECT_EQ(savedWith(logged, GetParam().box, GetParam().typed), GetParam().line);
}

// Whole lines, since what the rebuild does to the other columns is the point. Note the report
// sent: its old first digit and the first two of the box make 559 of a 599 that nobody edited.
INSTANTIATE_TEST_SUITE_P(
    Rows, EditorSaved,
    ::testing::Values(Saved{"FourDigits_GetABlankInFront", frequency, "7045",
                            "QSO:  7045 CW 2011-06-16 0012 W1ABC      559 JOHN       MA 1234T "
                            "K9SKC      589 CLUB       IL  5000S     "},
                      Saved{"SixDigits_AreCut", frequency, "140450",
                            "QSO: 14045 CW 2011-06-16 0012 W1ABC      559 JOHN       MA 1234T "
                            "K9SKC      589 CLUB       IL  5000S     "},
                      Saved{"ThreeDigits_StandToTheLeft", frequency, "704",
                            "QSO: 704   CW 2011-06-16 0012 W1ABC      559 JOHN       MA 1234T "
                            "K9SKC      589 CLUB       IL  5000S     "},
                      Saved{"RstSent_IsWrittenOneColumnToTheRight", rstSent, "579",
                            "QSO: 14050 CW 2011-06-16 0012 W1ABC      557 JOHN       MA 1234T "
                            "K9SKC      589 CLUB       IL  5000S     "},
                      Saved{"MyThirdStateLetter_IsLost", myState, "mex",
                            "QSO: 14050 CW 2011-06-16 0012 W1ABC      559 JOHN       ME 1234T "
                            "K9SKC      589 CLUB       IL  5000S     "},
                      Saved{"MySixthNumberCharacter_IsLost", myNumber, "12345C",
                            "QSO: 14050 CW 2011-06-16 0012 W1ABC      559 JOHN       MA 12345 "
                            "K9SKC      589 CLUB       IL  5000S     "},
                      Saved{"Box_IsCutBeforeItIsTrimmed", hisName, "   bartholomew",
                            "QSO: 14050 CW 2011-06-16 0012 W1ABC      559 JOHN       MA 1234T "
                            "K9SKC      589 BARTHOL    IL  5000S     "},
                      Saved{"Separators_BecomeBlanks", hisName, "A,B\tC",
                            "QSO: 14050 CW 2011-06-16 0012 W1ABC      559 JOHN       MA 1234T "
                            "K9SKC      589 A B C      IL  5000S     "},
                      Saved{"DupeNote_EndsTheLine", dupeMark, "DUPE",
                            "QSO: 14050 CW 2011-06-16 0012 W1ABC      559 JOHN       MA 1234T "
                            "K9SKC      589 CLUB       IL  5000S DUPE"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(Editor, BoxesShowTheirColumnsAsTheyStand) {
    const EditorBoxes boxes = editorBoxes(withField(logged, qso::frequency, " 7045"));
    EXPECT_EQ(boxes[frequency], " 7045");
    EXPECT_EQ(boxes[rstSent], "599");
    EXPECT_EQ(boxes[myState], "MA ");
    EXPECT_EQ(boxes[hisName], "CLUB      ");
    EXPECT_EQ(boxes[dupeMark], "    ");
}

TEST(Editor, AnyContactComesOutWith105ColumnsInTheirPlaces) {
    RandomLog random(3);
    for (int round = 0; round < 200; ++round) {
        SCOPED_TRACE(round);
        const std::string line = random.anyContact();
        const EditorBoxes boxes = tidiedBoxes(editorBoxes(line));
        const std::string saved = rebuiltLine(line, boxes);
        ASSERT_EQ(length(saved), 105);
        for (const std::size_t i : {0U, 1U, 2U, 3U, 4U, 6U, 9U, 10U, 11U, 12U, 13U, 14U})
            EXPECT_EQ(editorFields[i].read.of(saved), boxes[i]) << editorFields[i].label;
        // Column 42 is nobody's box: it stays as the line had it.
        EXPECT_EQ(withField(saved, {42, 1}, " ").find(','), std::string::npos);
        EXPECT_EQ(rebuiltLine(saved, boxes), saved); // saved twice, nothing moves on
    }
}

} // namespace
} // namespace vantrel::test
