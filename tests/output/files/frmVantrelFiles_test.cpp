// SPDX-License-Identifier: MIT
#include "output/adif/adif.h"
#include "output/adif/strictadif.h"
#include "output/score/contacts.h"
#include "support/qt/formharness.h"

#include <QApplication>
#include <QRadioButton>

#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

constexpr const char* page = "frmVantrelFiles";
constexpr const char* viewer = "frmVantrelShowDB";
constexpr const char* list = "frmVantrelList";

class FilesPage : public ::testing::Test, public FormHarness {
protected:
    FilesPage() {
        module.settings.logFileName = "SKS.CBR";
        folder.write("SKS.CBR", logOf(contacts));
        module.log.open("SKS.CBR");
        screens.open(Screen::files);
    }

    static std::string itemFile(int items) {
        std::string bytes;
        while (items-- > 0)
            bytes += "X\r\n";
        return bytes;
    }

    const std::vector<std::string> contacts{line({.number = "1234T"}),
                                            line({.frequency = "7045", .marker = "DUPE"})};
};

TEST_F(FilesPage, WritesBothAdifFilesAndSaysWhere) {
    click(page, "Option6");
    EXPECT_EQ(folder.read("SKS.ADI"), adifText(views(contacts)));
    EXPECT_EQ(shown(page, "Label5"), "ADIF FILE CREATED AT:");
    EXPECT_EQ(shown(page, "Text2"), folder.string() + "/SKS.ADI");

    clock.time = {2011, 6, 16, 22, 12, 30};
    module.settings.gmtOffset = "5";
    click(page, "Option14");
    EXPECT_EQ(folder.read("SKS-STRICT.ADI"), strictAdifText(views(contacts), "20110617 031230"));
    EXPECT_EQ(shown(page, "Text2"), folder.string() + "/SKS-STRICT.ADI");

    folder.write("SKS.CBR", logOf(std::vector<std::string>(12001, contacts[0])));
    messages.expect("Run-time error 9: Subscript out of range");
    click(page, "Option6");
    folder.write("SKS.CBR", logOf({}));
    module.log.reread();
    calls.failAt(Call::write, 1, ENOSPC);
    messages.expect("Run-time error 61: Disk full");
    click(page, "Option6");
    EXPECT_EQ(folder.read("SKS.ADI"), adifText(views(contacts)));
    calls.heal();
    click(page, "Option6"); // a job runs on each click
    EXPECT_EQ(folder.read("SKS.ADI"), adifText({}));
}

TEST_F(FilesPage, ALogThatIsCalledLikeItsAdifFileIsNotWrittenOver) {
    folder.write("sks.adi", logOf(contacts));
    module.log.open("SKS.ADI");
    messages.expect("Run-time error 75: Path/File access error");
    click(page, "Option6");
    EXPECT_EQ(folder.read("sks.adi"), logOf(contacts));
    EXPECT_EQ(shown(page, "Text2"), "");
}

TEST_F(FilesPage, PrintsEveryItemOfTheLog) {
    printer.hasPrinter = false;
    messages.expect("THE FILE HAS BEEN SENT TO THE PRINTER");
    click(page, "Option12");
    EXPECT_THAT(printer.jobs.back(),
                ElementsAre("SKS.CBR", "", "Contest: SKS", "My Call: W1ABC", "My SKCC#: 1234T ",
                            "Count: 66 to HisCall", contacts[0], contacts[1]));
    EXPECT_EQ(folder.read("SKS-LOG.PDF"), "a PDF");
    EXPECT_THAT(messages.shown.back().informative, HasSubstr(folder.string() + "/SKS-LOG.PDF"));

    folder.write("SKS-LOG.PDF", "the one before");
    calls.failAt(Call::write, 1, ENOSPC);
    messages.expect("Run-time error 61: Disk full");
    click(page, "Option12");
    EXPECT_EQ(folder.read("SKS-LOG.PDF"), "the one before");
    calls.heal();

    folder.write("SKS.CBR", itemFile(12000));
    messages.expect("THE FILE HAS BEEN SENT TO THE PRINTER");
    click(page, "Option12");
    EXPECT_THAT(printer.jobs.back(), SizeIs(12002));
    folder.write("SKS.CBR", itemFile(12001));
    messages.expect("Run-time error 9: Subscript out of range");
    click(page, "Option12");
    EXPECT_THAT(printer.jobs, SizeIs(3));
}

TEST_F(FilesPage, ShowsEachMemberFile) {
    messages.expect("Run-time error 53: File not found");
    click(page, "Option3");
    folder.write("SKSDB3.TXT", itemFile(8001));
    messages.expect("Run-time error 9: Subscript out of range");
    click(page, "Option3");
    EXPECT_FALSE(isOpen(viewer));
    for (const std::string number : {"1", "2", "3", "4", "5"}) {
        folder.write("SKSDB" + number + ".TXT", "CALL" + number + "     0002\r\nX, Y\r\n");
        click(page, ("Option" + number).c_str());
        EXPECT_THAT(lines(viewer, "List1"), ElementsAre("CALL" + number + "     0002", "X", "Y"));
        EXPECT_EQ(shown(viewer, "Label1"), folder.string() + "/SKSDB" + number + ".TXT   3 LINES");
    }
}

TEST_F(FilesPage, SortsTheMemberFiles) {
    for (const char* name : {"SKSDB1.TXT", "SKSDB2.TXT", "SKSDB3.TXT", "SKSDB4.TXT", "SKSDB5.TXT"})
        folder.write(name, "K2A       0002\r\nK1A       0001\r\n");
    messages.expect("THE DATABASE FILES HAVE BEEN ALPHABETIZED BY SKCC#s");
    click(page, "Option13");
    EXPECT_EQ(folder.read("SKSDB5.TXT"), "K1A       0001\r\nK2A       0002\r\n");
}

TEST_F(FilesPage, ListsTheAdifFileOrTheLogAndReturnsHere) {
    click(page, "Option6");
    click(page, "Option7");
    EXPECT_EQ(lines(list, "List1").front(), "<EOH>");
    click(page, "Option8");
    EXPECT_EQ(lines(list, "List1").front(), " Contest: SKS");
    click(page, "Option7");
    click(list, "Command1");
    settle();
    EXPECT_EQ(QApplication::activeWindow(), form(page));

    click(page, "Option7"); // the main page takes it over for the log
    screens.open(Screen::main);
    settle();
    click("frmVantrelMain", "Command6");
    EXPECT_EQ(lines(list, "List1").front(), " Contest: SKS");
    click(list, "Command1");
    settle();
    EXPECT_EQ(QApplication::activeWindow(), form("frmVantrelMain"));
}

TEST_F(FilesPage, TheLastJobRunIsTheOneChosen) {
    for (const std::string option : {"Option6", "Option14", "Option14"}) {
        click(page, option.c_str());
        for (const char* other : {"Option6", "Option14"})
            EXPECT_EQ(control<QRadioButton>(page, other)->isChecked(), other == option);
    }
}

TEST_F(FilesPage, ArrowKeysRunNoJob) {
    press(page, "Option5", Qt::Key_Down);
    settle();
    EXPECT_FALSE(folder.has("SKS.ADI"));
    EXPECT_TRUE(messages.shown.empty());
}

} // namespace
} // namespace vantrel::test
