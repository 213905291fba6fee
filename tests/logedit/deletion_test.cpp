// SPDX-License-Identifier: MIT
#include "logedit/deletion.h"
#include "logedit/loglines.h"

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

TEST(Deletion, ShowsTheContactInItsTwoLabels) {
    EXPECT_EQ(deletionCallText(contact("K9SKC")), "K9SKC       CLUB       IL  5000S ");
    EXPECT_EQ(deletionDetailText(contact("K9SKC", "CLUB", "K3Y/EU")),
              "14050 MHz CW 2011-06-16 0012 K3Y/EU");
    EXPECT_EQ(deletionDetailText(contact("K9SKC", "CLUB", "DUPE")),
              "14050 MHz CW 2011-06-16 0012 DUPE");
}

TEST(Deletion, ShowsWhatThereIsOfAShortLine) {
    EXPECT_EQ(deletionCallText("QSO:"), "");
    EXPECT_EQ(deletionDetailText(left(contact("K9SKC"), 18)), "14050 MHz CW 2011 ");
}

} // namespace
} // namespace vantrel::test
