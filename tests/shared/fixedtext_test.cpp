// SPDX-License-Identifier: MIT
#include "shared/fixedtext.h"
#include "support/errors.h"

namespace vantrel::test {
namespace {

using ::testing::HasSubstr;

TEST(FixedText, ColumnsBeyondTheEndAreShortOrEmpty) {
    EXPECT_EQ(mid("ABCDE", 2, 3), "BCD");
    EXPECT_EQ(mid("ABCDE", 4, 9), "DE");
    EXPECT_EQ(mid("ABCDE", 6, 1), "");
    EXPECT_EQ(mid("ABCDE", 66, 10), "");
    EXPECT_EQ(mid("ABCDE", 1, 0), "");
    EXPECT_EQ(right("ABCDE", 2), "DE");
    EXPECT_EQ(right("A", 6), "A");
}

TEST(FixedText, OnlyBlanksAreTrimmed) {
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trim("\ta "), "\ta");
}

TEST(FixedText, AccentedLettersHaveTheirCapitalsOneByteEach) {
    // e acute, o slash, division sign, sharp s, y with diaeresis
    EXPECT_EQ(upper("ab\xE9\xF8\xF7\xDF\xFF z9"), "AB\xC9\xD8\xF7\xDF\xFF Z9");
}

TEST(FixedText, PaddingCannotShorten) {
    EXPECT_EQ(padRight("MA", 3, "the state"), "MA ");
    EXPECT_EQ(padRight("MAX", 3, "the state"), "MAX");
    EXPECT_RUNTIME_ERROR(padRight("MAXI", 3, "the state"), ErrorCode::invalidCall,
                         HasSubstr("the state"));
    EXPECT_EQ(fitLeft("ABCDEFGHIJK", 10), "ABCDEFGHIJ");
    EXPECT_EQ(fitRight("7040", 5), " 7040");
    EXPECT_EQ(fitRight("140500", 5), "14050");
}

TEST(FixedText, SeparatorsBecomeBlanksOneForOne) {
    EXPECT_EQ(withoutSeparators(std::string_view("A,B\tC\r\n\0D\"", 10)), "A B C   D\"");
    EXPECT_EQ(withoutSeparatorsAndQuotes("A,\"B\""), "A  B ");
}

TEST(FixedText, NumericReadingStopsAtTheFirstOtherCharacter) {
    EXPECT_EQ(numericValue("0123T"), 123);
    EXPECT_EQ(numericValue("  -5x"), -5);
    EXPECT_EQ(numericValue("+7"), 7);
    EXPECT_EQ(numericValue("T12"), 0);
    EXPECT_EQ(numericValue(""), 0);
    EXPECT_EQ(numericValue("-"), 0);
    EXPECT_EQ(numericValue("--3"), 0);
    EXPECT_RUNTIME_ERROR(numericValue("99999999999999999999"), ErrorCode::overflow,
                         HasSubstr("99999999999999999999"));
}

} // namespace
} // namespace vantrel::test
