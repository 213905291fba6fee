// SPDX-License-Identifier: MIT
#include "forms/colours.h"
#include "forms/formbuilder.h"
#include "forms/visiblestyle.h"
#include "screens/start/startnotes.h"
#include "support/qt/formharness.h"

namespace vantrel::test {
namespace {

constexpr const char* page = "frmVantrelStart";
constexpr const char* mainPage = "frmVantrelMain";

class StartPageTest : public ::testing::Test, public FormHarness {
protected:
    void start(const char* logFileName, std::string_view message = "") {
        type(page, "Text9", logFileName);
        if (!message.empty())
            messages.expect(std::string(message));
        click(page, "Command2");
    }

    void startNewFile(const char* logFileName, bool yes = true, const char* error = nullptr) {
        type(page, "Text9", logFileName);
        messages.expect(std::string(newFileQuestion), yes);
        if (error != nullptr)
            messages.expect(error);
        choose(page, "Combo7", "YES");
        EXPECT_EQ(shown(page, "Combo7"), "NO");
    }

    // What a label tells, and its tool tip; "!" in front of what is amber.
    std::string told(const char* label) const {
        const QWidget* found = control(page, label);
        const QColor amber = cautionColour(form(page)->palette());
        return (found->palette().windowText() == amber ? "!" : "") + shown(page, label) +
               found->toolTip().toStdString();
    }

    const std::string contacts = logHeaderLines + contactLine({}) + "\r\n";
    const std::string accessError = "Run-time error 75: Path/File access error";
};

TEST_F(StartPageTest, ShowsWhatWasSavedAndStartSavesWhatItShows) {
    folder.write("Vantrel.CFG",
                 "W1ABC\r\nWES\r\n-12\r\nHex 66\r\nJOHN      \r\nMA \r\n1234T \r\n"
                 "FTdx5000\r\ncom10\r\n57600\r\nMY SPRINT\r\nX.CBR\r\nK9SKC     \r\nYES\r\n");
    module.settings = loadSettings(files);
    clock.time = {2011, 6, 16, 22, 30, 0};
    screens.open(Screen::start);
    EXPECT_EQ(texts(page, "Text6 Text10 Combo1 Combo2 Combo3 Combo4 Label12"),
              "JOHN|K9SKC|FTdx-5000|Com10|56700|Hex 66|1030 UTC   2011-06-16|");
    work(page, "Option2 Text1=other Command4");
    EXPECT_EQ(texts(page, "Text1 Text9"), "SKSE|SKSE061611.CBR|");
    for (const char* box : {"Text2", "Text6", "Text7", "Text8", "Text10"})
        type(page, box, "abcdefghijkl"); // no box takes more than its field
    choose(page, "Combo5", "5");
    EXPECT_EQ(texts(page, "Text10 Label12"), "abcdefghij|0330 UTC   2011-06-17|");
    click(page, "Command6"); // no bonus station
    folder.write("ses 1.cbr", contacts);
    start("ses 1.cbr");
    EXPECT_EQ(folder.read("Vantrel.CFG"),
              "ABCDEFGHIJ\r\nSKSE\r\n5\r\nHex 66\r\nABCDEFGHIJ\r\nABC\r\nABCDEF\r\nFTdx5000\r\n"
              "com10\r\n57600\r\nSKSE\r\nSES 1.CBR\r\n          \r\nYES\r\n");
    EXPECT_FALSE(isOpen(page));
}

TEST_F(StartPageTest, WhatCannotBeTheLogOrBeSavedKeepsTheOperatorHere) {
    std::filesystem::create_directory(folder.path() / "folder.cbr");
    folder.write("vantrel", "the program");
    screens.open(Screen::start);
    start("", fileNotFoundText);
    start("nowhere/x.cbr", pathNotFoundText);
    start("folder.cbr", accessError);
    const std::string saved = folder.read("Vantrel.CFG");
    calls.failAt(Call::write, 1, ENOSPC);
    start("other.cbr", "Run-time error 61: Disk full");
    startNewFile("", true, accessError.c_str());
    // Those that are not there yet, too: a contest must not begin in them.
    // Nor may one without room for the names of the files beside it.
    const std::string tooLong = std::string(232, 'L') + ".cbr";
    for (const char* name :
         {"vantrel.cfg", "stnsworked.txt", "\\sksdb5.txt", "VANTREL", tooLong.c_str()})
        startNewFile(name, true, accessError.c_str());
    EXPECT_EQ(folder.read("Vantrel.CFG"), saved);
    EXPECT_FALSE(isOpen(mainPage));
}

TEST_F(StartPageTest, MainPageKeepsItsLogUntilAnotherIsOpen) {
    folder.write("sks.cbr", contacts);
    screens.open(Screen::start);
    start("sks.cbr");
    screens.open(Screen::start); // from the file screen
    startNewFile("n,w.cbr", false);
    EXPECT_EQ(told("Label14"), "");
    startNewFile("n,w.cbr");
    startNewFile("sks.cbr");
    EXPECT_THAT(messages.shown.back().informative, HasSubstr("KEPT BESIDE IT AS sks.cbr.OLD"));
    EXPECT_EQ(shown(mainPage, "Text1"), "00"); // before START, and without it
    EXPECT_EQ(shown(page, "Label14"), "THE OLD LOG IS KEPT AS " + files.path("sks.cbr.OLD"));
    start("n,w.cbr");
    EXPECT_EQ(texts(mainPage, "Label12 Text1"), "FILE NAME:  N W.CBR|00|");
}

TEST_F(StartPageTest, RigBringsItsAddressAndItsDeviceIsComparedWithTheLastStartAndTried) {
    std::filesystem::create_symlink("/dev/zero", folder.path() / "com1");
    folder.write("sks.cbr", contacts);
    screens.open(Screen::start);
    choose(page, "Combo2", "Com1");
    start("sks.cbr");
    std::filesystem::remove(folder.path() / "com1");
    std::filesystem::create_symlink("/dev/null", folder.path() / "com1");
    screens.open(Screen::start);
    EXPECT_EQ(shown(page, "Label13"), "/dev/null - WAS /dev/zero AT THE LAST START");
    choose(page, "Combo1", "FTdx-5000");
    EXPECT_FALSE(control(page, "Command8")->isEnabled());
    choose(page, "Combo1", "IC-756Pro3");
    EXPECT_EQ(texts(page, "Combo4 Label17"), "Hex 6E|ADDRESS 6E, ANY BAUD, VFO IN USE|");
    choose(page, "Combo1", "K-3");
    serialPort.answers = {{"FA;", "FA00014025000;"}};
    click(page, "Command8");
    EXPECT_EQ(shown(page, "Label17"), "14.025 MHz");
    choose(page, "Combo4", "Hex 58");
    choose(page, "Combo1", "IC-7800");
    EXPECT_EQ(shown(page, "Combo4"), "Hex 58"); // his own choice
}

TEST_F(StartPageTest, TellsWhatTheNamedLogIsAndHowManyMembersThereAre) {
    const std::string last = "2011-06-16 0012";
    module.settings.logFileName = "no.cbr";
    folder.write("SKSDB5.TXT", "VE3ABC\r\n\r\nVE3X");
    screens.open(Screen::start);
    EXPECT_TRUE(QTest::qWaitFor([this] { return told("Label16") == "2 MEMBERS"; }));
    EXPECT_EQ(told("Label15"), "NO SUCH FILE YET");
    for (const auto& [bytes, note] :
         {std::pair<std::string, std::string>{contacts, "1 QSO, LAST " + last},
          {logHeaderLines, "NO QSO YET"},
          {"My shopping list\r\n", "!NO LOG: NO HEADER, NO QSO"},
          {"", "!EMPTY: NO QSO YET"},
          {" Contest: WES\r\n" + contactLine({}), "!ITS HEADER SAYS WES1 QSO, LAST " + last}}) {
        folder.write("a.cbr", bytes);
        type(page, "Text9", "A.cbr");
        EXPECT_EQ(told("Label15"), note);
    }
}

TEST_F(StartPageTest, MarksWhatIsEmptyAndTellsWhichUtcAndSavedValuesAreDoubtful) {
    module.settings.gmtOffset = "+05";
    module.settings.rig = "FT-891";
    clock.time = {2011, 6, 16, 22, 30, 0};
    clock.ownUtc = 4 * 60;
    QApplication::setStyle(new VisibleStyle);
    screens.open(Screen::start);
    EXPECT_EQ(told("Label14"), "!SAVED, BUT IN NO LIST: RIG: FT-891");
    EXPECT_EQ(told("Label12"), "0330 UTC   2011-06-17"); // half an hour: no offset is nearer
    choose(page, "Combo5", "4");
    EXPECT_EQ(told("Label12"), "!0230 UTC   2011-06-17THE COMPUTER ITSELF SAYS 0400 UTC");
    for (const char* name : {"Text6", "Text7", "Text8", "Text2"}) {
        QWidget* box = control(page, name);
        const auto frame = [box] { return box->grab().toImage().pixelColor(box->width() / 2, 3); };
        EXPECT_EQ(frame(), cautionColour(box->palette()));
        type(page, name, "A");
        EXPECT_NE(frame(), cautionColour(box->palette()));
    }
}

} // namespace
} // namespace vantrel::test
