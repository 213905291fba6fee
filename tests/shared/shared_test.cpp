// SPDX-License-Identifier: MIT
#include "shared/utctime.h"
#include "support/fakemachine.h"

namespace vantrel::test {
namespace {

struct Settings : ::testing::Test, FakeMachine {};

TEST_F(Settings, FileHoldsTheFourteenValuesAndTheyComeBackWithoutTheirPadding) {
    saveSettings(files, loadSettings(files)); // there is no file yet
    EXPECT_EQ(folder.read("Vantrel.CFG"), "\r\nSKS\r\n0\r\nNone\r\n\r\n\r\n\r\nNone\r\nNone\r\n"
                                          "None\r\nSKS\r\n\r\n\r\nNO\r\n");
    const std::string stored = "W1ABC\r\nSKSE\r\n-5\r\nHex 6A\r\nJOHN      \r\nMA \r\n1234T \r\n"
                               "FTdx5000\r\ncom1\r\n38400\r\nA B  C\r\nMY LOG.CBR\r\n"
                               "K9SKC     \r\nYES\r\n";
    folder.write("Vantrel.CFG", "\xEF\xBB\xBF" + stored);
    const OperatingSettings settings = loadSettings(files);
    EXPECT_EQ(settings.myName + settings.myState + settings.myNumber + settings.bonusStation,
              "JOHNMA1234TK9SKC");
    folder.write("Vantrel.CFG", std::string(13, '\n') + "YES"); // empty values are values
    EXPECT_EQ(loadSettings(files).rig + loadSettings(files).dupeMode, "YES");
    folder.write("Vantrel.CFG", stored.substr(0, stored.rfind("YES")));
    EXPECT_RUNTIME_ERROR(loadSettings(files), ErrorCode::inputPastEnd,
                         (folder.path() / "Vantrel.CFG").string() +
                             ": line 14 (dupe mode) is missing\n"
                             "DELETE THE FILE TO START WITH THE DEFAULTS");

    const std::tuple<std::string OperatingSettings::*, std::string, const char*> rows[] = {
        {&OperatingSettings::myCall, "W1ABC/QRP/P", "the call is longer"},
        {&OperatingSettings::myName, "BARTHOLOMEW", "the name is longer"},
        {&OperatingSettings::myState, "MASS", "the state is longer"},
        {&OperatingSettings::myNumber, "12345SX", "the SKCC number is longer"},
        {&OperatingSettings::bonusStation, "K9SKC/QRP/P", "the bonus station is longer"}};
    for (const auto& [field, value, said] : rows) {
        OperatingSettings wide;
        wide.*field = value;
        EXPECT_RUNTIME_ERROR(storedSettings(wide), ErrorCode::invalidCall, HasSubstr(said));
    }
}

TEST(UtcTime, RollsTheDateAsTheLogsHaveAlwaysDone) {
    const std::tuple<const char*, LocalTime, const char*, std::string> rows[] = {
        {"west: midnight is tomorrow", {2011, 6, 8, 19, 0, 0}, " +5 ", "0000 2011-06-09"},
        {"east: the date stays the local one", {2012, 1, 1, 1, 15, 0}, "-2", "2315 2012-01-01"},
        {"a month's first is month first", {2011, 12, 31, 23, 0, 0}, "2", "0100 01-01-2012"},
        {"February always has 28 days", {2012, 2, 28, 23, 0, 0}, "2", "0100 03-01-2012"},
        {"so the 29th has a next day", {2012, 2, 29, 23, 0, 0}, "2", "0100 2012-02-30"},
    };
    for (const auto& [rule, local, offset, expected] : rows) {
        const UtcTime utc = utcTime(local, offset);
        EXPECT_EQ(utc.time + ' ' + utc.date, expected) << rule;
    }
    std::string months;
    for (int month = 1; const int days : {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30})
        months += utcTime({2011, month++, days, 23, 0, 0}, "2").date.substr(0, 6);
    EXPECT_EQ(months, "02-01-03-01-04-01-05-01-06-01-07-01-08-01-09-01-10-01-11-01-12-01-");
}

} // namespace
} // namespace vantrel::test
