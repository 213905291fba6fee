// SPDX-License-Identifier: MIT
#include "screens/start/startlists.h"
#include "screens/start/startlog.h"
#include "support/contacts.h"
#include "support/qt/formharness.h"

#include <QLineEdit>

#include <cerrno>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

using ::testing::HasSubstr;

constexpr const char* page = "frmVantrelStart";

class StartPageTest : public ::testing::Test, public FormHarness {
protected:
    void openPage() { screens.open(Screen::start); }

    void fillIn() {
        type(page, "Text2", "w1abc");
        type(page, "Text6", "john");
        type(page, "Text7", "ma");
        type(page, "Text8", "1234t");
        type(page, "Text9", "sks061611.cbr");
    }
};

const std::string savedByFillIn =
    "W1ABC\r\nSKS\r\n0\r\nNone\r\nJOHN      \r\nMA \r\n1234T \r\nNone\r\n"
    "None\r\nNone\r\nSKS\r\nSKS061611.CBR\r\n          \r\nNO\r\n";

TEST_F(StartPageTest, StartSavesWhatThePageShowsAndOpensTheLog) {
    folder.write("SKS061611.CBR", logHeaderLines + contactLine({}) + "\r\n");
    openPage();
    fillIn();
    click(page, "Command2");
    EXPECT_EQ(folder.read("Vantrel.CFG"), savedByFillIn);
    EXPECT_EQ(folder.read("SKS061611.CBR"), logHeaderLines + contactLine({}) + "\r\n");
    EXPECT_FALSE(isOpen(page));
    EXPECT_EQ(shown("frmVantrelMain", "Label12"), "FILE NAME:  SKS061611.CBR");
    EXPECT_EQ(shown("frmVantrelMain", "Text1"), "01");
}

TEST_F(StartPageTest, EverySettingComesBack) {
    folder.write(
        "Vantrel.CFG",
        "W1ABC\r\nSKSE\r\n5\r\nHex 6A\r\nJOHN      \r\nMA \r\n1234T \r\nIC-7800\r\ncom3\r\n"
        "57600\r\nMY SPRINT\r\nX.CBR\r\nK9SKC     \r\nYES\r\n");
    module.settings = loadSettings(files);
    openPage();
    EXPECT_EQ(shown(page, "Text6"), "JOHN");
    EXPECT_EQ(shown(page, "Combo1"), "IC-7800");
    EXPECT_EQ(shown(page, "Combo2"), "Com3");
    EXPECT_EQ(shown(page, "Combo3"), "56700");
    EXPECT_EQ(shown(page, "Combo4"), "Hex 6A");
    EXPECT_EQ(shown(page, "Combo5"), "5");
    EXPECT_EQ(shown(page, "Text10"), "K9SKC");
    const std::string before = folder.read("Vantrel.CFG");
    messages.expect(std::string(fileNotFoundText));
    click(page, "Command2");
    EXPECT_EQ(folder.read("Vantrel.CFG"), before);
}

TEST_F(StartPageTest, CommasAndQuotesCannotBreakTheConfiguration) {
    folder.write("A B.CBR", "");
    openPage();
    fillIn();
    type(page, "Text6", "jo,\"hn");
    type(page, "Text9", "a,b.cbr");
    type(page, "Text1", "my \"sprint\"");
    click(page, "Command2");
    const OperatingSettings back = loadSettings(files);
    EXPECT_EQ(back.myName, "JO  HN");
    EXPECT_EQ(back.contestText, "MY  SPRINT");
    EXPECT_EQ(back.logFileName, "A B.CBR");
    EXPECT_EQ(back.dupeMode, "NO");
    EXPECT_TRUE(isOpen("frmVantrelMain"));
}

TEST_F(StartPageTest, LogThatCannotBeOpenedKeepsTheOperatorHere) {
    openPage();
    fillIn();
    messages.expect(std::string(fileNotFoundText));
    click(page, "Command2");
    type(page, "Text9", "nowhere/x.cbr");
    messages.expect(std::string(pathNotFoundText));
    click(page, "Command2");
    type(page, "Text9", "");
    messages.expect(std::string(fileNotFoundText));
    click(page, "Command2");
    EXPECT_EQ(messages.shown.back().icon, BoxIcon::critical);
    std::filesystem::create_directory(folder.path() / "folder.cbr");
    type(page, "Text9", "folder.cbr");
    messages.expect("Run-time error 75: Path/File access error");
    click(page, "Command2");
    EXPECT_THAT(messages.shown.back().informative, HasSubstr("folder.cbr"));
    EXPECT_TRUE(isOpen(page));
    EXPECT_FALSE(isOpen("frmVantrelMain"));
}

TEST_F(StartPageTest, SettingsThatCannotBeSavedStopTheStart) {
    folder.write("Vantrel.CFG", "old");
    folder.write("SKS061611.CBR", logHeaderLines);
    openPage();
    fillIn();
    calls.failAt(Call::write, 1, ENOSPC);
    messages.expect("Run-time error 61: Disk full");
    click(page, "Command2");
    EXPECT_THAT(messages.shown.back().informative, HasSubstr("Vantrel.CFG"));
    EXPECT_EQ(folder.read("Vantrel.CFG"), "old");
    EXPECT_EQ(shown(page, "Text6"), "JOHN");
    EXPECT_TRUE(isOpen(page));
}

TEST_F(StartPageTest, NewFileTakesWhatThePageShowsNow) {
    openPage();
    fillIn();
    messages.expect(std::string(newFileQuestion), false);
    choose(page, "Combo7", "YES");
    EXPECT_FALSE(folder.has("sks061611.cbr"));
    EXPECT_EQ(shown(page, "Combo7"), "NO");

    messages.expect(std::string(newFileQuestion), true);
    choose(page, "Combo7", "YES");
    EXPECT_EQ(messages.shown.back().title, "WARNING");
    EXPECT_EQ(folder.read("sks061611.cbr"), logHeaderLines);
    EXPECT_EQ(shown(page, "Combo7"), "NO");
    click(page, "Command2"); // upper case on the page, the same file on the disk
    EXPECT_EQ(shown("frmVantrelMain", "Label12"), "FILE NAME:  SKS061611.CBR");
    EXPECT_FALSE(folder.has("SKS061611.CBR"));
}

TEST_F(StartPageTest, OldContactsAreKeptBesideANewFile) {
    const std::string old = logHeaderLines + contactLine({}) + "\r\n";
    folder.write("SKS061611.CBR", old);
    folder.write("SKS061611.CBR.OLD", "older");
    openPage();
    fillIn();
    type(page, "Text9", "SKS061611.CBR");
    messages.expect(std::string(newFileQuestion), true);
    choose(page, "Combo7", "YES");
    EXPECT_EQ(folder.read("SKS061611.CBR"), logHeaderLines);
    EXPECT_EQ(folder.read("SKS061611.CBR.OLD"), "older");
    EXPECT_EQ(folder.read("SKS061611.CBR.OLD2"), old);
    EXPECT_THAT(shown(page, "Label14"), HasSubstr("SKS061611.CBR.OLD2"));
}

TEST_F(StartPageTest, NewFileWithoutANameIsRefused) {
    openPage();
    messages.expect(std::string(newFileQuestion), true);
    messages.expect("Run-time error 75: Path/File access error");
    choose(page, "Combo7", "YES");
    EXPECT_THAT(messages.shown.back().informative, HasSubstr("name"));
}

TEST_F(StartPageTest, MainPageKeepsItsLogUntilAnotherIsOpen) {
    folder.write("SKS061611.CBR", logHeaderLines);
    openPage();
    fillIn();
    click(page, "Command2");
    screens.open(Screen::start); // from the file screen
    type(page, "Text9", "new.cbr");
    messages.expect(std::string(newFileQuestion), true);
    choose(page, "Combo7", "YES");
    type(page, "Text9", "nosuch.cbr");
    messages.expect(std::string(fileNotFoundText));
    click(page, "Command2");
    form(page)->close();
    type("frmVantrelMain", "Text2", "k9skc");
    click("frmVantrelMain", "Command3");
    EXPECT_EQ(shown("frmVantrelMain", "Label12"), "FILE NAME:  SKS061611.CBR");
    EXPECT_THAT(folder.read("SKS061611.CBR"), HasSubstr("K9SKC"));
    EXPECT_EQ(folder.read("new.cbr"), logHeaderLines);
    EXPECT_FALSE(folder.has("NOSUCH.CBR"));
}

TEST_F(StartPageTest, NewFileInPlaceOfTheSettingsIsRefused) {
    folder.write("Vantrel.CFG", "settings");
    openPage();
    type(page, "Text9", "vantrel.cfg");
    messages.expect(std::string(newFileQuestion), true);
    messages.expect("Run-time error 75: Path/File access error");
    choose(page, "Combo7", "YES");
    EXPECT_EQ(folder.read("Vantrel.CFG"), "settings");
}

TEST_F(StartPageTest, DefaultNameFollowsContestAndLocalDate) {
    openPage();
    click(page, "Option3");
    EXPECT_EQ(shown(page, "Text1"), "WES");
    type(page, "Text1", "other");
    click(page, "Command4");
    EXPECT_EQ(shown(page, "Text9"), "WES061611.CBR");
    EXPECT_EQ(shown(page, "Text1"), "WES");
}

TEST_F(StartPageTest, ClearedBonusStationIsTenBlanks) {
    folder.write("SKS061611.CBR", logHeaderLines);
    openPage();
    fillIn();
    type(page, "Text10", "k9skc");
    click(page, "Command6");
    EXPECT_EQ(shown(page, "Text10"), "          ");
    click(page, "Command2");
    EXPECT_EQ(folder.read("Vantrel.CFG"), savedByFillIn);
}

TEST_F(StartPageTest, BoxesTakeNoMoreThanTheirFields) {
    openPage();
    type(page, "Text2", "W1ABCDEFGHIJ");
    type(page, "Text6", "BARTHOLOMEW");
    type(page, "Text7", "MASS");
    type(page, "Text8", "1234567");
    type(page, "Text10", "K9SKCK9SKCK9");
    EXPECT_EQ(shown(page, "Text2"), "W1ABCDEFGH");
    EXPECT_EQ(shown(page, "Text6"), "BARTHOLOME");
    EXPECT_EQ(shown(page, "Text7"), "MAS");
    EXPECT_EQ(shown(page, "Text8"), "123456");
    EXPECT_EQ(shown(page, "Text10"), "K9SKCK9SKC");
}

TEST_F(StartPageTest, TimeFollowsTheOffset) {
    clock.time = {2011, 6, 16, 22, 30, 0};
    openPage();
    EXPECT_EQ(shown(page, "Label12"), "2230 UTC   2011-06-16");
    choose(page, "Combo5", "5");
    EXPECT_EQ(shown(page, "Label12"), "0330 UTC   2011-06-17");
}

TEST(StartLists, StoreWhatTheRestOfTheProgramKnows) {
    EXPECT_EQ(rigList().size(), 44U);
    EXPECT_EQ(civList().size(), 29U);
    EXPECT_EQ(offsetList().size(), 25U);
    EXPECT_EQ(rigList()[6].shown, "FTdx-5000");
    EXPECT_EQ(rigList()[6].stored, "FTdx5000");
    EXPECT_EQ(baudList()[2].shown, "56700");
    EXPECT_EQ(baudList()[2].stored, "57600");
    EXPECT_EQ(portList()[10].shown, "Com10");
    EXPECT_EQ(portList()[10].stored, "com10");
    // One address per model, from the first of the family to the last.
    EXPECT_EQ(rigList().size() - 4 - 12, civList().size() - 1);
    EXPECT_EQ(positionOf(civList(), "Hex 66", "None"), 4);
    EXPECT_EQ(positionOf(offsetList(), "??", "0"), 12);
}

} // namespace
} // namespace vantrel::test
