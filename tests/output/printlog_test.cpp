// SPDX-License-Identifier: MIT
#include "output/contacts.h"
#include "output/printlog.h"
#include "support/errors.h"

namespace vantrel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(PrintLog, EveryItemIsALineHeaderIncluded) {
    const std::string contact = line({});
    EXPECT_THAT(logPrintLines("SKS.CBR", logOf({contact})),
                ElementsAre("SKS.CBR", "", "Contest: SKS", "My Call: W1ABC", "My SKCC#: 1234T ",
                            "Count: 66 to HisCall", contact));
    EXPECT_THAT(logPrintLines("A.CBR", "QSO: A, B\n\nC"),
                ElementsAre("A.CBR", "", "QSO: A", "B", "", "C"));
    EXPECT_THAT(logPrintLines("A.CBR", ""), ElementsAre("A.CBR", ""));
}

TEST(PrintLog, TwelveThousandItemsAndNoMore) {
    std::string bytes;
    for (int i = 0; i < 12000; ++i)
        bytes += "X\r\n";
    EXPECT_EQ(logPrintLines("A.CBR", bytes).size(), 12002U);
    EXPECT_RUNTIME_ERROR(logPrintLines("A.CBR", bytes + "X\r\n"), ErrorCode::subscriptOutOfRange,
                         HasSubstr("12000"));
}

} // namespace
} // namespace vantrel::test
