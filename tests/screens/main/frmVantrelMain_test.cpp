// SPDX-License-Identifier: MIT
#include "fakes/radios.h"
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
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

constexpr const char* page = "frmVantrelMain";
constexpr const char* dupeScreen = "frmVantrelDupe";
const std::string log = "SKS061611.CBR";

class MainPageTest : public ::testing::Test, public FormHarness {
protected:
    MainPageTest() {
        module.settings = storedSettings({.myCall = "w1abc",
                                          .myName = "john",
                                          .myState = "ma",
                                          .myNumber = "1234t",
                                          .logFileName = log});
        folder.write("SKSDB2.TXT", "K1ABC     0123T     JOE       CT \r\n"
                                   "K1NEW     0005C     ANN       MA \r\n");
    }

    void openPage(const std::string& contacts = "") {
        folder.write(log, logHeaderLines + contacts);
        screens.open(Screen::main);
    }

    void enter() { press(page, "Text2", Qt::Key_Return); }

    void enterCall(std::string_view call) {
        type(page, "Text2", call);
        enter();
    }

    void typeOn(const char* box, const char* keys) {
        QTest::keyClicks(control(page, box), QString::fromLatin1(keys));
    }

    // His call, name, state and number.
    std::vector<std::string> boxes() const {
        return {shown(page, "Text2"), shown(page, "Text3"), shown(page, "Text4"),
                shown(page, "Text5")};
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
    // Nobody that the roster knows.
    const std::string unknown =
        contactLine({.hisCall = "W5NEW", .hisName = "", .hisState = "", .hisNumber = "NONE"}) +
        "\r\n";
};

TEST_F(MainPageTest, LoadShowsTheLogAndRewritesTheWorkedStations) {
    folder.write("StnsWorked.TXT", "something old");
    openPage(joe);
    for (const auto& [label, text] :
         {std::pair{"Label12", "FILE NAME:  SKS061611.CBR"}, std::pair{"Label10", "20 Meters "},
          std::pair{"Label13", "Dupes Not Logged"}, std::pair{"Label11", "AUTO READ OFF"},
          std::pair{"Text7", "14.050"}, std::pair{"Text1", "01"}, std::pair{"Combo1", "599"}})
        EXPECT_EQ(shown(page, label), text);
    const std::string entry =
        "K1ABC     | JOE       |0123T  | CT  | 14050 | 0012 | 2011-06-16|      ";
    EXPECT_THAT(lines(page, "List1"), ElementsAre(entry));
    EXPECT_EQ(folder.read("StnsWorked.TXT"), entry + "\r\n");
    EXPECT_EQ(focus(), "Text2");

    module.marker = "K3Y/EU";
    screens.mainPage()->loadAfresh();
    EXPECT_EQ(module.marker, noMarker);
}

TEST_F(MainPageTest, NumberYieldsACallACallItsMemberAndEnterLogsHim) {
    openPage();
    enterCall("123");
    EXPECT_THAT(boxes(), ElementsAre("K1ABC     ", "", "", ""));
    enter();
    EXPECT_THAT(boxes(), ElementsAre("K1ABC", "JOE       ", "CT ", "0123T     "));
    typeOn("Text2", "D"); // belongs to the call it was looked up for
    EXPECT_THAT(boxes(), ElementsAre("K1ABCD", "", "", ""));
    enterCall(",k1abc");
    EXPECT_EQ(focus(), "Text2");
    press(page, "Combo2", Qt::Key_Return); // selects the name
    typeOn("Text3", "bill");
    EXPECT_EQ(shown(page, "Text3"), "BILL");
    EXPECT_EQ(logged(), "");
    enterCall("k1abc");
    enter();
    EXPECT_EQ(logged(), joe);
    EXPECT_THAT(lines(page, "List1"), SizeIs(1));
    EXPECT_THAT(boxes(), Each(""));
    EXPECT_EQ(focus(), "Text2");
    enterCall("99");
    EXPECT_EQ(shown(page, "Text2"), "");
    enterCall("4x1ab"); // a call, though it begins with a digit
    EXPECT_EQ(shown(page, "Text2"), "4X1AB");
}

TEST_F(MainPageTest, ExchangeIsTypedWithEnterFromBoxToBox) {
    openPage();
    type(page, "Text7", "7040");
    press(page, "Text7", Qt::Key_Return);
    EXPECT_EQ(shown(page, "Text7"), "7.040");
    EXPECT_EQ(shown(page, "Label10"), "40 Meters ");
    enterCall("w5new");
    for (const auto& [box, text] : {std::pair{"Combo1", "559"}, std::pair{"Combo2", "448"},
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
                                     .rstReceived = "448",
                                     .hisName = "BOB",
                                     .hisState = "TX",
                                     .hisNumber = "NONE"}) +
                            "\r\n");
    EXPECT_EQ(shown(page, "Combo1"), "599");
    EXPECT_EQ(shown(page, "Combo2"), "599");
}

TEST_F(MainPageTest, RefusedDupeLeavesNothingBehindAndItsScreenTakesNoFocus) {
    openPage(joe);
    type(page, "Text3", "JIM");
    enterCall("k1ab"); // a prefix is enough
    EXPECT_EQ(sound.alarms, 1);
    EXPECT_THAT(boxes(), Each(""));
    EXPECT_EQ(logged(), joe);
    click(page, "Command12");
    EXPECT_EQ(shown(page, "Command12"), "AUDIO OFF");
    enterCall("k1abc");
    EXPECT_EQ(sound.alarms, 1);
    type(page, "Text3", "BI");
    form(dupeScreen)->findChild<QTimer*>(QStringLiteral("Timer1"))->setInterval(0);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !isOpen(dupeScreen); }, 3000));
    EXPECT_EQ(focus(), "Text3");
}

TEST_F(MainPageTest, LoggedDupeIsMarkedOnce) {
    module.settings.dupeMode = "YES";
    openPage(joe);
    EXPECT_EQ(shown(page, "Label13"), "Dupes Are Logged");
    enterCall("k1abc");
    EXPECT_EQ(shown(page, "Text3"), "JOE       ");
    enter();
    std::string expected = joe + joe;
    expected.replace(expected.size() - 8, 6, "DUPE");
    EXPECT_EQ(logged(), expected);
    EXPECT_THAT(lines(page, "List1").back(), HasSubstr("|DUPE"));
    EXPECT_EQ(shown(page, "Text1"), "02");

    // The mark belonged to that contact; the next one is logged without a search.
    type(page, "Text2", "w5new");
    type(page, "Text5", "none");
    press(page, "Text5", Qt::Key_Return);
    EXPECT_EQ(logged(), expected + unknown);
}

TEST_F(MainPageTest, SilentRadioCostsNoContactButClosingDuringItsReadDoes) {
    const Radio& radio = radioNamed("Kenwood");
    module.settings.rig = radio.rig;
    module.settings.comPort = "com1";
    openPage();
    messages.expect(radio.noReplyText);
    enterCall("k1abc");
    messages.expect(radio.noReplyText);
    enter();
    EXPECT_EQ(logged(), joe); // with the frequency in the box

    serialPort.closesOnWait = serialPort.waits + 1;
    type(page, "Text2", "w5new");
    type(page, "Text5", "none");
    press(page, "Text5", Qt::Key_Return);
    EXPECT_EQ(logged(), joe);
}

// Which message, and what is left in the call box afterwards.
TEST_F(MainPageTest, WhatCannotBeLoggedIsSaidAndIsNotInTheLog) {
    openPage();
    const struct {
        const char* frequency;
        const char* myName;
        std::string_view text;
        const char* call;
    } rows[] = {{"10120", "JOHN", "10.120 MHz IS NOT A VALID SPRINT FREQUENCY", ""},
                {"QRL", "JOHN", frequencyMissingText, "K1ABC"},
                {"14.05", "BARTHOLOMEW", invalidEntryText, ""}};
    for (const auto& row : rows) {
        module.settings.myName = row.myName;
        type(page, "Text7", row.frequency);
        enterCall("");
        enterCall("k1abc");
        messages.expect(std::string(row.text));
        enter();
        EXPECT_EQ(shown(page, "Text2"), row.call) << row.text;
        EXPECT_EQ(messages.shown.back().icon == BoxIcon::critical,
                  row.frequency[0] == '1' && row.frequency[1] == '0');
        press(page, "Text2", Qt::Key_Escape);
    }
    EXPECT_THAT(messages.shown.back().informative, HasSubstr("my name"));
    type(page, "Text7", "");
    messages.expect(std::string(frequencyMissingText));
    enterCall("w5new");
    EXPECT_EQ(shown(page, "Text2"), "");
    EXPECT_EQ(logged(), "");
}

TEST_F(MainPageTest, FullDiskKeepsTheTypingUntilTheContactIsOnTheDiskAndThenClearsIt) {
    openPage();
    enterCall("k1abc");
    calls.failAt(Call::write, 1, ENOSPC);
    messages.expect("Run-time error 61: Disk full");
    enter();
    EXPECT_THAT(messages.shown.back().informative, HasSubstr(log));
    EXPECT_EQ(shown(page, "Text2"), "K1ABC");
    EXPECT_EQ(shown(page, "Text5"), "0123T     ");
    EXPECT_EQ(logged(), "");

    calls.failAt(Call::write, 2, ENOSPC); // the worked-stations file, after the log
    messages.expect("Run-time error 61: Disk full");
    messages.whileShown = [this] { EXPECT_EQ(shown(page, "Text2"), ""); };
    enter();
    EXPECT_THAT(messages.shown.back().informative,
                AllOf(HasSubstr("StnsWorked.TXT"), HasSubstr("THE QSO IS IN THE LOG")));
    EXPECT_EQ(logged(), joe);
    EXPECT_EQ(shown(page, "Text1"), "01");
}

TEST_F(MainPageTest, DeletedLogStartsAgainWithTheContact) {
    openPage(joe);
    std::filesystem::remove(folder.path() / log);
    enterCall("w5new");
    type(page, "Text5", "none");
    messages.expect(std::string(logStartedAgainText));
    press(page, "Text5", Qt::Key_Return);
    EXPECT_THAT(messages.shown.back().informative, HasSubstr(log));
    EXPECT_EQ(folder.read(log), unknown);
    EXPECT_EQ(shown(page, "Text1"), "01");
    EXPECT_THAT(lines(page, "List1"), ElementsAre(HasSubstr("W5NEW")));
}

TEST_F(MainPageTest, SearchResetsTheTagLogDoesNot) {
    openPage();
    module.marker = "K3Y/EU";
    type(page, "Text2", "GB0SKC");
    click(page, "Command3");
    EXPECT_THAT(logged(), HasSubstr("K3Y/EU"));
    EXPECT_EQ(module.marker, "K3Y/EU");
    screens.mainPage()->showStation("-- K3Y/EU --");
    enterCall("k1abc");
    EXPECT_EQ(module.marker, noMarker);
    EXPECT_EQ(shown(page, "Label23"), "   None     ");
}

// What the page says of the contact, from the first letter to the line in the log.
TEST_F(MainPageTest, HintsTellWhatHappenedAndWhatComesNext) {
    openPage(joe);
    const auto hint = [this] { return shown(page, "Label26"); };
    EXPECT_EQ(shown(page, "Label29"), "11");
    EXPECT_EQ(shown(page, "Label30"), "1 QSOs x 1 S/P/C + 10");
    type(page, "Text2", "k1a");
    EXPECT_EQ(shown(page, "Label24"), "K1ABC 20");
    EXPECT_THAT(lines(page, "List2"), ElementsAre("K1ABC JOE CT 0123T DUPE"));
    enter();
    EXPECT_EQ(hint(), "REFUSED: K1ABC 20 METERS 0012 IS IN THE LOG");
    press(page, "Text2", Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(shown(page, "Text2"), "K1A");
    EXPECT_EQ(hint(), "");

    type(page, "Text7", "7040");
    enterCall("k1abc");
    EXPECT_EQ(hint(), "ENTER LOGS");
    click(page, "Command13"); // up to 20 m, where he is a duplicate
    EXPECT_THAT(hint(), HasSubstr("REFUSED: K1ABC"));
    EXPECT_EQ(logged(), joe);
    enterCall("k1new");
    EXPECT_EQ(hint(), "ENTER LOGS   NEW S/P/C  +5 CENTURION");
    module.marker = "K3Y/EU";
    screens.mainPage()->showStation("-- K3Y/EU --");
    EXPECT_EQ(shown(page, "Label25"), "NEXT QSO: K3Y/EU");
    enterCall("w5new");
    EXPECT_EQ(hint(), "K3Y/EU TAKEN BACK BY SEARCH");
    EXPECT_EQ(shown(page, "Label25"), "");
    enterCall("w5new");
    EXPECT_EQ(hint(), "NOT IN THE ROSTER: NAME, STATE, SKCC#");
    press(page, "Text2", Qt::Key_Space);
    EXPECT_EQ(focus(), "Text3");
    type(page, "Text5", "none");
    press(page, "Text5", Qt::Key_Return);
    EXPECT_EQ(hint(), "LOGGED W5NEW 14050 0012  NO NAME  NO STATE");
    EXPECT_EQ(logged(), joe + unknown);
    type(page, "Text2", "w5new");
    click(page, "Command3"); // without SEARCH
    EXPECT_THAT(hint(), HasSubstr("REPEATS W5NEW 20 METERS 0012"));
    enterCall("77777");
    EXPECT_EQ(hint(), "NO MEMBER 77777");
    press(page, "Text2", Qt::Key_Up);
    press(page, "List1", Qt::Key_Return);
    EXPECT_EQ(shown("frmVantrelCorrect", "Text1"), "W5NEW");
}

TEST_F(MainPageTest, NothingDoneByAccidentChangesAContact) {
    openPage();
    enterCall("k1abc");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
    QApplication::sendEvent(control(page, "Text2"), &held);
    EXPECT_EQ(logged(), "") << "a held Enter";
    press(page, "Text2", Qt::Key_Q, Qt::AltModifier);
    EXPECT_EQ(shown(page, "Text2"), "K1ABC");
    control(page, "Command10")->setFocus();
    typeOn("Command10", "w5");
    EXPECT_EQ(shown(page, "Text2"), "K1ABCW5") << "goes to the call box";
    press(page, "Text2", Qt::Key_Escape);
    EXPECT_TRUE(isOpen(page));
    EXPECT_EQ(shown(page, "Text2"), "");
}

} // namespace
} // namespace vantrel::test
