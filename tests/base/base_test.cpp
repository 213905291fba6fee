// SPDX-License-Identifier: MIT
#include "base/itemreader.h"
#include "support/testing.h"

namespace vantrel::test {
namespace {

TEST(FixedText, OneByteIsOneColumnAndWhatIsBeyondTheEndIsShortOrEmpty) {
    std::string parts;
    for (const auto part : {mid("ABCDE", 2, 3), mid("ABCDE", 4, 9), mid("ABCDE", 6, 1),
                            right("ABCDE", 2), right("A", 6), trim(" \ta b  "), trim("   ")})
        parts.append(part) += '|';
    EXPECT_EQ(parts, "BCD|DE||DE|A|\ta b||");
    // Capitals: e acute, o slash, thorn; not division sign, sharp s, y with diaeresis.
    EXPECT_EQ(upper("az`{\xE0\xE9\xF8\xFE\xF7\xDF\xFF 9"), "AZ`{\xC0\xC9\xD8\xDE\xF7\xDF\xFF 9");
    EXPECT_EQ(withoutSeparatorsAndQuotes("A,B\tC\rD\"\x1F\x7F"), "A B C D   ");
    EXPECT_EQ(vantrel::padded("MAX", 3, "") + rightAligned("7040", 5) + leftAligned("ABC", 2),
              "MAX 7040AB");
    EXPECT_RUNTIME_ERROR(vantrel::padded("MAXI", 3, "the state"), ErrorCode::invalidCall,
                         "the state is longer than 3 characters: \"MAXI\"");
    EXPECT_EQ(countCapitals("@AZ["), 2);
    EXPECT_RUNTIME_ERROR(numericValue("99999999999999999999"), ErrorCode::overflow,
                         "the number 99999999999999999999");
}

std::string allOf(std::string_view text) {
    std::string result;
    ItemReader reader(text);
    while (!reader.atEnd())
        result.append(reader.next()) += '|';
    EXPECT_RUNTIME_ERROR(reader.next(), ErrorCode::inputPastEnd, HasSubstr("line"));
    return result;
}

// Leading blanks go, trailing ones and tabs stay, a blank line is an item; quotes keep commas
// and blanks up to the end of the line, what follows them is dropped; a lone CR is ordinary.
TEST(Readers, SplitAtLineEndsAndItemsAtCommasOutsideQuotes) {
    EXPECT_EQ(allOf(""), "");
    EXPECT_EQ(allOf("  a ,\tb  \r\n\r\n   \nc,\r\n  \" d,e \"junk,f\r\n\"g,h\ni\"j\rk"),
              "a |\tb  |||c|| d,e |f|g,h|i\"j\rk|");
    EXPECT_THAT(linesOf("  a,\"b\" \r\n\r\nc\na\r\r\nb\rd"),
                ::testing::ElementsAre("  a,\"b\" ", "", "c", "a\r", "b\rd"));
}

} // namespace
} // namespace vantrel::test
