// SPDX-License-Identifier: MIT
#include "base/fixedtext.h"
#include "k3y/k3ylines.h"
#include "log/qsoline.h"
#include "log/log.h"
#include "screens/main/dupecheckk3y.h"

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

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
        QsoTable table;
        table.refill(k3yLog({k3yLine("N0BODY", "14050", "1T"), row.logged}));
        EXPECT_EQ(isK3yDupe(table, row.assembled), row.dupe);
        // What SEARCH holds in its boxes at that time.
        EXPECT_EQ(isK3yDupe(table, trim(qso::hisCall.of(row.assembled)),
                            qso::hisNumber.of(row.assembled), qso::bandTag.of(row.assembled)),
                  row.dupe);
    }
}

TEST(K3yDupe, ALookedUpNumberBeyondItsColumnsIsCutAsInTheLog) {
    QsoTable table;
    table.refill(k3yLog({k3yLine("K3Y/1", "14050", "123456")}));
    EXPECT_TRUE(isK3yDupe(table, "K3Y/1", "1234567   ", "14"));
    EXPECT_FALSE(isK3yDupe(table, "K3Y/1", "", "14"));
}

} // namespace
} // namespace vantrel::test
