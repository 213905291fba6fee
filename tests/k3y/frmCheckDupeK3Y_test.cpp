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
        settings.contestText = contestK3y;
        settings.dupeMode = "YES";
        settings.logFileName = "K3Y.CBR";
        settings.myCall = "W1ABC";
        settings.myName = "JOHN";
        settings.myState = "MA";
        settings.myNumber = "1234T";
        folder.write("K3Y.CBR", before);
        screens.open(Screen::main);
    }

    void logAgain() {
        type(mainPage, "Text2", "GB0SKC");
        type(mainPage, "Text3", "BILL");
        type(mainPage, "Text4", "IL");
        type(mainPage, "Text5", "77T");
        click(mainPage, "Command3");
        ASSERT_TRUE(isOpen(box));
        EXPECT_EQ(folder.read("K3Y.CBR"), before); // nothing without the operator's word
    }

    void expectInEachBox(const char* text) const {
        for (const char* name : {"Text2", "Text3", "Text4", "Text5"})
            EXPECT_EQ(shown(mainPage, name), text) << name;
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

TEST_F(CheckDupeK3y, LogTheDupeLogsItMarkedAndEmptiesTheBoxes) {
    module.marker = "K3Y/EU";
    logAgain();
    EXPECT_TRUE(form(box)->isModal());
    click(box, "Command2");
    settle();
    EXPECT_FALSE(isOpen(box));
    const std::string dupe = k3yLine("GB0SKC", "14050", "77T", "DUPE");
    EXPECT_EQ(folder.read("K3Y.CBR"), before + dupe + "\r\n");
    EXPECT_EQ(folder.read("StnsWorked.TXT"),
              "GB0SKC    | BILL      |77T    | IL  | 14060 | 0012 | 2011-06-16|K3Y/EU\r\n"
              "GB0SKC    | BILL      |77T    | IL  | 14050 | 0012 | 2011-06-16|DUPE\r\n");
    EXPECT_EQ(module.marker, "K3Y/EU"); // the tag stays for the next contact
    EXPECT_EQ(shown(mainPage, "Text1"), "02");
    EXPECT_EQ(lines(mainPage, "List1").size(), 2U);
    expectInEachBox("");
    EXPECT_EQ(QApplication::focusWidget(), control(mainPage, "Text2"));
}

TEST_F(CheckDupeK3y, NoLogByButtonEscOrCrossLeavesOneBlankInEachBox) {
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
        expectInEachBox(" ");
        EXPECT_EQ(module.marker, "K3Y/EU");
        EXPECT_EQ(QApplication::focusWidget(), control(mainPage, "Text2"));
    }
    EXPECT_EQ(sound.alarms, 3);
    click(mainPage, "Command12"); // AUDIO OFF
    logAgain();
    EXPECT_EQ(sound.alarms, 3);
}

TEST_F(CheckDupeK3y, AFullDiskKeepsTheBoxUntilTheLineIsOnTheDisk) {
    logAgain();
    const auto logItWhenFails = [&](Call call, int which) {
        calls.failAt(call, which, ENOSPC);
        messages.expect("Run-time error 61: Disk full");
        click(box, "Command2");
        settle();
        calls.heal();
        return messages.shown.back().informative;
    };
    EXPECT_THAT(logItWhenFails(Call::sync, 1), HasSubstr("K3Y.CBR"));
    EXPECT_EQ(folder.read("K3Y.CBR"), before);
    EXPECT_EQ(shown(mainPage, "Text2"), "GB0SKC");
    ASSERT_TRUE(isOpen(box));

    EXPECT_THAT(logItWhenFails(Call::write, 2), HasSubstr("StnsWorked.TXT"));
    EXPECT_FALSE(isOpen(box));
    EXPECT_EQ(folder.read("K3Y.CBR"), before + k3yLine("GB0SKC", "14050", "77T", "DUPE") + "\r\n");
    expectInEachBox("");
}

} // namespace
} // namespace vantrel::test
