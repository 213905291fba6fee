// SPDX-License-Identifier: MIT
// Splitting a file's bytes into comma-delimited items and into whole lines.
#include "base/itemreader.h"
#include "support/errors.h"

#include <string>
#include <vector>

namespace vantrel::test {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using ::testing::_;
using ::testing::ElementsAre;

template <typename Reader>
std::vector<std::string> allOf(std::string_view text) {
    std::vector<std::string> result;
    Reader reader(text);
    while (!reader.atEnd())
        result.emplace_back(reader.next());
    EXPECT_RUNTIME_ERROR(reader.next(), ErrorCode::inputPastEnd, _);
    return result;
}

TEST(ItemReader, SplitsAtCommasAndLineEndsOutsideQuotes) {
    const struct {
        const char* rule;
        std::string_view text;
        std::vector<std::string> items;
    } rows[] = {
        {"empty text has none", "", {}},
        {"both kinds of line end, and none at the end", "a,b\r\nc\nd", {"a", "b", "c", "d"}},
        {"leading blanks go, trailing ones and tabs stay", "  a ,\tb  \r\n", {"a ", "\tb  "}},
        {"a blank line is one empty item", "a\r\n\r\n   \r\nb\r\n", {"a", "", "", "b"}},
        {"empty on either side of a comma", ",\r\na,\r\n", {"", "", "a", ""}},
        {"quotes keep commas and blanks", "  \" a,b \",c\r\n", {" a,b ", "c"}},
        {"what follows the closing quote is dropped", "\"a\"junk,b\r\n", {"a", "b"}},
        {"an unclosed quote ends with its line", "\"a,b\r\nc\r\n", {"a,b", "c"}},
        {"a quote inside is ordinary", "a\"b,c\"\r\n", {"a\"b", "c\""}},
        {"NUL and a lone CR are ordinary", "a\0b,\0\rc\r\n"sv, {"a\0b"s, "\0\rc"s}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(allOf<ItemReader>(row.text), row.items) << row.rule;
}

TEST(LineReader, GivesWholeLinesWithoutTheirEnds) {
    EXPECT_THAT(allOf<LineReader>("  a,\"b\" \r\n\r\nc\n\nd"),
                ElementsAre("  a,\"b\" ", "", "c", "", "d"));
    EXPECT_THAT(allOf<LineReader>("a\r\r\nb\rc\n"), ElementsAre("a\r", "b\rc"));
}

} // namespace
} // namespace vantrel::test
