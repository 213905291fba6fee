// SPDX-License-Identifier: MIT
// Splitting a file's bytes into comma-delimited items and into whole lines.
#include "shared/itemreader.h"
#include "support/errors.h"

#include <string>
#include <vector>

namespace vantrel::test {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using ::testing::_;
using ::testing::ElementsAre;

std::vector<std::string> itemsOf(std::string_view text) {
    std::vector<std::string> result;
    ItemReader reader(text);
    while (!reader.atEnd())
        result.emplace_back(reader.next());
    return result;
}

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> result;
    LineReader reader(text);
    while (!reader.atEnd())
        result.emplace_back(reader.next());
    return result;
}

struct ItemsRow {
    const char* name;
    std::string_view text;
    std::vector<std::string> items;
};

void PrintTo(const ItemsRow& row, std::ostream* out) {
    *out << row.name;
}

class Items : public ::testing::TestWithParam<ItemsRow> {};

TEST_P(Items, AreSplit) {
    EXPECT_EQ(itemsOf(GetParam().text), GetParam().items);
}

const ItemsRow itemsRows[] = {
    {"EmptyTextHasNone", "", {}},
    {"EndAtCommasAndAtBothKindsOfLineEnd", "a,b\r\nc\nd", {"a", "b", "c", "d"}},
    {"LoseLeadingBlanksAndKeepTrailingOnes", "  a ,  b  \r\n", {"a ", "b  "}},
    {"KeepTabs", "\ta\t", {"\ta\t"}},
    {"ABlankLineIsOneEmptyItem", "a\r\n\r\n   \r\nb\r\n", {"a", "", "", "b"}},
    {"AnItemMayBeEmptyOnEitherSideOfAComma", ",\r\na,\r\n", {"", "", "a", ""}},
    {"QuotedCommaDoesNotSplit", "\"a,b\",c\r\n", {"a,b", "c"}},
    {"QuotedItemKeepsItsBlanks", "  \" a \"\r\n", {" a "}},
    {"WhatFollowsTheClosingQuoteIsDropped", "\"a\"junk,b\r\n", {"a", "b"}},
    {"UnclosedQuoteEndsWithItsLine", "\"a,b\r\nc\r\n", {"a,b", "c"}},
    {"QuoteInsideAnItemIsAnOrdinaryCharacter", "a\"b,c\"\r\n", {"a\"b", "c\""}},
    {"NulsAreOrdinaryCharacters", "a\0b,\0\r\n"sv, {"a\0b"s, "\0"s}},
    {"ReturnInsideALineIsAnOrdinaryCharacter", "a\rb\r\n", {"a\rb"}},
};

INSTANTIATE_TEST_SUITE_P(ItemReader, Items, ::testing::ValuesIn(itemsRows),
                         [](const auto& row) { return row.param.name; });

TEST(ItemReader, TellsTheLineOfTheLastItem) {
    ItemReader reader("a,b\r\n\r\nc");
    std::vector<int> lines;
    while (!reader.atEnd()) {
        reader.next();
        lines.push_back(reader.line());
    }
    EXPECT_THAT(lines, ElementsAre(1, 1, 2, 3));
}

TEST(ItemReader, ReadingPastTheEndIsAnError) {
    ItemReader items("a");
    items.next();
    EXPECT_RUNTIME_ERROR(items.next(), ErrorCode::inputPastEnd, _);
    LineReader lines("");
    EXPECT_RUNTIME_ERROR(lines.next(), ErrorCode::inputPastEnd, _);
}

TEST(LineReader, GivesWholeLinesWithoutTheirEnds) {
    EXPECT_THAT(linesOf("  a,\"b\" \r\n\r\nc\n\nd"), ElementsAre("  a,\"b\" ", "", "c", "", "d"));
    EXPECT_THAT(linesOf("a\r\n"), ElementsAre("a"));
    EXPECT_THAT(linesOf("a\r\r\nb\rc\n"), ElementsAre("a\r", "b\rc"));
}

} // namespace
} // namespace vantrel::test
