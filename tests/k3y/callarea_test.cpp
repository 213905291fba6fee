// SPDX-License-Identifier: MIT
#include "k3y/callarea.h"

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

TEST(CallArea, ItemsEndInTheirCodeAndOceaniaHasATab) {
    for (const CallArea& area : callAreas)
        EXPECT_TRUE(area.item.ends_with(area.code)) << area.item;
    EXPECT_EQ(callAreas[9].code, "00"); // after 09, not "10"
    EXPECT_EQ(callAreas[18].item, "Oceania\t   OC");
}

TEST(CallArea, LogNameHasDateAreaAndTheCallWithoutItsSlash) {
    EXPECT_EQ(k3yLogName("2010-01-05", "03", "W1ABC"), "2010-01-05-K3Y-03-W1ABC.CBR");
    EXPECT_EQ(k3yLogName("02-01-2010", "KH", "kh6/w1abc/p"), "02-01-2010-K3Y-KH-KH6-W1ABC-P.CBR");
}

} // namespace
} // namespace vantrel::test
