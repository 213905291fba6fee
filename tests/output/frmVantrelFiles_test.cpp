// SPDX-License-Identifier: MIT
#include "fakes/failingcalls.h"
#include "output/adif.h"
#include "output/contacts.h"
#include "output/strictadif.h"
#include "support/qt/formharness.h"

#include <QApplication>
#include <QRadioButton>
#include <QTest>

#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr const char* page = "frmVantrelFiles";
constexpr const char* viewer = "frmVantrelShowDB";
constexpr const char* list = "frmVantrelList";

class FilesPage : public ::testing::Test, public FormHarness {
protected:
    FilesPage() {
        module.settings.logFileName = "SKS.CBR";
        folder.write("SKS.CBR", logOf(contacts));
        screens.open(Screen::files);
    }

    const std::vector<std::string> contacts{line({.number = "1234T"}),
                                            line({.frequency = "7045", .marker = "DUPE"})};
};

TEST_F(FilesPage, WritesTheAdifFileOnEachClick) {
    EXPECT_EQ(shown(page, "Label5"), "");
    click(page, "Option6");
    EXPECT_EQ(folder.read("SKS.ADI"), adifText(views(contacts)));
    EXPECT_EQ(shown(page, "Label5"), "ADIF FILE CREATED AT:");
    EXPECT_EQ(shown(page, "Text2"), folder.string() + "/SKS.ADI");
    folder.write("SKS.CBR", logOf({}));
    click(page, "Option6");
    EXPECT_EQ(folder.read("SKS.ADI"), adifText({}));
    EXPECT_TRUE(control<QRadioButton>(page, "Option6")->isChecked());
}

TEST_F(FilesPage, WritesTheStrictAdifFileBesideIt) {
    clock.time = {2011, 6, 16, 22, 12, 30};
    module.settings.gmtOffset = "5";
    click(page, "Option14");
    EXPECT_EQ(folder.read("SKS-STRICT.ADI"), strictAdifText(views(contacts), "20110617 031230"));
    EXPECT_EQ(shown(page, "Text2"), folder.string() + "/SKS-STRICT.ADI");
    EXPECT_FALSE(folder.has("SKS.ADI"));
}

TEST_F(FilesPage, AFailedJobSaysWhichFileAndShowsNoPath) {
    printer.hasPrinter = false;
    for (const auto& [option, file] :
         {std::pair{"Option6", "SKS.ADI"}, {"Option12", "SKS-LOG.PDF"}}) {
        folder.write(file, "the one before");
        calls.failAt(Call::write, 1, ENOSPC);
        messages.expect("Run-time error 61: Disk full");
        click(page, option);
        EXPECT_THAT(messages.shown.back().informative, HasSubstr(file));
        EXPECT_EQ(shown(page, "Text2"), "");
        EXPECT_EQ(folder.read(file), "the one before");
    }
}

TEST_F(FilesPage, PrintsTheWholeLog) {
    printer.hasPrinter = false;
    messages.expect("THE FILE HAS BEEN SENT TO THE PRINTER");
    click(page, "Option12");
    EXPECT_THAT(printer.jobs.back(),
                ElementsAre("SKS.CBR", "", "Contest: SKS", "My Call: W1ABC", "My SKCC#: 1234T ",
                            "Count: 66 to HisCall", contacts[0], contacts[1]));
    EXPECT_EQ(folder.read("SKS-LOG.PDF"), "a PDF");
    EXPECT_THAT(messages.shown.back().informative, HasSubstr(folder.string() + "/SKS-LOG.PDF"));
    EXPECT_EQ(messages.shown.back().icon, BoxIcon::exclamation);
}

TEST_F(FilesPage, ShowsEachMemberFile) {
    for (const std::string number : {"1", "2", "3", "4", "5"}) {
        folder.write("SKSDB" + number + ".TXT", "CALL" + number + "     0002\r\nX, Y\r\n");
        click(page, ("Option" + number).c_str());
        EXPECT_THAT(lines(viewer, "List1"), ElementsAre("CALL" + number + "     0002", "X", "Y"));
        EXPECT_EQ(shown(viewer, "Label1"), folder.string() + "/SKSDB" + number + ".TXT   3 LINES");
        EXPECT_EQ(module.rosterFile, "\\SKSDB" + number + ".TXT");
    }
}

TEST_F(FilesPage, AMemberFileThatIsMissingOrTooLongOpensNoViewer) {
    messages.expect("Run-time error 53: File not found");
    click(page, "Option3");
    std::string tooLong;
    for (int i = 0; i < 8001; ++i)
        tooLong += "X\r\n";
    folder.write("SKSDB3.TXT", tooLong);
    messages.expect("Run-time error 9: Subscript out of range");
    click(page, "Option3");
    EXPECT_FALSE(isOpen(viewer));
}

TEST_F(FilesPage, SortsTheMemberFiles) {
    messages.expect("Run-time error 53: File not found");
    click(page, "Option13");
    for (const char* number : {"1", "2", "3", "4", "5"})
        folder.write(std::string("SKSDB") + number + ".TXT",
                     "K2A       0002\r\nK1A       0001\r\n");
    messages.expect("THE DATABASE FILES HAVE BEEN ALPHABETIZED BY SKCC#s");
    click(page, "Option13");
    for (const char* number : {"1", "2", "3", "4", "5"})
        EXPECT_EQ(folder.read(std::string("SKSDB") + number + ".TXT"),
                  "K1A       0001\r\nK2A       0002\r\n");
}

TEST_F(FilesPage, ListsTheAdifFileOrTheLogAndReturnsHere) {
    click(page, "Option6");
    click(page, "Option7");
    EXPECT_THAT(lines(list, "List1"), ::testing::SizeIs(4));
    EXPECT_EQ(lines(list, "List1").front(), "<EOH>");
    click(page, "Option8");
    EXPECT_EQ(lines(list, "List1").front(), " Contest: SKS");
    click(list, "Command1");
    settle();
    EXPECT_FALSE(isOpen(list));
    EXPECT_EQ(QApplication::activeWindow(), form(page));
    // Whoever opens it next gets the log.
    EXPECT_FALSE(module.listShowsAdif);
    EXPECT_FALSE(module.listFromFileScreen);
}

TEST_F(FilesPage, TheMainPageTakesTheListOverForTheLog) {
    click(page, "Option6");
    click(page, "Option7");
    screens.open(Screen::main);
    settle();
    click("frmVantrelMain", "Command6");
    EXPECT_EQ(lines(list, "List1").front(), " Contest: SKS");
    click(list, "Command1");
    settle();
    EXPECT_EQ(QApplication::activeWindow(), form("frmVantrelMain"));
}

TEST_F(FilesPage, ArrowKeysRunNoJob) {
    press(page, "Option5", Qt::Key_Down);
    press(page, "Option5", Qt::Key_Right);
    settle();
    EXPECT_FALSE(folder.has("SKS.ADI"));
    EXPECT_TRUE(messages.shown.empty());
}

} // namespace
} // namespace vantrel::test
