// SPDX-License-Identifier: MIT
#include "fakes/failingcalls.h"
#include "k3y/dupecheckk3y.h"
#include "k3y/k3ylines.h"
#include "platform/files.h"
#include "screens/main/qsoentry.h"
#include "shared/module1.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <cerrno>

namespace vantrel::test {
namespace {

using ::testing::HasSubstr;

struct Row {
    const char* name;
    std::string logged;
    std::string assembled;
    bool dupe;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

class K3yDupe : public ::testing::TestWithParam<Row> {};

TEST_P(K3yDupe, IsTheSameCallNumberAndBand) {
    QsoTable table;
    table.refill(k3yLog({k3yLine("N0BODY", "14050", "1T"), GetParam().logged}));
    EXPECT_EQ(isK3yDupe(table, GetParam().assembled), GetParam().dupe);
    // What SEARCH holds in its boxes at that time.
    const std::string& line = GetParam().assembled;
    EXPECT_EQ(isK3yDupe(table, trim(qso::hisCall.of(line)), qso::hisNumber.of(line),
                        qso::bandTag.of(line)),
              GetParam().dupe);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, K3yDupe,
    ::testing::Values(
        Row{"SameEnd", k3yLine("K3Y/1", "14050", "55C"), k3yLine("K3Y/1", "14062", "55C"), true},
        Row{"AnotherBand", k3yLine("K3Y/1", "14050"), k3yLine("K3Y/1", "7050"), false},
        Row{"AnotherOperator", k3yLine("K3Y/1", "14050", "55C"), k3yLine("K3Y/1", "14050", "55"),
            false},
        Row{"ALongerCall", k3yLine("K3Y/1", "14050"), k3yLine("K3Y/1/P", "14050"), false},
        // Unlike the ordinary check, the start of a call is not the call.
        Row{"AShorterCall", k3yLine("K3Y/KH6", "14050"), k3yLine("K3Y/KH", "14050"), false},
        Row{"TheTagsDoNotMatter", k3yLine("GB0SKC", "7030", "1T", "K3Y/EU"),
            k3yLine("GB0SKC", "7030", "1T", "DUPE"), true},
        Row{"TheLoggedLineLostItsLastBlanks", k3yLine("K3Y/1", "14050", "55C").substr(0, 98),
            k3yLine("K3Y/1", "14050", "55C"), true}),
    [](const auto& tested) { return tested.param.name; });

TEST(K3yDupe, ALookedUpNumberBeyondItsColumnsIsCutAsInTheLog) {
    QsoTable table;
    table.refill(k3yLog({k3yLine("K3Y/1", "14050", "123456")}));
    EXPECT_TRUE(isK3yDupe(table, "K3Y/1", "1234567   ", "14"));
    EXPECT_FALSE(isK3yDupe(table, "K3Y/1", "", "14"));
}

class LogTheDupe : public ::testing::Test {
protected:
    LogTheDupe() {
        module.settings.logFileName = "K3Y.CBR";
        module.marker = "K3Y/EU";
        module.currentLine = k3yLine("GB0SKC", "14060", "1T", "K3Y/EU");
    }

    void start(const std::vector<std::string>& logged) {
        folder.write("K3Y.CBR", k3yLog(logged));
        openLog(module, files);
    }

    TempFolder folder;
    FailingCalls calls;
    Files files{folder.string(), calls};
    Module1 module;
    const std::string first = k3yLine("GB0SKC", "14050", "1T", "K3Y/EU");
    const std::string dupe = k3yLine("GB0SKC", "14060", "1T", "DUPE");
};

TEST_F(LogTheDupe, ReplacesTheTagAndBringsFileTableAndListUpToDate) {
    start({first});
    logTheDupe(module, files);
    bringUpToDate(module, files);
    EXPECT_EQ(folder.read("K3Y.CBR"), k3yLog({first, dupe}));
    EXPECT_EQ(dupe.size(), 105U);
    EXPECT_EQ(module.currentLine, dupe);
    EXPECT_EQ(module.qsoTable.count().value(), 2);
    EXPECT_EQ(folder.read("StnsWorked.TXT"),
              "GB0SKC    | BILL      |1T     | IL  | 14050 | 0012 | 2011-06-16|K3Y/EU\r\n"
              "GB0SKC    | BILL      |1T     | IL  | 14060 | 0012 | 2011-06-16|DUPE\r\n");
    EXPECT_EQ(joinLines(module.workedStations.entries()), folder.read("StnsWorked.TXT"));
    EXPECT_EQ(module.marker, "K3Y/EU"); // the tag stays for the next contact
}

TEST_F(LogTheDupe, BeyondAThousandIsLoggedWithoutAnEntry) {
    start(std::vector<std::string>(1000, first));
    const std::string listed = folder.read("StnsWorked.TXT");
    logTheDupe(module, files);
    bringUpToDate(module, files);
    EXPECT_EQ(module.qsoTable.count().value(), 1001);
    EXPECT_TRUE(isDupe(module.qsoTable.line(1001)));
    EXPECT_EQ(folder.read("StnsWorked.TXT"), listed);
}

TEST_F(LogTheDupe, AFailedAppendLogsNothingAndASecondTryTheSame) {
    start({first});
    calls.failAt(Call::sync, 1, ENOSPC);
    EXPECT_RUNTIME_ERROR(logTheDupe(module, files), ErrorCode::diskFull, HasSubstr("K3Y.CBR"));
    EXPECT_EQ(folder.read("K3Y.CBR"), k3yLog({first}));
    calls.heal();
    logTheDupe(module, files);
    EXPECT_EQ(folder.read("K3Y.CBR"), k3yLog({first, dupe}));
}

} // namespace
} // namespace vantrel::test
