// SPDX-License-Identifier: MIT
#include "screens/main/bandring.h"
#include "screens/main/dupecheck.h"
#include "shared/module1.h"
#include "support/contacts.h"

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

TEST(Duplicate, IsSameBandAndCallBeginningWithWhatIsTyped) {
    QsoTable table;
    table.refill(contactLine({.frequency = "14050", .hisCall = "K1ABC"}) + "\r\n" +
                 contactLine({.frequency = " 7040", .hisCall = "W1AW/4"}) + "\r\n");
    EXPECT_TRUE(isDuplicate(table, "K1ABC", "14"));
    EXPECT_TRUE(isDuplicate(table, "K1AB", "14"));       // a prefix is enough
    EXPECT_TRUE(isDuplicate(table, "K1ABC     ", "14")); // as a member number yields it
    EXPECT_FALSE(isDuplicate(table, "K1ABCD", "14"));
    EXPECT_FALSE(isDuplicate(table, "K1ABC/4", "14"));
    EXPECT_FALSE(isDuplicate(table, "K1ABC", " 7"));
    EXPECT_FALSE(isDuplicate(table, "k1abc", "14"));
    EXPECT_TRUE(isDuplicate(table, "W1AW", " 7"));
    table.clear();
    EXPECT_FALSE(isDuplicate(table, "K1ABC", "14"));
}

TEST(DupeMode, DecidesWhetherTheContactGoesOn) {
    Module1 module;
    module.marker = "K3Y/EU";
    EXPECT_TRUE(settleDupe(module));
    EXPECT_EQ(module.marker, noMarker) << "each check resets the marker";

    module.dupeFlag = true;
    module.settings.dupeMode = "NO";
    EXPECT_FALSE(settleDupe(module));
    EXPECT_EQ(module.marker, noMarker);
    EXPECT_FALSE(module.dupeFlag);

    module.dupeFlag = true;
    module.settings.dupeMode = "YES";
    EXPECT_TRUE(settleDupe(module));
    EXPECT_EQ(module.marker, "DUPE");
    EXPECT_FALSE(module.dupeFlag);

    resetDupeMarker(module);
    EXPECT_EQ(module.marker, noMarker);
    module.marker = "K3Y/EU";
    resetDupeMarker(module);
    EXPECT_EQ(module.marker, "K3Y/EU") << "a tag stays until the next search or choice";
}

TEST(BandRing, WalksTheSixBandsBothWays) {
    std::string up, down;
    std::string_view at = "20 Meters ";
    for (int step = 0; step < 6; ++step) {
        const Band& band = bandUp(at);
        up += std::string(band.text) + band.defaultFrequency.data() + ';';
        at = band.text;
    }
    for (int step = 0; step < 6; ++step) {
        const Band& band = bandDown(at);
        down += std::string(band.text) + ';';
        at = band.text;
    }
    EXPECT_EQ(up, "15 Meters 21.050;10 Meters 28.050;160 Meters1.820;80 Meters 3.550;"
                  "40 Meters 7.050;20 Meters 14.050;");
    EXPECT_EQ(down, "40 Meters ;80 Meters ;160 Meters;10 Meters ;15 Meters ;20 Meters ;");
    EXPECT_EQ(bandUp("").text, "160 Meters");
    EXPECT_EQ(bandDown("").text, "160 Meters");
}

} // namespace
} // namespace vantrel::test
