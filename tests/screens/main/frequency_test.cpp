// SPDX-License-Identifier: MIT
#include "screens/main/frequency.h"

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

struct Row {
    const char* name;
    const char* typed;
    const char* expected;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

std::string nameOf(const ::testing::TestParamInfo<Row>& info) {
    return info.param.name;
}

class FrequencyBox : public ::testing::TestWithParam<Row> {};

TEST_P(FrequencyBox, IsBroughtToMegahertz) {
    EXPECT_EQ(frequencyAsEntered(GetParam().typed), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Entries, FrequencyBox,
    ::testing::Values(
        Row{"FourDigitsOn160", "1820", "1.820"}, Row{"FourDigitsOn160High", "1999", "1.999"},
        Row{"FourDigitsOn80", "3550", "3.550"}, Row{"FourDigitsOn40", "7040", "7.040"},
        Row{"FourDigitsElsewhere_Stay", "1700", "1700"}, Row{"FiveDigitsOn30", "10120", "10.120"},
        Row{"FiveDigitsOn20", "14050", "14.050"}, Row{"FiveDigitsOn17", "18080", "18.080"},
        Row{"FiveDigitsOn15", "21050", "21.050"}, Row{"FiveDigitsOn12", "24900", "24.900"},
        Row{"FiveDigitsOn10", "28050", "28.050"}, Row{"FiveDigitsElsewhere_Stay", "50125", "50125"},
        Row{"OneDecimal_IsFilled", "7.0", "7.000"}, Row{"PointAlone_IsFilled", "14.", "14.000"},
        Row{"FourDecimals_AreCut", "3.5605", "3.560"},
        Row{"WholeMegahertz_StayForSearch", "14", "14"}, Row{"Empty_Stays", "", ""},
        Row{"LonePoint_Stays", ".", "."}, Row{"TwoPoints_Stay", "14.05.0", "14.05.0"},
        Row{"Letters_Stay", "QRL", "QRL"}, Row{"LetterInside_Stays", "14.O50", "14.O50"},
        Row{"BlanksAround_AreDropped", " 7040 ", "7.040"}),
    nameOf);

class Completion : public ::testing::TestWithParam<Row> {};

TEST_P(Completion, FillsShortEntriesOnly) {
    EXPECT_EQ(completedFrequency(GetParam().typed), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Entries, Completion,
                         ::testing::Values(Row{"OneDigit", "7", "7.000"},
                                           Row{"DigitAndPoint", "7.", "7.000"},
                                           Row{"TwoDigits", "14", "14.000"},
                                           Row{"ThreeCharacters_GetTwoZeros", "14.", "14.00"},
                                           Row{"OneDecimal", "7.0", "7.000"},
                                           Row{"TwoDecimals_GetOneTooMany", "7.04", "7.0400"},
                                           Row{"Complete_Stays", "7.040", "7.040"},
                                           Row{"Empty_Stays", "", ""}),
                         nameOf);

class KhzField : public ::testing::TestWithParam<Row> {};

TEST_P(KhzField, IsFiveColumnsRightAligned) {
    EXPECT_EQ(khzField(GetParam().typed), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Fields, KhzField,
                         ::testing::Values(Row{"Forty", "7.040", " 7040"},
                                           Row{"Twenty", "14.050", "14050"},
                                           Row{"FourDecimals_AreCut", "3.5605", " 3560"},
                                           Row{"FilledByCompletion", "7.0400", " 7040"},
                                           Row{"TypedKilohertz", "50125", "50125"},
                                           Row{"TooLong_IsCut", "145.500", "145.5"}),
                         nameOf);

TEST(LoggableKhz, HoldsBlanksAndADigitOnly) {
    EXPECT_TRUE(isLoggableKhz(" 7040"));
    EXPECT_TRUE(isLoggableKhz("14050"));
    EXPECT_FALSE(isLoggableKhz("145.5"));
    EXPECT_FALSE(isLoggableKhz("     "));
    EXPECT_FALSE(isLoggableKhz("QRL  "));
    EXPECT_FALSE(isLoggableKhz(""));
    EXPECT_FALSE(isLoggableKhz("7040")); // would shift every column behind it
}

TEST(SprintBands, RefuseOnlyTheThreeOthers) {
    EXPECT_TRUE(isOutsideSprintBands("10.120"));
    EXPECT_TRUE(isOutsideSprintBands("18.080"));
    EXPECT_TRUE(isOutsideSprintBands("24.900"));
    EXPECT_FALSE(isOutsideSprintBands("1.810"));
    EXPECT_FALSE(isOutsideSprintBands("21.050"));
}

TEST(BandTag, IsWhatTheKhzFieldBeginsWith) {
    for (const char* mhz : {"1.820", "3.550", "7.040", "10.120", "14.050", "28.050"})
        EXPECT_EQ(bandTagOf(mhz), khzField(mhz).substr(0, 2)) << mhz;
}

} // namespace
} // namespace vantrel::test
