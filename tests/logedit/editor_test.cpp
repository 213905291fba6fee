// SPDX-License-Identifier: MIT
#include "logedit/editor.h"
#include "logedit/loglines.h"

#include <gtest/gtest.h>
#include <map>

namespace vantrel::test {
namespace {

constexpr std::size_t frequency = 0;
constexpr std::size_t rstSent = 5;
constexpr std::size_t myState = 7;
constexpr std::size_t myNumber = 8;
constexpr std::size_t hisName = 11;
constexpr std::size_t hisState = 12;
constexpr std::size_t dupeMark = 14;

// The line that saving leaves after these texts were typed into the boxes of their numbers.
std::string savedWith(const std::map<std::size_t, std::string>& texts,
                      const std::string& line = contact("K9SKC")) {
    EditorBoxes boxes = editorBoxes(line);
    for (const auto& [box, text] : texts)
        boxes[box] = text;
    return rebuiltLine(line, tidiedBoxes(boxes));
}

// Whole lines, since what the rebuild does to the other columns is the point. Note the report
// sent: its old first digit and the first two of the box make 559 of a 599 that nobody edited.
TEST(Editor, RebuildsTheLineTo105Columns) {
    const std::string rest = " CW 2011-06-16 0012 W1ABC      559 JOHN       MA 1234T "
                             "K9SKC      589 CLUB       IL  5000S     ";
    EXPECT_EQ(savedWith({}), "QSO: 14050" + rest);
    EXPECT_EQ(savedWith({{frequency, "7045"}}), "QSO:  7045" + rest);
    EXPECT_EQ(savedWith({{frequency, "140450"}}), "QSO: 14045" + rest);
    EXPECT_EQ(savedWith({{frequency, "704"}}), "QSO: 704  " + rest);
    const std::string cutShort = savedWith({}, "QSO: 14050 CW 2011-06-16 0012 W1A");
    EXPECT_EQ(cutShort, "QSO: 14050 CW 2011-06-16 0012 W1A" + std::string(72, ' '));
    EXPECT_EQ(savedWith({}, cutShort), cutShort); // saved twice, nothing moves on
}

TEST(Editor, QuirksThatOldLogsHave) {
    // The report sent lands one column to the right of where it is read; the third letter of my
    // state and the sixth character of my number are lost; a box is cut before it is trimmed.
    EXPECT_EQ(savedWith({{rstSent, "579"},
                         {myState, "mex"},
                         {myNumber, "12345C"},
                         {hisName, "   bartholomew"},
                         {hisState, "A,\t"},
                         {dupeMark, "DUPE"}}),
              "QSO: 14050 CW 2011-06-16 0012 W1ABC      557 JOHN       ME 12345 "
              "K9SKC      589 BARTHOL    A   5000S DUPE");
}

} // namespace
} // namespace vantrel::test
