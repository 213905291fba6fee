// SPDX-License-Identifier: MIT
#include "screens/main/workedbefore.h"
#include "shared/qsotable.h"
#include "support/contacts.h"

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

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

} // namespace
} // namespace vantrel::test
