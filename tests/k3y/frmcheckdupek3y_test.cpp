// SPDX-License-Identifier: MIT
#include "k3y/k3ylines.h"
#include "support/qt/formharness.h"

#include <QApplication>

#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

using ::testing::HasSubstr;

constexpr const char* box = "frmCheckDupeK3Y";
constexpr const char* mainPage = "frmVantrelMain";

// The main page with one contact in the log, and the same contact logged again.
class CheckDupeK3y : public ::testing::Test, protected FormHarness {
protected:
    CheckDupeK3y() {
        OperatingSettings& settings = module.settings;
        settings.contestCode = contestK3y;
        settings.contestText = contestK3y;
        settings.dupeMode = "YES";
        settings.logFileName = "K3Y.CBR";
        settings.myCall = "W1ABC";
        folder.write("K3Y.CBR", before);
        screens.open(Screen::main);
    }

    void logAgain() {
        type(mainPage, "Text2", "GB0SKC");
        type(mainPage, "Text3", "BILL");
        type(mainPage, "Text4", "ENG");
        type(mainPage, "Text5", "77T");
        click(mainPage, "Command3");
        ASSERT_TRUE(isOpen(box));
        EXPECT_EQ(folder.read("K3Y.CBR"), before); // nothing without the operator's word
    }

    std::vector<std::string> boxes() const {
        return {shown(mainPage, "Text2"), shown(mainPage, "Text3"), shown(mainPage, "Text4"),
                shown(mainPage, "Text5")};
    }

    const std::string before = k3yLog({k3yLine("GB0SKC", "14060", "77T", "K3Y/EU")});
};

TEST_F(CheckDupeK3y, SearchSaysSoForTheSameOperatorOnly) {
    const auto search = [&](const std::string& number) {
        folder.write("SKSDB5.TXT", "GB0SKC    " + number + "       BILL      ENG\r\n");
        type(mainPage, "Text2", "GB0SKC");
        press(mainPage, "Text2", Qt::Key_Return);
        EXPECT_EQ(shown(mainPage, "Text5"), number + "       ");
    };
    search("78T"); // somebody else at the key of the same station
    EXPECT_TRUE(messages.shown.empty());
    click(mainPage, "Command4");
    messages.expect(" <<<<<< THIS IS A DUPLICATE QSO >>>>>> ");
    search("77T");
    EXPECT_EQ(messages.shown.size(), 1U);
}

TEST_F(CheckDupeK3y, LogTheDupe_LogsItMarkedAndEmptiesTheBoxes) {
    module.marker = "K3Y/EU";
    logAgain();
    EXPECT_TRUE(form(box)->isModal());
    click(box, "Command2");
    settle();
    EXPECT_FALSE(isOpen(box));
    const std::string log = folder.read("K3Y.CBR");
    EXPECT_EQ(log.substr(0, before.size()), before);
    EXPECT_THAT(
        log.substr(before.size()),
        ::testing::MatchesRegex("QSO: 14050 .*GB0SKC     599 BILL       ENG 77T   DUPE\r\n"));
    EXPECT_EQ(shown(mainPage, "Text1"), "02");
    EXPECT_EQ(lines(mainPage, "List1").size(), 2U);
    EXPECT_EQ(boxes(), (std::vector<std::string>{"", "", "", ""}));
    EXPECT_EQ(QApplication::focusWidget(), control(mainPage, "Text2"));
}

TEST_F(CheckDupeK3y, NoLog_ByButtonEscOrCross_LeavesOneBlankInEachBox) {
    const std::vector<std::function<void()>> ways{
        [&] { click(box, "Command1"); },
        [&] { press(box, "Command1", Qt::Key_Escape); },
        [&] { form(box)->close(); },
    };
    module.marker = "K3Y/EU";
    for (const auto& leave : ways) {
        logAgain();
        leave();
        settle();
        EXPECT_FALSE(isOpen(box));
        EXPECT_EQ(folder.read("K3Y.CBR"), before);
        EXPECT_EQ(boxes(), (std::vector<std::string>{" ", " ", " ", " "}));
        EXPECT_EQ(module.marker, "K3Y/EU");
        EXPECT_EQ(QApplication::focusWidget(), control(mainPage, "Text2"));
    }
}

TEST_F(CheckDupeK3y, TheAlarmFollowsTheAudioSwitch) {
    logAgain();
    EXPECT_EQ(sound.alarms, 1);
    click(box, "Command1");
    settle();
    click(mainPage, "Command12"); // AUDIO OFF
    logAgain();
    EXPECT_EQ(sound.alarms, 1);
}

TEST_F(CheckDupeK3y, AFullDiskKeepsTheBoxAndWhatWasTyped) {
    logAgain();
    calls.failAt(Call::sync, 1, ENOSPC);
    messages.expect("Run-time error 61: Disk full");
    click(box, "Command2");
    settle();
    EXPECT_THAT(messages.shown.back().informative, HasSubstr("K3Y.CBR"));
    EXPECT_EQ(folder.read("K3Y.CBR"), before);
    EXPECT_EQ(shown(mainPage, "Text2"), "GB0SKC");
    ASSERT_TRUE(isOpen(box));

    calls.heal(); // space was made: the same box logs it
    click(box, "Command2");
    settle();
    EXPECT_THAT(folder.read("K3Y.CBR"), HasSubstr("77T   DUPE\r\n"));
}

TEST_F(CheckDupeK3y, AFailureAfterTheLineIsOnTheDiskIsSaidAndTheBoxesAreCleared) {
    logAgain();
    calls.failAt(Call::write, 2, ENOSPC);
    messages.expect("Run-time error 61: Disk full");
    click(box, "Command2");
    settle();
    EXPECT_THAT(messages.shown.back().informative, HasSubstr("StnsWorked.TXT"));
    EXPECT_FALSE(isOpen(box));
    EXPECT_THAT(folder.read("K3Y.CBR"), HasSubstr("77T   DUPE\r\n"));
    EXPECT_EQ(boxes(), (std::vector<std::string>{"", "", "", ""}));
}

} // namespace
} // namespace vantrel::test
