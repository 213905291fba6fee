// SPDX-License-Identifier: MIT
#include "k3y/k3ylines.h"
#include "log/qsoline.h"
#include "screens/main/bandring.h"
#include "screens/main/dupecheck.h"
#include "screens/main/workedbefore.h"
#include "support/contacts.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace vantrel::test {
namespace {

TEST(Duplicate, IsSameBandAndCallBeginningWithWhatIsTyped) {
    const std::string on20 = contactLine({.frequency = "14050", .hisCall = "K1ABC"});
    const std::string on40 = contactLine({.frequency = " 7040", .hisCall = "W1AW/4"});
    const Contacts contacts{on20, on40};
    EXPECT_FALSE(duplicateOf(contacts, "K1AB", "14").empty());       // a prefix is enough
    EXPECT_FALSE(duplicateOf(contacts, "K1ABC     ", "14").empty()); // as a member number yields it
    EXPECT_FALSE(duplicateOf(contacts, "W1AW", " 7").empty());
    EXPECT_TRUE(duplicateOf(contacts, "K1ABCD", "14").empty());
    EXPECT_TRUE(duplicateOf(contacts, "K1ABC", " 7").empty());
    EXPECT_TRUE(duplicateOf(contacts, "k1abc", "14").empty());
}

TEST(K3yDupe, IsTheSameCallNumberAndBand) {
    struct Row {
        const char* name;
        std::string logged;
        std::string assembled;
        bool dupe;
    };
    const std::string logged = k3yLine("K3Y/1", "14050", "55C", "K3Y/EU");
    const Row rows[] = {
        {"same end, another tag", logged, k3yLine("K3Y/1", "14062", "55C", "DUPE"), true},
        {"another band", logged, k3yLine("K3Y/1", "7050", "55C"), false},
        {"another operator", logged, k3yLine("K3Y/1", "14050", "55"), false},
        {"a longer call", logged, k3yLine("K3Y/1/P", "14050", "55C"), false},
        // Unlike the ordinary check, the start of a call is not the call.
        {"a shorter call", logged, k3yLine("K3Y/", "14050", "55C"), false},
        {"the logged line lost its last blanks", logged.substr(0, 98),
         k3yLine("K3Y/1", "14050", "55C"), true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const std::string other = k3yLine("N0BODY", "14050", "1T");
        const Contacts contacts{other, row.logged};
        EXPECT_EQ(isK3yDupe(contacts, row.assembled), row.dupe);
        // What SEARCH holds in its boxes at that time.
        EXPECT_EQ(isK3yDupe(contacts, trim(qso::hisCall.of(row.assembled)),
                            qso::hisNumber.of(row.assembled), qso::bandTag.of(row.assembled)),
                  row.dupe);
    }
}

TEST(K3yDupe, ALookedUpNumberBeyondItsColumnsIsCutAsInTheLog) {
    const std::string logged = k3yLine("K3Y/1", "14050", "123456");
    const Contacts contacts{logged};
    EXPECT_TRUE(isK3yDupe(contacts, "K3Y/1", "1234567   ", "14"));
    EXPECT_FALSE(isK3yDupe(contacts, "K3Y/1", "", "14"));
}

TEST(WorkedBefore, GrowsWithTheCallAndNamesEachBandOnce) {
    std::string log;
    for (const auto& [call, khz] :
         {std::pair{"K1ABC", "14050"}, std::pair{"K1ABD", " 3550"}, std::pair{"W1AW", " 7040"},
          std::pair{"K1ABC", " 7040"}, std::pair{"K1ABC", "14060"}, std::pair{"K1ABC", "50125"}})
        log += contactLine({.frequency = khz, .hisCall = call}) + "\r\n";
    const Contacts contacts = contactsIn(log);
    EXPECT_EQ(workedBefore(contacts, "K", 80), "");
    EXPECT_EQ(workedBefore(contacts, "K1", 80), "K1ABC 20 40 50125  K1ABD 80");
    EXPECT_EQ(workedBefore(contacts, "K1ABC", 80), "K1ABC 20 40 50125");
    EXPECT_EQ(workedBefore(contacts, "K1ABCD", 80), "");
    EXPECT_EQ(workedBefore(contacts, "K1", 20), "K1ABC 20 40 50125...");
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
