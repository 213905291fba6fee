// SPDX-License-Identifier: MIT
#include "output/score/bonuscount.h"
#include "output/score/contacts.h"
#include "support/errors.h"

namespace vantrel::test {
namespace {

using ::testing::HasSubstr;

int total(const std::vector<std::string>& lines) {
    return countBonusPoints(views(lines)).value();
}

std::string named(const std::string& name, const std::string& call = "K1ABC") {
    return line({.call = call, .name = name});
}

TEST(BonusCount, TheNumberAfterTheSlash) {
    EXPECT_EQ(total({named("JOHN"), named("/10")}), 10);
    EXPECT_EQ(total({named("JOHN/ 25 X")}), 25);
    EXPECT_EQ(total({named("JOHN/-5"), named("AL/7", "K2A")}), 2);
    EXPECT_EQ(total({"QSO: 14050 CW"}), 0); // a line cut short has no name
}

TEST(BonusCount, AStationCountsOnceWithItsFirstSlash) {
    EXPECT_EQ(total({named("JOHN/25"), named("JOHN/30")}), 25);
    EXPECT_EQ(total({named("JOHN/5/6")}), 5);
    EXPECT_EQ(total({named("ABCDEFGHI/"), named("JOHN/30")}), 0);
    EXPECT_EQ(total({named("JOHN"), named("JOHN/30")}), 30);
    EXPECT_EQ(total({named("JOHN/1", "K1AB"), named("JOHN/2", "K1ABC")}), 3);
    // The blank after the call belongs to the key.
    std::string touching = named("JOHN/4");
    touching[75] = 'X';
    EXPECT_EQ(total({named("JOHN/3"), touching}), 7);
    EXPECT_EQ(total({line({.name = "JOHN/9", .marker = "DUPE"})}), 9);
}

TEST(BonusCount, LimitsAreRunTimeErrors) {
    std::vector<std::string> lines;
    for (int i = 1; i <= 200; ++i)
        lines.push_back(named("A/1", "K" + std::to_string(i)));
    lines.push_back(named("A/1", "K1"));
    EXPECT_EQ(total(lines), 200);
    lines.push_back(named("A/1", "K201"));
    EXPECT_RUNTIME_ERROR(total(lines), ErrorCode::subscriptOutOfRange, HasSubstr("at most 200"));

    EXPECT_EQ(total({named("A/32767")}), 32767);
    EXPECT_RUNTIME_ERROR(total({named("A/32768")}), ErrorCode::overflow, HasSubstr("32768"));
    EXPECT_RUNTIME_ERROR(total({named("A/32767"), named("A/1", "K2")}), ErrorCode::overflow,
                         HasSubstr("32768"));
}

} // namespace
} // namespace vantrel::test
