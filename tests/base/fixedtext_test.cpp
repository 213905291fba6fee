// SPDX-License-Identifier: MIT
#include "base/fixedtext.h"
#include "support/errors.h"

namespace vantrel::test {
namespace {

using ::testing::HasSubstr;

TEST(FixedText, ColumnsBeyondTheEndAreShortOrEmpty) {
    EXPECT_EQ(mid("ABCDE", 2, 3), "BCD");
    EXPECT_EQ(mid("ABCDE", 4, 9), "DE");
    EXPECT_EQ(mid("ABCDE", 6, 1), "");
    EXPECT_EQ(right("ABCDE", 2), "DE");
    EXPECT_EQ(right("A", 6), "A");
}

// Capitals: e acute, o slash, thorn; not division sign, sharp s, y with diaeresis.
TEST(FixedText, OneByteIsOneColumn) {
    EXPECT_EQ(upper("az\xE9\xF8\xFE\xF7\xDF\xFF 9"), "AZ\xC9\xD8\xDE\xF7\xDF\xFF 9");
    EXPECT_EQ(trim(" \ta b  "), "\ta b") << "only blanks are trimmed";
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(withoutSeparators(std::string_view("A,B\tC\r\n\0D\"\x7F", 11)), "A B C   D\" ");
    EXPECT_EQ(withoutSeparatorsAndQuotes("A,\"B\""), "A  B ");
}

TEST(FixedText, PaddingCannotShorten) {
    EXPECT_EQ(padded("MA", 3, "the state"), "MA ");
    EXPECT_EQ(padded("MAX", 3, "the state"), "MAX");
    EXPECT_RUNTIME_ERROR(padded("MAXI", 3, "the state"), ErrorCode::invalidCall,
                         HasSubstr("the state"));
    EXPECT_EQ(leftAligned("ABCDEFGHIJK", 10), "ABCDEFGHIJ");
    EXPECT_EQ(rightAligned("7040", 5), " 7040");
    EXPECT_EQ(rightAligned("140500", 5), "14050");
}

TEST(FixedText, NumericReadingStopsAtTheFirstOtherCharacter) {
    EXPECT_EQ(numericValue("0123T"), 123);
    EXPECT_EQ(numericValue("  -5x"), -5);
    EXPECT_EQ(numericValue("+7"), 7);
    for (const char* none : {"T12", "", "-", "--3"})
        EXPECT_EQ(numericValue(none), 0) << none;
    EXPECT_RUNTIME_ERROR(numericValue("99999999999999999999"), ErrorCode::overflow,
                         HasSubstr("99999999999999999999"));
}

} // namespace
} // namespace vantrel::test
