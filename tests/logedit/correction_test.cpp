// SPDX-License-Identifier: MIT
#include "logedit/correction.h"
#include "logedit/loglines.h"
#include "support/errors.h"

namespace vantrel::test {
namespace {

constexpr std::size_t hisCall = 0;
constexpr std::size_t hisName = 1;
constexpr std::size_t frequency = 6;
constexpr std::size_t marker = 9;

Correction withTyped(const std::string& line, std::size_t box, const std::string& text) {
    const CorrectionBoxes shown = correctionBoxes("K9SKC", line);
    CorrectionBoxes typed = shown;
    typed[box] = text;
    return corrected(line, shown, typed);
}

TEST(Correction, CorrectingOneFieldChangesExactlyItsColumns) {
    RandomLog random(7);
    for (int round = 0; round < 400; ++round) {
        SCOPED_TRACE(round);
        const std::string line = random.anyContact();
        const auto box = static_cast<std::size_t>(random.number(10));
        const Column column = correctionFields[box].column;
        const std::string typed = random.anyText(random.number(14));
        const std::string result = withTyped(line, box, typed).line;

        std::string outside = line;
        if (length(outside) < column.last())
            outside.resize(static_cast<std::size_t>(column.last()), ' ');
        ASSERT_EQ(result.size(), outside.size());
        EXPECT_EQ(left(result, column.first - 1), left(outside, column.first - 1));
        EXPECT_EQ(midToEnd(result, column.last() + 1), midToEnd(outside, column.last() + 1));
        EXPECT_EQ(result.find(',', static_cast<std::size_t>(column.first - 1)),
                  outside.find(',', static_cast<std::size_t>(column.last())));
    }
}

TEST(Correction, NothingEditedLeavesEvenAnOddLineAlone) {
    for (const std::string& line : {contact("k9skc", " mixed, Cas"),
                                    contact("K9SKC", "CLUB", "DUPE"), std::string("QSO: 1")}) {
        const CorrectionBoxes shown = correctionBoxes("K9S", line);
        EXPECT_EQ(corrected(line, shown, shown).line, line);
    }
}

struct Typed {
    const char* name;
    std::size_t box;
    std::string text;
    std::string columns; // what then stands in the box's columns
    std::string cut;     // labels told to the operator
};

void PrintTo(const Typed& row, std::ostream* out) {
    *out << row.name;
}

class CorrectionTyped : public ::testing::TestWithParam<Typed> {};

TEST_P(CorrectionTyped, StandsInItsColumns) {
    const Typed& row = GetParam();
    const Correction correction = withTyped(contact("K9SKC"), row.box, row.text);
    EXPECT_EQ(correctionFields[row.box].column.of(correction.line), row.columns);
    EXPECT_EQ(correction.boxes[row.box], trim(row.columns));
    EXPECT_EQ(correction.cut, row.cut);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CorrectionTyped,
    ::testing::Values(
        Typed{"LowerCase_IsUpperCasedAndPadded", hisName, "  andr\xE9 ", "ANDR\xC9     ", ""},
        Typed{"TooLong_IsCutAndTold", hisName, "BARTHOLOMEW", "BARTHOLOME", "HIS NAME"},
        Typed{"BlanksAround_AreNotTooLong", hisName, "   BARTHOLOME   ", "BARTHOLOME", ""},
        Typed{"Separators_BecomeBlanks", hisName, "A,B\tC", "A B C     ", ""},
        Typed{"Emptied_IsBlank", hisName, "", "          ", ""},
        Typed{"FourDigits_StandToTheRight", frequency, "7045", " 7045", ""},
        Typed{"SixDigits_AreCut", frequency, "140450", "14045", "FREQUENCY"},
        Typed{"DupeNote_IsPaddedToSix", marker, "DUPE", "DUPE  ", ""},
        Typed{"K3yTag_FillsTheMarker", marker, "k3y/eu", "K3Y/EU", ""},
        Typed{"CallEdited_IsWritten", hisCall, "k9skc/qrp/7", "K9SKC/QRP/", "HIS CALL"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(Correction, AMarkerTakenAwayLeavesSixBlanks) {
    const std::string dupe = contact("K9SKC", "CLUB", "DUPE");
    EXPECT_EQ(withTyped(dupe, marker, "").line, contact("K9SKC"));
    EXPECT_EQ(withTyped(dupe, hisName, "NEW").line, contact("K9SKC", "NEW", "DUPE"));
}

TEST(Correction, AllBoxesThatWereTooLongAreTold) {
    const CorrectionBoxes shown = correctionBoxes("K9S", contact("K9SKC"));
    CorrectionBoxes typed = shown;
    typed[2] = "1234567";
    typed[3] = "TEXAS";
    EXPECT_EQ(corrected(contact("K9SKC"), shown, typed).cut, "HIS SKCC#, HIS STATE");
}

TEST(Correction, TheKeyIsNoCallUntilItIsEdited) {
    const std::string line = contact("K9SKC");
    const CorrectionBoxes shown = correctionBoxes("K9S", line);
    CorrectionBoxes typed = shown;
    typed[hisName] = "NEW";
    const Correction correction = corrected(line, shown, typed);
    EXPECT_EQ(correction.line, contact("K9SKC", "NEW"));
    EXPECT_EQ(correction.boxes[hisCall], "K9S");
    EXPECT_TRUE(keepsFindable(shown, typed));

    typed[hisCall] = " w9 ";
    EXPECT_FALSE(keepsFindable(shown, typed));
    typed[hisCall] = "w9a";
    EXPECT_TRUE(keepsFindable(shown, typed));
    EXPECT_EQ(corrected(line, shown, typed).line, contact("W9A", "NEW"));
}

} // namespace
} // namespace vantrel::test
