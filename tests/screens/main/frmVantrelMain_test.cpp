// SPDX-License-Identifier: MIT
#include "screens/main/qsoentry.h"
#include "support/contacts.h"
#include "support/qt/formharness.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

constexpr const char* page = "frmVantrelMain";
const std::string log = "SKS061611.CBR";

class MainPageTest : public ::testing::Test, public FormHarness {
protected:
    MainPageTest() {
        module.settings = storedSettings({.myCall = "w1abc",
                                          .myName = "john",
                                          .myState = "ma",
                                          .myNumber = "1234t",
                                          .logFileName = log});
        folder.write("SKSDB2.TXT", "K1ABC     0123T     JOE       CT \r\n");
    }

    void openPage(const std::string& contacts = "") {
        folder.write(log, logHeaderLines + contacts);
        screens.open(Screen::main);
    }

    void enterCall(std::string_view call) {
        type(page, "Text2", call);
        press(page, "Text2", Qt::Key_Return);
    }

    std::string logged() const { return folder.read(log).substr(logHeaderLines.size()); }

    static std::string focus() {
        settle();
        QWidget* widget = QApplication::focusWidget();
        return widget == nullptr ? "" : widget->objectName().toStdString();
    }

    const std::string joe =
        contactLine(
            {.hisCall = "K1ABC", .hisName = "JOE", .hisState = "CT", .hisNumber = "0123T"}) +
        "\r\n";
};

TEST_F(MainPageTest, LoadShowsTheLogAndRewritesTheWorkedStations) {
    folder.write("StnsWorked.TXT", "something old");
    openPage(joe);
    EXPECT_EQ(shown(page, "Label12"), "FILE NAME:  SKS061611.CBR");
    EXPECT_EQ(shown(page, "Label13"), "Dupes Not Logged");
    EXPECT_EQ(shown(page, "Label10"), "20 Meters ");
    EXPECT_EQ(shown(page, "Label11"), "AUTO READ OFF");
    EXPECT_EQ(shown(page, "Text7"), "14.050");
    EXPECT_EQ(shown(page, "Text1"), "01");
    EXPECT_EQ(shown(page, "Combo1"), "599");
    const std::string entry =
        "K1ABC     | JOE       |0123T  | CT  | 14050 | 0012 | 2011-06-16|      ";
    EXPECT_THAT(lines(page, "List1"), ElementsAre(entry));
    EXPECT_EQ(folder.read("StnsWorked.TXT"), entry + "\r\n");
    EXPECT_EQ(focus(), "Text2");
}

TEST_F(MainPageTest, EnterTwiceLogsAMember) {
    openPage();
    enterCall("k1abc");
    EXPECT_EQ(shown(page, "Text3"), "JOE       ");
    EXPECT_EQ(shown(page, "Text4"), "CT ");
    EXPECT_EQ(shown(page, "Text5"), "0123T     ");
    EXPECT_EQ(logged(), "");
    press(page, "Text2", Qt::Key_Return);
    EXPECT_EQ(logged(), joe);
    EXPECT_EQ(shown(page, "Text1"), "01");
    EXPECT_EQ(shown(page, "Text2"), "");
    EXPECT_EQ(shown(page, "Text5"), "");
    EXPECT_THAT(lines(page, "List1"), SizeIs(1));
    EXPECT_EQ(focus(), "Text2");
}

TEST_F(MainPageTest, ExchangeIsTypedWithEnterFromBoxToBox) {
    openPage();
    type(page, "Text7", "7040");
    press(page, "Text7", Qt::Key_Return);
    EXPECT_EQ(shown(page, "Text7"), "7.040");
    EXPECT_EQ(shown(page, "Label10"), "40 Meters ");
    enterCall("w5new");
    for (const auto& [box, text] : {std::pair{"Combo1", "559"}, std::pair{"Combo2", "449"},
                                    std::pair{"Text3", "bob"}, std::pair{"Text4", "tx"}}) {
        type(page, box, text);
        press(page, box, Qt::Key_Return);
    }
    EXPECT_EQ(focus(), "Text5");
    type(page, "Text5", "none");
    press(page, "Text5", Qt::Key_Return);
    EXPECT_EQ(logged(), contactLine({.frequency = " 7040",
                                     .rstSent = "559",
                                     .hisCall = "W5NEW",
                                     .rstReceived = "449",
                                     .hisName = "BOB",
                                     .hisState = "TX",
                                     .hisNumber = "NONE"}) +
                            "\r\n");
    EXPECT_EQ(shown(page, "Combo1"), "599");
    EXPECT_EQ(shown(page, "Combo2"), "599");
}

TEST_F(MainPageTest, EnterSelectsWhatALookupPutIntoTheNextBox) {
    openPage();
    enterCall("k1abc");
    EXPECT_EQ(focus(), "Text2");
    press(page, "Combo2", Qt::Key_Return);
    QTest::keyClicks(control(page, "Text3"), QStringLiteral("bill"));
    EXPECT_EQ(shown(page, "Text3"), "BILL");
}

TEST_F(MainPageTest, RefusedDupeLeavesNothingBehind) {
    openPage(joe);
    const std::string before = folder.read("StnsWorked.TXT");
    type(page, "Text3", "JIM");
    enterCall("k1ab"); // a prefix is enough
    EXPECT_TRUE(isOpen("frmVantrelDupe"));
    EXPECT_EQ(sound.alarms, 1);
    for (const char* box : {"Text2", "Text3", "Text4", "Text5"})
        EXPECT_EQ(shown(page, box), "") << box;
    EXPECT_EQ(logged(), joe);
    EXPECT_EQ(folder.read("StnsWorked.TXT"), before);
    EXPECT_FALSE(module.dupeFlag);
    // The screen took no keyboard, so the next call is typed at once.
    EXPECT_EQ(focus(), "Text2");
    click(page, "Command12");
    EXPECT_EQ(shown(page, "Command12"), "AUDIO OFF");
    enterCall("k1abc");
    EXPECT_EQ(sound.alarms, 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen("frmVantrelDupe"); }, 3000));
}

TEST_F(MainPageTest, DupeScreenClosesWithoutTakingTheFocus) {
    openPage(joe);
    enterCall("k1abc");
    auto* timer = form("frmVantrelDupe")->findChild<QTimer*>(QStringLiteral("Timer1"));
    ASSERT_NE(timer, nullptr);
    type(page, "Text3", "BI");
    timer->setInterval(0);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !isOpen("frmVantrelDupe"); }, 3000));
    EXPECT_EQ(focus(), "Text3");

    enterCall("k1abc");
    timer = form("frmVantrelDupe")->findChild<QTimer*>(QStringLiteral("Timer1"));
    screens.open(Screen::list);
    timer->setInterval(0);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !isOpen("frmVantrelDupe"); }, 3000));
    EXPECT_TRUE(form("frmVantrelList")->isActiveWindow());
}

TEST_F(MainPageTest, LoggedDupeIsMarkedOnce) {
    module.settings.dupeMode = "YES";
    openPage(joe);
    EXPECT_EQ(shown(page, "Label13"), "Dupes Are Logged");
    enterCall("k1abc");
    EXPECT_EQ(shown(page, "Text3"), "JOE       ");
    press(page, "Text2", Qt::Key_Return);
    std::string expected = joe + joe;
    expected.replace(expected.size() - 8, 6, "DUPE");
    EXPECT_EQ(logged(), expected);
    EXPECT_THAT(lines(page, "List1").back(), HasSubstr("|DUPE"));
    EXPECT_EQ(shown(page, "Text1"), "02");

    // The mark belonged to that contact; the next one is logged without a search.
    type(page, "Text2", "w5new");
    type(page, "Text5", "none");
    press(page, "Text5", Qt::Key_Return);
    EXPECT_EQ(
        logged(),
        expected +
            contactLine({.hisCall = "W5NEW", .hisName = "", .hisState = "", .hisNumber = "NONE"}) +
            "\r\n");
}

TEST_F(MainPageTest, LookupBelongsToTheCallItWasMadeFor) {
    openPage();
    enterCall("k1abc");
    type(page, "Text4", "NH");
    QTest::keyClicks(control(page, "Text2"), QStringLiteral("D"));
    EXPECT_EQ(shown(page, "Text3"), "");
    EXPECT_EQ(shown(page, "Text4"), "NH");
    EXPECT_EQ(shown(page, "Text5"), "");
    press(page, "Text2", Qt::Key_Return);
    EXPECT_EQ(logged(), "") << "looks up again instead of logging under another's name";
}

TEST_F(MainPageTest, MemberNumberYieldsItsCall) {
    openPage();
    enterCall("123");
    EXPECT_EQ(shown(page, "Text2"), "K1ABC     ");
    EXPECT_EQ(shown(page, "Text5"), "");
    press(page, "Text2", Qt::Key_Return);
    EXPECT_EQ(shown(page, "Text2"), "K1ABC");
    EXPECT_EQ(shown(page, "Text5"), "0123T     ");
    press(page, "Text2", Qt::Key_Return);
    EXPECT_EQ(logged(), joe);
    enterCall("99");
    EXPECT_EQ(shown(page, "Text2"), "");
}

TEST_F(MainPageTest, MissingAndWrongFrequencies) {
    openPage();
    type(page, "Text7", "");
    messages.expect(std::string(frequencyMissingText));
    enterCall("w5new");
    EXPECT_EQ(shown(page, "Text2"), "");

    type(page, "Text7", "10120");
    enterCall("k1abc");
    messages.expect("10.120 MHz IS NOT A VALID SPRINT FREQUENCY");
    press(page, "Text2", Qt::Key_Return);
    EXPECT_EQ(messages.shown.back().icon, BoxIcon::critical);
    EXPECT_EQ(shown(page, "Text2"), "");
    EXPECT_EQ(shown(page, "Text7"), "10.120");

    type(page, "Text7", "QRL");
    enterCall("k1abc");
    messages.expect(std::string(frequencyMissingText));
    press(page, "Text2", Qt::Key_Return);
    EXPECT_EQ(shown(page, "Text5"), "0123T     ") << "what was typed stays";
    EXPECT_EQ(logged(), "");
}

TEST_F(MainPageTest, InvalidEntryClearsTheBoxesAndLogsNothing) {
    module.settings.myName = "BARTHOLOMEW";
    openPage();
    enterCall("k1abc");
    messages.expect("Invalid Entry - Pleasr try again");
    press(page, "Text2", Qt::Key_Return);
    EXPECT_EQ(messages.shown.back().icon, BoxIcon::exclamation);
    EXPECT_EQ(shown(page, "Text2"), "");
    EXPECT_EQ(logged(), "");
}

TEST_F(MainPageTest, FullDiskKeepsTypingAndLog) {
    openPage(joe);
    type(page, "Text7", "7.040");
    enterCall("k1abc");
    calls.failAt(Call::write, 1, ENOSPC);
    messages.expect("Run-time error 61: Disk full");
    press(page, "Text2", Qt::Key_Return);
    EXPECT_THAT(messages.shown.back().informative, HasSubstr(log));
    EXPECT_EQ(shown(page, "Text2"), "K1ABC");
    EXPECT_EQ(shown(page, "Text5"), "0123T     ");
    EXPECT_EQ(logged(), joe);
    calls.heal();
    press(page, "Text2", Qt::Key_Return);
    EXPECT_THAT(logged(), SizeIs(2 * joe.size()));
}

TEST_F(MainPageTest, ContactOnTheDiskIsNeverLoggedTwice) {
    openPage();
    enterCall("k1abc");
    calls.failAt(Call::write, 2, ENOSPC); // the worked-stations file, after the log
    messages.expect("Run-time error 61: Disk full");
    messages.whileShown = [this] { EXPECT_EQ(shown(page, "Text2"), ""); };
    press(page, "Text2", Qt::Key_Return);
    EXPECT_THAT(messages.shown.back().informative,
                AllOf(HasSubstr("StnsWorked.TXT"), HasSubstr("THE QSO IS IN THE LOG")));
    EXPECT_EQ(logged(), joe);
    EXPECT_EQ(shown(page, "Text2"), "");
    EXPECT_EQ(shown(page, "Text1"), "01");
}

TEST_F(MainPageTest, DeletedLogStartsAgainWithTheContact) {
    openPage(joe);
    std::filesystem::remove(folder.path() / log);
    type(page, "Text7", "7.040");
    enterCall("k1abc");
    messages.expect(std::string(logStartedAgainText));
    press(page, "Text2", Qt::Key_Return);
    EXPECT_THAT(messages.shown.back().informative, HasSubstr(log));
    EXPECT_EQ(folder.read(log), contactLine({.frequency = " 7040",
                                             .hisCall = "K1ABC",
                                             .hisName = "JOE",
                                             .hisState = "CT",
                                             .hisNumber = "0123T"}) +
                                    "\r\n");
    EXPECT_EQ(shown(page, "Text1"), "01");
    EXPECT_THAT(lines(page, "List1"), ElementsAre(HasSubstr(" 7040")));
}

TEST_F(MainPageTest, CommaInTheCallIsTheBlankItIsLoggedAs) {
    openPage(contactLine({.hisCall = "K1 AB"}) + "\r\n");
    enterCall(",k1,ab");
    EXPECT_TRUE(isOpen("frmVantrelDupe"));
    enterCall(",k,");
    EXPECT_EQ(shown(page, "Text2"), "K");
}

TEST_F(MainPageTest, EscapeIsNoLog) {
    openPage();
    enterCall("k1abc");
    press(page, "Text3", Qt::Key_Escape);
    EXPECT_TRUE(isOpen(page));
    EXPECT_EQ(shown(page, "Text2"), "");
    EXPECT_EQ(shown(page, "Label23"), "   None     ");
}

TEST_F(MainPageTest, SearchResetsTheTagLogDoesNot) {
    openPage();
    module.marker = "K3Y/EU";
    type(page, "Text2", "GB0SKC");
    click(page, "Command3");
    EXPECT_THAT(logged(), HasSubstr("K3Y/EU"));
    EXPECT_EQ(module.marker, "K3Y/EU");
    enterCall("k1abc");
    EXPECT_EQ(module.marker, noMarker);
    EXPECT_EQ(shown(page, "Label23"), "   None     ");
}

TEST_F(MainPageTest, TypingIsUpperCasedWhereItHappens) {
    openPage();
    type(page, "Text3", "anne");
    EXPECT_EQ(shown(page, "Text3"), "ANNE");
    auto* name = control<QLineEdit>(page, "Text3");
    name->setCursorPosition(2);
    QTest::keyClicks(name, QStringLiteral("x"));
    EXPECT_EQ(shown(page, "Text3"), "ANXNE");
    EXPECT_EQ(name->cursorPosition(), 3);
    // The rules take what a box holds: a lower-case call set there is not found.
    control<QLineEdit>(page, "Text2")->setText(QStringLiteral("k1abc"));
    press(page, "Text2", Qt::Key_Return);
    EXPECT_EQ(shown(page, "Text5"), "");
    EXPECT_EQ(shown(page, "Text2"), "k1abc");
}

TEST_F(MainPageTest, WorkedBeforeIsRedOnTheBandWhereItIsADupe) {
    openPage(joe);
    const auto red = [this] {
        const QColor colour = control(page, "Label24")->palette().color(QPalette::WindowText);
        return colour.red() > colour.green() + 80;
    };
    type(page, "Text2", "k1");
    EXPECT_EQ(shown(page, "Label24"), "K1ABC 20");
    EXPECT_TRUE(red());
    type(page, "Text7", "7.040");
    type(page, "Text2", "k1a");
    EXPECT_EQ(shown(page, "Label24"), "K1ABC 20");
    EXPECT_FALSE(red());
    press(page, "Text2", Qt::Key_Escape);
    EXPECT_EQ(shown(page, "Label24"), "");
}

TEST_F(MainPageTest, StartingAgainLoadsTheOtherLog) {
    openPage(joe);
    folder.write("OTHER.CBR", "");
    module.settings.logFileName = "OTHER.CBR";
    screens.mainPage()->loadAfresh();
    EXPECT_EQ(shown(page, "Text1"), "00");
    EXPECT_THAT(lines(page, "List1"), SizeIs(0));
    EXPECT_EQ(folder.read("StnsWorked.TXT"), "");
}

} // namespace
} // namespace vantrel::test
