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

    void askForNewFile(bool yes = true, const char* error = nullptr) {
        messages.expect(std::string(newFileQuestion), yes);
        if (error != nullptr)
            messages.expect(error);
        choose(page, "Combo7", "YES");
    }
};

TEST_F(StartPageTest, StartSavesWhatThePageShowsAndOpensTheLog) {
    folder.write("SKS061611.CBR", logHeaderLines + contactLine({}) + "\r\n");
    openPage();
    fillIn();
    type(page, "Text10", "k9skc");
    click(page, "Command6");
    EXPECT_EQ(shown(page, "Text10"), "          ");
    click(page, "Command2");
    EXPECT_EQ(folder.read("Vantrel.CFG"),
              "W1ABC\r\nSKS\r\n0\r\nNone\r\nJOHN      \r\nMA \r\n1234T \r\nNone\r\n"
              "None\r\nNone\r\nSKS\r\nSKS061611.CBR\r\n          \r\nNO\r\n");
    EXPECT_EQ(folder.read("SKS061611.CBR"), logHeaderLines + contactLine({}) + "\r\n");
    EXPECT_FALSE(isOpen(page));
    EXPECT_EQ(shown("frmVantrelMain", "Label12"), "FILE NAME:  SKS061611.CBR");
    EXPECT_EQ(shown("frmVantrelMain", "Text1"), "01");
}

TEST_F(StartPageTest, EverySettingComesBack) {
    const std::string saved = "W1ABC\r\nSKSE\r\n5\r\nHex 6A\r\nJOHN      \r\nMA \r\n1234T \r\n"
                              "IC-7800\r\ncom3\r\n57600\r\nMY SPRINT\r\nX.CBR\r\n"
                              "K9SKC     \r\nYES\r\n";
    folder.write("Vantrel.CFG", saved);
    module.settings = loadSettings(files);
    openPage();
    EXPECT_EQ(shown(page, "Text6"), "JOHN");
    EXPECT_EQ(shown(page, "Combo1"), "IC-7800");
    EXPECT_EQ(shown(page, "Combo2"), "Com3");
    EXPECT_EQ(shown(page, "Combo3"), "56700");
    EXPECT_EQ(shown(page, "Combo4"), "Hex 6A");
    EXPECT_EQ(shown(page, "Combo5"), "5");
    EXPECT_EQ(shown(page, "Text10"), "K9SKC");
    messages.expect(std::string(fileNotFoundText));
    click(page, "Command2");
    EXPECT_EQ(folder.read("Vantrel.CFG"), saved);
}

TEST_F(StartPageTest, LogThatCannotBeOpenedKeepsTheOperatorHere) {
    std::filesystem::create_directory(folder.path() / "folder.cbr");
    openPage();
    fillIn();
    for (const auto& [name, text] :
         {std::pair{"no.cbr", fileNotFoundText}, std::pair{"nowhere/x.cbr", pathNotFoundText},
          std::pair{"", fileNotFoundText},
          std::pair{"folder.cbr", std::string_view("Run-time error 75: Path/File access error")}}) {
        type(page, "Text9", name);
        messages.expect(std::string(text));
        click(page, "Command2");
        EXPECT_EQ(messages.shown.back().icon, BoxIcon::critical);
    }
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
    askForNewFile(false);
    EXPECT_FALSE(folder.has("sks061611.cbr"));
    EXPECT_EQ(shown(page, "Combo7"), "NO");

    askForNewFile();
    EXPECT_EQ(messages.shown.back().title, "WARNING");
    EXPECT_EQ(folder.read("sks061611.cbr"), logHeaderLines);
    EXPECT_EQ(shown(page, "Combo7"), "NO");
    click(page, "Command2"); // upper case on the page, the same file on the disk
    EXPECT_EQ(shown("frmVantrelMain", "Label12"), "FILE NAME:  SKS061611.CBR");
    EXPECT_FALSE(folder.has("SKS061611.CBR"));
}

TEST_F(StartPageTest, OldContactsAreKeptBesideANewFile) {
    const std::string old = logHeaderLines + contactLine({}) + "\r\n";
    folder.write("sks061611.cbr", old);
    openPage();
    fillIn();
    askForNewFile();
    EXPECT_EQ(folder.read("sks061611.cbr"), logHeaderLines);
    EXPECT_EQ(folder.read("sks061611.cbr.OLD"), old);
    EXPECT_THAT(shown(page, "Label14"), HasSubstr("sks061611.cbr.OLD"));
}

TEST_F(StartPageTest, NewFileWithoutANameOrInPlaceOfTheSettingsIsRefused) {
    folder.write("Vantrel.CFG", "settings");
    openPage();
    for (const char* name : {"", "vantrel.cfg"}) {
        type(page, "Text9", name);
        askForNewFile(true, "Run-time error 75: Path/File access error");
    }
    EXPECT_EQ(folder.read("Vantrel.CFG"), "settings");
}

TEST_F(StartPageTest, MainPageKeepsItsLogUntilAnotherIsOpen) {
    folder.write("SKS061611.CBR", logHeaderLines);
    openPage();
    fillIn();
    click(page, "Command2");
    screens.open(Screen::start); // from the file screen
    type(page, "Text9", "n,w.cbr");
    askForNewFile();
    type(page, "Text9", "nosuch.cbr");
    messages.expect(std::string(fileNotFoundText));
    click(page, "Command2");
    form(page)->close();
    type("frmVantrelMain", "Text2", "k9skc");
    click("frmVantrelMain", "Command3");
    EXPECT_EQ(shown("frmVantrelMain", "Label12"), "FILE NAME:  SKS061611.CBR");
    EXPECT_THAT(folder.read("SKS061611.CBR"), HasSubstr("K9SKC"));
    EXPECT_EQ(folder.read("n w.cbr"), logHeaderLines);
    EXPECT_FALSE(folder.has("NOSUCH.CBR"));

    screens.open(Screen::start);
    type(page, "Text9", "n,w.cbr");
    click(page, "Command2");
    EXPECT_EQ(shown("frmVantrelMain", "Label12"), "FILE NAME:  N W.CBR");
    EXPECT_EQ(shown("frmVantrelMain", "Text1"), "00");
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

TEST_F(StartPageTest, BoxesTakeNoMoreThanTheirFields) {
    openPage();
    for (const auto& [box, width] :
         {std::pair{"Text2", 10}, std::pair{"Text6", 10}, std::pair{"Text7", 3},
          std::pair{"Text8", 6}, std::pair{"Text10", 10}}) {
        type(page, box, "ABCDEFGHIJKL");
        EXPECT_EQ(shown(page, box), std::string("ABCDEFGHIJKL", static_cast<std::size_t>(width)));
    }
}

TEST_F(StartPageTest, TimeFollowsTheOffset) {
    clock.time = {2011, 6, 16, 22, 30, 0};
    openPage();
    EXPECT_EQ(shown(page, "Label12"), "2230 UTC   2011-06-16");
    choose(page, "Combo5", "5");
    EXPECT_EQ(shown(page, "Label12"), "0330 UTC   2011-06-17");
}

TEST(StartLists, StoreWhatTheRestOfTheProgramKnows) {
    EXPECT_EQ(rigList()[6].shown, "FTdx-5000");
    EXPECT_EQ(rigList()[6].stored, "FTdx5000");
    EXPECT_EQ(portList()[10].shown, "Com10");
    EXPECT_EQ(portList()[10].stored, "com10");
    EXPECT_EQ(civList().size(), 29U);
    EXPECT_EQ(positionOf(civList(), "Hex 66", "None"), 4);
    EXPECT_EQ(positionOf(offsetList(), "??", "0"), 12);
}

} // namespace
} // namespace vantrel::test
