// SPDX-License-Identifier: MIT
#include "fakes/radios.h"
#include "screens/main/qsoentry.h"
#include "support/qt/formharness.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QTableWidget>
#include <QTimer>

namespace vantrel::test {
namespace {

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

    void enter() { work(page, "Text2!"); }

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

TEST_F(MainPageTest, EnterLeadsOnAndLogsWhatTheBoxesHold) {
    openPage();
    work(page, "Text2=,k1abc!");
    EXPECT_EQ(focus(), "Text2");
    press(page, "Combo2", Qt::Key_Return); // selects the name
    typeOn("Text3", "bill");
    EXPECT_EQ(shown(page, "Text3"), "BILL");
    work(page, "Text2=k1abc! Text2!");
    EXPECT_EQ(logged(), joe);
    EXPECT_EQ(boxes() + focus(), "||||Text2");
    work(page, "Text7=7040!");
    EXPECT_EQ(texts(page, "Text7 Label10"), "7.040|40 Meters |");
    work(page, "Text2=w5new! Combo1=559! Combo2=448! Text3=bob! Text4=tx!");
    EXPECT_EQ(focus(), "Text5");
    work(page, "Text5=none");
    control<QLineEdit>(page, "Text3")->setText(QStringLiteral("BO")); // as dictation does
    press(page, "Text5", Qt::Key_Return);
    EXPECT_EQ(logged(), joe + "QSO:  7040 CW 2011-06-16 0012 W1ABC      559 JOHN       MA 1234T "
                              "W5NEW      448 BO         TX  NONE        \r\n");
    EXPECT_EQ(texts(page, "Combo1 Combo2"), "599|599|");
}

TEST_F(MainPageTest, RefusedDupeLeavesNothingBehindAndItsScreenTakesNoFocus) {
    openPage(joe);
    work(page, "Text3=JIM Text2=k1ab!"); // a prefix is enough
    EXPECT_EQ(boxes() + std::to_string(sound.alarms), "||||1");
    work(page, "Command12 Text2=k1abc! Text3=BI");
    EXPECT_EQ(shown(page, "Command12") + std::to_string(sound.alarms), "AUDIO OFF1");
    form(dupeScreen)->findChild<QTimer*>(QStringLiteral("Timer1"))->setInterval(0);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !isOpen(dupeScreen); }, 3000));
    EXPECT_EQ(focus(), "Text3");
}

TEST_F(MainPageTest, BadRosterIsToldAtSearchOnlyAndSettingTooWideAtLog) {
    std::filesystem::create_directory(folder.path() / "SKSDB4.TXT");
    openPage();
    module.settings.myName = "BARTHOLOMEW";
    type(page, "Text2", "w5new"); // not at each key
    messages.expect("Run-time error 75: Path/File access error");
    enter();
    EXPECT_EQ(boxes(), "W5NEW||||");
    messages.expect(std::string(invalidEntryText));
    work(page, "Text5=none!");
    EXPECT_THAT(messages.shown.back().informative, HasSubstr("my name"));
    EXPECT_EQ(boxes() + logged(), "||||");
}

TEST_F(MainPageTest, FullDiskKeepsTheTypingUntilTheContactIsOnTheDiskAndThenClearsIt) {
    openPage();
    work(page, "Text2=k1abc!");
    for (const auto& [failure, told, remedy] :
         {std::tuple(ENOSPC, "Run-time error 61: Disk full", "MAKE ROOM ON THE DISK"),
          std::tuple(EACCES, "Run-time error 70: Permission denied", "ALLOW THE FILE")}) {
        calls.failAt(Call::write, 1, failure);
        messages.expect(told);
        enter();
        EXPECT_THAT(messages.shown.back().informative,
                    AllOf(HasSubstr(log), HasSubstr(std::string("THE BOXES ARE KEPT: ") + remedy)));
        EXPECT_EQ(texts(page, "Text2 Text5") + logged(), "K1ABC|0123T     |");
    }

    calls.failAt(Call::write, 2, ENOSPC); // the worked-stations file, after the log
    messages.expect("Run-time error 61: Disk full");
    messages.whileShown = [this] { EXPECT_EQ(shown(page, "Text2"), ""); };
    enter();
    EXPECT_THAT(messages.shown.back().informative,
                AllOf(HasSubstr("StnsWorked.TXT"), HasSubstr("THE QSO IS IN THE LOG")));
    EXPECT_EQ(logged() + shown(page, "Text1"), joe + "01");

    std::filesystem::remove(folder.path() / log); // it starts again with the contact
    work(page, "Text2=w5new!");
    messages.whileShown = nullptr;
    messages.expect(std::string(logStartedAgainText));
    work(page, "Text5=none!");
    EXPECT_THAT(messages.shown.back().informative, HasSubstr(log));
    EXPECT_EQ(folder.read(log) + shown(page, "Text1"), unknown + "01");
    EXPECT_THAT(lines(page, "List1"), ElementsAre(HasSubstr("W5NEW")));
}

// Wherever what is shown of the contact stands, and whatever changes it.
TEST_F(MainPageTest, ShowsTheContactAsItIsAfterEachKeyAndEachChangeOfTheLog) {
    openPage(joe);
    EXPECT_EQ(texts(page, "Label28 Label12 Label13 Label11 Text7 Label29 Label30"),
              "W1ABC  SKS|FILE NAME:  SKS061611.CBR|Dupes Not Logged|AUTO READ OFF|14.050|11|1 "
              "QSOs x 1 S/P/C "
              "+ 10|");
    type(page, "Text2", "k1a");
    EXPECT_EQ(shown(page, "Label24"), "K1ABC 20");
    EXPECT_THAT(lines(page, "List2"), ElementsAre("K1ABC JOE CT 0123T DUPE"));
    EXPECT_EQ(control<QTableWidget>(page, "Table1")->item(3, 2)->text(), u"DUPE");
    folder.write(log, logHeaderLines);
    module.log.reread();
    EXPECT_EQ(control<QTableWidget>(page, "Table1")->item(3, 2)->text(), u"");
    EXPECT_THAT(lines(page, "List2"), ElementsAre("K1ABC JOE CT 0123T NEW S/P/C +10"));
    EXPECT_EQ(shown(page, "Label24"), "");
    press(page, "Text2", Qt::Key_Down);
    work(page, "List2! Text2!");
    EXPECT_EQ(texts(page, "Text3 Label26"), "JOE       |ENTER LOGS   NEW S/P/C  +10 TRIBUNE|");
    EXPECT_TRUE(control(page, "Text3")->font().italic());
    type(page, "Text3", "bill");
    EXPECT_FALSE(control(page, "Text3")->font().italic());
    press(page, "Text2", Qt::Key_Escape);
    EXPECT_EQ(boxes() + shown(page, "Label26"), "||||");
    press(page, "Text2", Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(boxes(), "K1ABC|BILL|CT |0123T     |");
    press(page, "Text2", Qt::Key_Escape);

    module.marker = "K3Y/EU";
    screens.mainPage()->showStation("-- K3Y/EU --");
    EXPECT_EQ(texts(page, "Label25 Label23"), "NEXT QSO: K3Y/EU|-- K3Y/EU --|");
    EXPECT_TRUE(control<QRadioButton>(page, "Option1")->isChecked());
    work(page, "Text2=w5new!");
    EXPECT_EQ(module.marker + texts(page, "Label26 Label25 Label23"),
              "      NOT IN THE ROSTER: NAME, STATE, SKCC#   K3Y/EU TAKEN BACK BY SEARCH||   "
              "None     |");
    EXPECT_FALSE(control<QRadioButton>(page, "Option1")->isChecked());
    press(page, "Text2", Qt::Key_Space);
    EXPECT_EQ(focus(), "Text3");
    work(page, "Text3=BOB");
    press(page, "Text2", Qt::Key_Space);
    EXPECT_EQ(focus(), "Text4");
    work(page, "Text5=none!");
    EXPECT_EQ(shown(page, "Label26"), "LOGGED W5NEW 14050 0012  NO STATE");
    press(page, "Text7", Qt::Key_U, Qt::AltModifier);
    work(page, "Text2=w5new!");
    press(page, "Text2", Qt::Key_Space);
    EXPECT_EQ(boxes(), "W5NEW|BOB||NONE|");
    enter();
    EXPECT_EQ(shown(page, "Label26"), "LOGGED W5NEW 21050 0012  NO STATE");
    click(page, "Command7");
    EXPECT_EQ(shown("frmVantrelCorrect", "Text1"), "W5NEW") << "the last one";
    press(page, "Text2", Qt::Key_Up);
    work(page, "List1!");
    EXPECT_EQ(shown("frmVantrelCorrect", "Text1"), "W5NEW");
    work("frmVantrelCorrect", "Text3=sue Command2");
    EXPECT_EQ(shown(page, "Label26"), "CORRECTED W5NEW 21050 0012");
    click("frmVantrelCorrect", "Command5");
    EXPECT_EQ(shown(page, "Label26"), "") << "undone";
    type(page, "Combo1", "449");
    press("frmVantrelCorrect", "Text1", Qt::Key_Escape);
    press(page, "List1", Qt::Key_End);
    press(page, "List1", Qt::Key_Delete);
    click("frmVantrelDelete", "Command2");
    EXPECT_EQ(texts(page, "Label26 Combo1"), "DELETED W5NEW 14050 0012|449|");
}

// It is a matter of the run: START does not turn it on again.
TEST_F(MainPageTest, AutoReadStaysOffUntilItIsTurnedOn) {
    const Radio& radio = radioNamed("Kenwood");
    module.settings.rig = radio.rig;
    module.settings.comPort = "com1";
    module.settings.baud = radio.baud;
    serialPort.answers.push_back({radio.query, radio.reply(7'050'000)});
    openPage();
    settle();
    EXPECT_EQ(texts(page, "Text7 Label10 Label11"), "7.050|40 Meters |AUTO READ ON |");
    messages.expect(radio.noReplyText);
    work(page, "Text2=k1abc!");
    EXPECT_THAT(messages.shown.back().informative, HasSubstr("ALT+A STOPS THE READING"));
    press(page, "Text2", Qt::Key_Escape);
    click(page, "Command17");
    screens.mainPage()->loadAfresh();
    settle();
    work(page, "Text2=k1abc!");
    EXPECT_EQ(texts(page, "Text7 Label11"), "14.050|AUTO READ OFF|");
    EXPECT_EQ(serialPort.sent.size(), 2U);
}

TEST_F(MainPageTest, NothingDoneByAccidentChangesAContact) {
    openPage();
    work(page, "Text2=k1abc!");
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
