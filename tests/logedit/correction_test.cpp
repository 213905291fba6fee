// SPDX-License-Identifier: MIT
#include "logedit/correction.h"
#include "logedit/loglines.h"

#include <gtest/gtest.h>
#include <map>

namespace vantrel::test {
namespace {

constexpr std::size_t hisCall = 0;
constexpr std::size_t hisName = 1;
constexpr std::size_t hisState = 3;
constexpr std::size_t frequency = 6;
constexpr std::size_t marker = 9;

// The line after these texts were typed into the boxes of their numbers.
Correction withTyped(const std::string& line, const std::map<std::size_t, std::string>& texts) {
    const CorrectionBoxes shown = correctionBoxes("K9S", line);
    CorrectionBoxes typed = shown;
    for (const auto& [box, text] : texts)
        typed[box] = text;
    return corrected(line, shown, typed);
}

TEST(Correction, EachBoxIsWrittenIntoItsColumns) {
    const CorrectionBoxes typed{"w9a",  "andr\xE9, al", "89c",  "ma",         "579",
                                "559 ", "7045",         "2359", "2011-06-17", "k3y/eu"};
    const std::string line = contact("K9SKC");
    const Correction correction = corrected(line, correctionBoxes("K9S", line), typed);
    EXPECT_EQ(correction.line, "QSO:  7045 CW 2011-06-17 2359 W1ABC      559 JOHN       MA 1234T "
                               "W9A        579 ANDR\xC9  AL  MA  89C   K3Y/EU");
    EXPECT_EQ(correction.boxes, (CorrectionBoxes{"W9A", "ANDR\xC9  AL", "89C", "MA", "579", "559",
                                                 "7045", "2359", "2011-06-17", "K3Y/EU"}));
    EXPECT_EQ(correction.cut, "");
}

TEST(Correction, WhatIsTooLongIsCutAndTold) {
    const Correction correction = withTyped(
        contact("K9SKC"), {{hisName, "BARTHOLOMEW"}, {hisState, "TEXAS"}, {frequency, "140450"}});
    EXPECT_EQ(correction.line, "QSO: 14045 CW 2011-06-16 0012 W1ABC      599 JOHN       MA 1234T "
                               "K9SKC      589 BARTHOLOME TEX 5000S       ");
    EXPECT_EQ(correction.cut, "HIS NAME, HIS STATE, FREQUENCY");
    EXPECT_EQ(withTyped(contact("K9SKC"), {{hisName, "   BARTHOLOME   "}}).cut, "");
}

TEST(Correction, WhatIsNotEditedStaysByteForByte) {
    for (const std::string& line : {contact("k9skc", " mixed, Cas"), std::string("QSO: 1")})
        EXPECT_EQ(withTyped(line, {}).line, line);

    const std::string dupe = contact("K9SKC", "CLUB", "DUPE"); // 105 columns
    EXPECT_EQ(withTyped(dupe, {{hisName, "NEW"}}).line, contact("K9SKC", "NEW", "DUPE"));
    EXPECT_EQ(withTyped(dupe, {{marker, ""}}).line, contact("K9SKC"));
    EXPECT_EQ(withTyped(contact("K9SKC"), {{marker, "dupe"}}).line,
              contact("K9SKC", "CLUB", "DUPE  "));
}

TEST(Correction, TheKeyIsNoCallUntilItIsEdited) {
    const std::string line = contact("K9SKC");
    const CorrectionBoxes shown = correctionBoxes("K9S", line);
    CorrectionBoxes typed = shown;
    typed[hisName] = "NEW";
    EXPECT_EQ(corrected(line, shown, typed).line, contact("K9SKC", "NEW"));
    EXPECT_EQ(corrected(line, shown, typed).boxes[hisCall], "K9S");
    EXPECT_TRUE(keepsFindable(shown, typed));

    typed[hisCall] = " w9 ";
    EXPECT_FALSE(keepsFindable(shown, typed));
    typed[hisCall] = "w9a";
    EXPECT_TRUE(keepsFindable(shown, typed));
}

} // namespace
} // namespace vantrel::test
