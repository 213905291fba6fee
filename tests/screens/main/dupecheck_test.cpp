// SPDX-License-Identifier: MIT
#include "screens/main/bandring.h"
#include "screens/main/dupecheck.h"
#include "screens/main/workedbefore.h"
#include "shared/module1.h"
#include "support/contacts.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace vantrel::test {
namespace {

TEST(Duplicate, IsSameBandAndCallBeginningWithWhatIsTyped) {
    QsoTable table;
    table.refill(contactLine({.frequency = "14050", .hisCall = "K1ABC"}) + "\r\n" +
                 contactLine({.frequency = " 7040", .hisCall = "W1AW/4"}) + "\r\n");
    EXPECT_TRUE(isDuplicate(table, "K1AB", "14"));       // a prefix is enough
    EXPECT_TRUE(isDuplicate(table, "K1ABC     ", "14")); // as a member number yields it
    EXPECT_TRUE(isDuplicate(table, "W1AW", " 7"));
    EXPECT_FALSE(isDuplicate(table, "K1ABCD", "14"));
    EXPECT_FALSE(isDuplicate(table, "K1ABC", " 7"));
    EXPECT_FALSE(isDuplicate(table, "k1abc", "14"));
}

TEST(WorkedBefore, GrowsWithTheCallAndNamesEachBandOnce) {
    QsoTable table;
    std::string log;
    for (const auto& [call, khz] :
         {std::pair{"K1ABC", "14050"}, std::pair{"K1ABD", " 3550"}, std::pair{"W1AW", " 7040"},
          std::pair{"K1ABC", " 7040"}, std::pair{"K1ABC", "14060"}, std::pair{"K1ABC", "50125"}})
        log += contactLine({.frequency = khz, .hisCall = call}) + "\r\n";
    table.refill(log);
    EXPECT_EQ(workedBefore(table, "K", 80), "");
    EXPECT_EQ(workedBefore(table, "K1", 80), "K1ABC 20 40 50125  K1ABD 80");
    EXPECT_EQ(workedBefore(table, "K1ABC", 80), "K1ABC 20 40 50125");
    EXPECT_EQ(workedBefore(table, "K1ABCD", 80), "");
    EXPECT_EQ(workedBefore(table, "K1", 20), "K1ABC 20 40 50125...");
}

TEST(BandRing, WalksTheSixBandsBothWays) {
    const std::vector<std::pair<const char*, const char*>> ring{
        {"160 Meters", "1.820"},  {"80 Meters ", "3.550"},  {"40 Meters ", "7.050"},
        {"20 Meters ", "14.050"}, {"15 Meters ", "21.050"}, {"10 Meters ", "28.050"}};
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const auto& [text, mhz] = ring[(i + 1) % ring.size()];
        EXPECT_EQ(bandUp(ring[i].first).text, text);
        EXPECT_EQ(bandUp(ring[i].first).defaultFrequency, mhz);
        EXPECT_EQ(bandDown(text).text, ring[i].first);
    }
    EXPECT_EQ(bandUp("").text, "160 Meters");
    EXPECT_EQ(bandDown("").text, "160 Meters");
}

} // namespace
} // namespace vantrel::test
