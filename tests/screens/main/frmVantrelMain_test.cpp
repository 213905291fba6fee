// SPDX-License-Identifier: MIT
#include "fakes/radios.h"
#include "screens/main/qsoentry.h"
#include "support/contacts.h"
#include "support/qt/formharness.h"

#include <QTimer>

namespace vantrel::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr const char* page = "frmVantrelMain";
constexpr const char* dupeScreen = "frmVantrelDupe";
const std::string log = "SKS061611.CBR";

class MainPageTest : public ::testing::Test, public FormHarness {
protected:
    MainPageTest() {
        module.settings = {"W1ABC", "SKS",  "0",    "None", "JOHN", "MA", "1234T",
                           "None",  "None", "None", "SKS",  log,    "",   "NO"};
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

    // The last box of who is in no roster.
    void enterNumber() {
        type(page, "Text5", "none");
        press(page, "Text5", Qt::Key_Return);
    }

    void typeOn(const char* box, const char* keys) {
        QTest::keyClicks(control(page, box), QString::fromLatin1(keys));
    }

    // His call, name, state and number.
    std::string boxes() const { return texts(page, "Text2 Text3 Text4 Text5"); }

    std::string logged() const { return folder.read(log).substr(logHeaderLines.size()); }

    static std::string focus() {
        settle();
        QWidget* widget = QApplication::focusWidget();
        return widget == nullptr ? "" : widget->objectName().toStdString();
    }

    const std::string joe = "QSO: 14050 CW 2011-06-16 0012 W1ABC      599 JOHN       MA 1234T "
                            "K1ABC      599 JOE        CT  0123T       \r\n";
    // Nobody that the roster knows.
    const std::string unknown = "QSO: 14050 CW 2011-06-16 0012 W1ABC      599 JOHN       MA 1234T "
                                "W5NEW      599                NONE        \r\n";
};

TEST_F(MainPageTest, NumberYieldsACallACallItsMemberAndEnterLogsHim) {
    openPage();
    enterCall("123");
    EXPECT_EQ(boxes(), "K1ABC     ||||");
    enter();
    EXPECT_EQ(boxes(), "K1ABC|JOE       |CT |0123T     |");
    typeOn("Text2", "D"); // belongs to the call it was looked up for
    EXPECT_EQ(boxes(), "K1ABCD||||");
    enterCall(",k1abc");
    EXPECT_EQ(focus(), "Text2");
    press(page, "Combo2", Qt::Key_Return); // selects the name
    typeOn("Text3", "bill");
    EXPECT_EQ(shown(page, "Text3"), "BILL");
    EXPECT_EQ(logged(), "");
    enterCall("k1abc");
    enter();
    EXPECT_EQ(logged(), joe);
    EXPECT_EQ(boxes() + focus(), "||||Text2");
    // The exchange of who is in no roster, typed with Enter from box to box.
    type(page, "Text7", "7040");
    press(page, "Text7", Qt::Key_Return);
    EXPECT_EQ(texts(page, "Text7 Label10"), "7.040|40 Meters |");
    enterCall("w5new");
    for (const auto& [box, text] :
         {std::pair{"Combo1", "559"}, {"Combo2", "448"}, {"Text3", "bob"}, {"Text4", "tx"}}) {
        type(page, box, text);
        press(page, box, Qt::Key_Return);
    }
    EXPECT_EQ(focus(), "Text5");
    enterNumber();
    EXPECT_EQ(logged(), joe + "QSO:  7040 CW 2011-06-16 0012 W1ABC      559 JOHN       MA 1234T "
                              "W5NEW      448 BOB        TX  NONE        \r\n");
    EXPECT_EQ(texts(page, "Combo1 Combo2"), "599|599|");
}

TEST_F(MainPageTest, RefusedDupeLeavesNothingBehindAndItsScreenTakesNoFocus) {
    openPage(joe);
    type(page, "Text3", "JIM");
    enterCall("k1ab"); // a prefix is enough
    EXPECT_EQ(boxes(), "||||");
    click(page, "Command12");
    EXPECT_EQ(shown(page, "Command12"), "AUDIO OFF");
    enterCall("k1abc");
    EXPECT_EQ(sound.alarms, 1); // of the first
    type(page, "Text3", "BI");
    form(dupeScreen)->findChild<QTimer*>(QStringLiteral("Timer1"))->setInterval(0);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !isOpen(dupeScreen); }, 3000));
    EXPECT_EQ(focus(), "Text3");

    // Where they are logged, it is marked, once.
    module.settings.dupeMode = "YES";
    module.marker = "K3Y/EU";
    screens.mainPage()->loadAfresh(); // takes the tag back
    EXPECT_EQ(shown(page, "Label13") + module.marker, "Dupes Are Logged      ");
    enterCall("k1abc");
    enter();
    std::string expected = joe + joe;
    expected.replace(expected.size() - 8, 6, "DUPE");
    EXPECT_EQ(logged() + shown(page, "Text1"), expected + "02");
    type(page, "Text2", "w5new"); // without SEARCH
    enterNumber();
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
    enterNumber();
    EXPECT_EQ(logged(), joe);
}

// Searched on 40 m, logged with the dial on a band where he is in the log.
TEST_F(MainPageTest, DupeThatTheRadioBringsAtLogIsRefusedAndNothingIsWritten) {
    const Radio& radio = radioNamed("Kenwood");
    module.settings.rig = radio.rig;
    module.settings.comPort = "com1";
    for (const long hertz : {7'050'000, 7'050'000, 14'050'000}) // the first as the page opens
        serialPort.answers.push_back({radio.query, radio.reply(hertz)});
    openPage(joe);
    settle();
    enterCall("k1abc");
    enter();
    EXPECT_EQ(logged(), joe);
    EXPECT_EQ(texts(page, "Text2 Text7 Label26"),
              "|14.050|REFUSED: K1ABC 20 METERS 0012 IS IN THE LOG|");
}

// Which message, and what is left in the call box afterwards.
TEST_F(MainPageTest, WhatCannotBeLoggedIsSaidAndIsNotInTheLog) {
    openPage();
    const std::tuple<const char*, const char*, std::string_view, const char*> rows[] = {
        {"10120", "JOHN", "10.120 MHz IS NOT A VALID SPRINT FREQUENCY", ""},
        {"QRL", "JOHN", frequencyMissingText, "K1ABC"},
        {"14.05", "BARTHOLOMEW", invalidEntryText, ""}};
    for (const auto& [frequency, myName, text, call] : rows) {
        module.settings.myName = myName;
        type(page, "Text7", frequency);
        enterCall("");
        enterCall("k1abc");
        messages.expect(std::string(text));
        enter();
        EXPECT_EQ(shown(page, "Text2"), call) << text;
        EXPECT_EQ(messages.shown.back().icon == BoxIcon::critical, frequency[1] == '0');
        press(page, "Text2", Qt::Key_Escape);
    }
    EXPECT_THAT(messages.shown.back().informative, HasSubstr("my name"));
    type(page, "Text7", "");
    messages.expect(std::string(frequencyMissingText));
    enterCall("w5new");
    EXPECT_EQ(shown(page, "Text2") + logged(), "");
}

TEST_F(MainPageTest, FullDiskKeepsTheTypingUntilTheContactIsOnTheDiskAndThenClearsIt) {
    openPage();
    enterCall("k1abc");
    calls.failAt(Call::write, 1, ENOSPC);
    messages.expect("Run-time error 61: Disk full");
    enter();
    EXPECT_THAT(messages.shown.back().informative, HasSubstr(log));
    EXPECT_EQ(texts(page, "Text2 Text5") + logged(), "K1ABC|0123T     |");

    calls.failAt(Call::write, 2, ENOSPC); // the worked-stations file, after the log
    messages.expect("Run-time error 61: Disk full");
    messages.whileShown = [this] { EXPECT_EQ(shown(page, "Text2"), ""); };
    enter();
    EXPECT_THAT(messages.shown.back().informative,
                AllOf(HasSubstr("StnsWorked.TXT"), HasSubstr("THE QSO IS IN THE LOG")));
    EXPECT_EQ(logged() + shown(page, "Text1"), joe + "01");

    std::filesystem::remove(folder.path() / log); // it starts again with the contact
    enterCall("w5new");
    messages.whileShown = nullptr;
    messages.expect(std::string(logStartedAgainText));
    enterNumber();
    EXPECT_THAT(messages.shown.back().informative, HasSubstr(log));
    EXPECT_EQ(folder.read(log) + shown(page, "Text1"), unknown + "01");
    EXPECT_THAT(lines(page, "List1"), ElementsAre(HasSubstr("W5NEW")));
}

// What the page says of the contact, from the first letter to the line in the log.
TEST_F(MainPageTest, HintsTellWhatHappenedAndWhatComesNext) {
    openPage(joe);
    EXPECT_EQ(texts(page, "Label12 Label13 Label11 Text7"),
              "FILE NAME:  SKS061611.CBR|Dupes Not Logged|AUTO READ OFF|14.050|");
    const auto hint = [this] { return shown(page, "Label26"); };
    type(page, "Text2", "k1a");
    EXPECT_EQ(texts(page, "Label29 Label30 Label24"), "11|1 QSOs x 1 S/P/C + 10|K1ABC 20|");
    EXPECT_THAT(lines(page, "List2"), ElementsAre("K1ABC JOE CT 0123T DUPE"));
    enter();
    EXPECT_EQ(hint(), "REFUSED: K1ABC 20 METERS 0012 IS IN THE LOG");
    press(page, "Text2", Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(texts(page, "Text2 Label26"), "K1A||");

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
    EXPECT_EQ(module.marker + texts(page, "Label26 Label25 Label23"),
              "      NOT IN THE ROSTER: NAME, STATE, SKCC#   K3Y/EU TAKEN BACK BY SEARCH||   "
              "None     |");
    enterCall("w5new");
    EXPECT_EQ(hint(), "NOT IN THE ROSTER: NAME, STATE, SKCC#");
    press(page, "Text2", Qt::Key_Space);
    EXPECT_EQ(focus(), "Text3");
    enterNumber();
    EXPECT_EQ(hint() + logged(), "LOGGED W5NEW 14050 0012  NO NAME  NO STATE" + joe + unknown);
    type(page, "Text2", "w5new");
    click(page, "Command3"); // without SEARCH
    EXPECT_THAT(hint(), HasSubstr("REPEATS W5NEW 20 METERS 0012"));
    enterCall("77777");
    EXPECT_EQ(texts(page, "Label26 Text2"), "NO MEMBER 77777||");
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
    EXPECT_EQ(shown(page, "Text2"), ""); // and leaves the page open
}

} // namespace
} // namespace vantrel::test
