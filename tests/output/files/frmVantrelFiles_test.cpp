// SPDX-License-Identifier: MIT
// The file screen and what it opens, the backup and the finder.
#include "log/shortlog.h"
#include "output/adif/adif.h"
#include "output/adif/strictadif.h"
#include "support/qt/formharness.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

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
constexpr const char* backup = "frmVantrelBackup";
constexpr const char* finder = "frmFileFinder";

class FilesPage : public ::testing::Test, public FormHarness {
protected:
    FilesPage() {
        module.settings.logFileName = "SKS.CBR";
        folder.write("SKS.CBR", log);
        module.log.open("SKS.CBR");
        screens.open(Screen::files);
    }
    void clickFailing(const char* name, const char* error) {
        messages.expect(error);
        click(page, name);
    }
    void keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }
    // Clicks a line of the finder's list; returns what a double click takes.
    std::pair<QWidget*, QPoint> clickLine(const char* name, const std::string& text) {
        auto* view = control<QAbstractItemView>(finder, name);
        const std::vector<std::string> all = lines(finder, name);
        const auto row = static_cast<int>(std::find(all.begin(), all.end(), text) - all.begin());
        const QPoint place = view->visualRect(view->model()->index(row, 0)).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        return {view->viewport(), place};
    }

    const std::string contacts = logOf({&Fields::hisNumber, &Fields::marker}, "1234T; 77S DUPE");
    const std::string log = logHeaderLines + contacts;
};

TEST_F(FilesPage, WritesBothAdifFilesAtEachClickAndSaysWhere) {
    press(page, "Option5", Qt::Key_Down); // an arrow key runs no job
    EXPECT_FALSE(folder.has("SKS.ADI"));
    click(page, "Option6");
    EXPECT_EQ(folder.read("SKS.ADI"), adifText(contactsIn(contacts)));
    EXPECT_EQ(shown(page, "Label5"), "ADIF FILE CREATED AT:");
    EXPECT_EQ(shown(page, "Text2"), folder.string() + "/SKS.ADI");
    clock.time = {2011, 6, 16, 22, 12, 30};
    module.settings.gmtOffset = "5";
    click(page, "Option14");
    EXPECT_EQ(folder.read("SKS-STRICT.ADI"),
              strictAdifText(contactsIn(contacts), "20110617 031230"));
    EXPECT_EQ(shown(page, "Text2"), folder.string() + "/SKS-STRICT.ADI");
    folder.write("SKS.CBR", "");
    for (int i = 0; i < 2; ++i) {
        folder.write("SKS.ADI", "");
        click(page, "Option6");
        EXPECT_EQ(folder.read("SKS.ADI"), "<EOH>\r\n<EOF>\r\n");
        EXPECT_TRUE(control<QRadioButton>(page, "Option6")->isChecked());
        EXPECT_FALSE(control<QRadioButton>(page, "Option14")->isChecked());
    }
    folder.write("sks.adi", log); // a log that is called like its ADIF file
    std::filesystem::remove(folder.path() / "SKS.ADI");
    module.log.open("SKS.ADI");
    clickFailing("Option6", "Run-time error 75: Path/File access error");
    EXPECT_EQ(folder.read("sks.adi"), log);
}

TEST_F(FilesPage, PrintsEveryItemOfTheLog) {
    const char* const sent = "THE FILE HAS BEEN SENT TO THE PRINTER";
    printer.hasPrinter = false;
    clickFailing("Option12", sent);
    EXPECT_EQ(joinLines(printer.jobs.back()),
              "SKS.CBR\r\n\r\nContest: SKS\r\nMy Call: W1ABC\r\nMy SKCC#: 1234T \r\n"
              "Count: 66 to HisCall\r\n" +
                  contacts);
    EXPECT_EQ(folder.read("SKS-LOG.PDF"), "a PDF");
    EXPECT_THAT(messages.shown.back().informative, HasSubstr(folder.string() + "/SKS-LOG.PDF"));
    folder.write("SKS.CBR", std::string(12000, '\n'));
    clickFailing("Option12", sent);
    EXPECT_THAT(printer.jobs.back(), SizeIs(12002));
    folder.write("SKS.CBR", std::string(12001, '\n'));
    clickFailing("Option12", "Run-time error 9: Subscript out of range");
    EXPECT_THAT(printer.jobs, SizeIs(2));
}

TEST_F(FilesPage, ShowsAndSortsEachMemberFile) {
    clickFailing("Option3", "Run-time error 53: File not found");
    folder.write("SKSDB3.TXT", std::string(8001, '\n'));
    clickFailing("Option3", "Run-time error 9: Subscript out of range");
    EXPECT_FALSE(isOpen(viewer));
    for (const std::string number : {"1", "2", "3", "4", "5"}) {
        folder.write("SKSDB" + number + ".TXT", "CALL" + number + "     0002\r\nX, Y\r\n");
        click(page, ("Option" + number).c_str());
        EXPECT_THAT(lines(viewer, "List1"), ElementsAre("CALL" + number + "     0002", "X", "Y"));
        EXPECT_EQ(shown(viewer, "Label1"), folder.string() + "/SKSDB" + number + ".TXT   3 LINES");
        folder.write("SKSDB" + number + ".TXT", "K2A       0002\r\nK1A       0001\r\n");
    }
    clickFailing("Option13", "THE DATABASE FILES HAVE BEEN ALPHABETIZED BY SKCC#s");
    EXPECT_EQ(folder.read("SKSDB5.TXT"), "K1A       0001\r\nK2A       0002\r\n");
}

TEST_F(FilesPage, ListsTheAdifFileOrTheLogAndReturnsHereOrToTheMainPage) {
    clickFailing("Option7", "Run-time error 53: File not found");
    EXPECT_EQ(shown(list, "Label1"), folder.string() + "/SKS.ADI   0 LINES");
    folder.write("SKS.ADI", "<EOH>, 1\r\n\r\nJ\xDCRGEN <b>\r\n");
    click(page, "Option7");
    EXPECT_THAT(lines(list, "List1"), ElementsAre("<EOH>, 1", "", "J\xDCRGEN <b>"));
    EXPECT_EQ(shown(list, "Label1"), folder.string() + "/SKS.ADI   3 LINES");
    const auto returnsTo = [&](const char* opener) {
        EXPECT_EQ(lines(list, "List1").front(), " Contest: SKS");
        click(list, "Command1");
        settle();
        EXPECT_EQ(QApplication::activeWindow(), form(opener));
    };
    click(page, "Option8");
    returnsTo(page);
    click(page, "Option7"); // the main page takes it over for the log
    screens.open(Screen::main);
    settle();
    click("frmVantrelMain", "Command6");
    returnsTo("frmVantrelMain");
}

TEST_F(FilesPage, TheListFindsOnwardsCopiesAndScrollsToTheEndOfItsLongestLine) {
    folder.write("SKS.CBR", "K1ABC\r\nW1XYZ  \r\nK1ABD\r\n" + std::string(400, 'W') + "\r\n");
    click(page, "Option8");
    settle();
    auto* view = control<QAbstractItemView>(list, "List1");
    const auto row = [&] { return view->currentIndex().row(); };
    keys(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("k1ab"));
    EXPECT_EQ(row(), 0);
    keys(Qt::Key_Return);
    EXPECT_EQ(row(), 2);
    keys(Qt::Key_F3); // round the end
    EXPECT_EQ(row(), 0);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("x"));
    EXPECT_EQ(shown(list, "Label2"), "NOT FOUND");
    keys(Qt::Key_Escape); // ends the finding
    keys(Qt::Key_Down, Qt::ShiftModifier);
    keys(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "K1ABC\nW1XYZ  \n");
    view->horizontalScrollBar()->setValue(view->horizontalScrollBar()->maximum());
    const QRect area = view->visualRect(view->model()->index(3, 0));
    EXPECT_GE(area.width(), view->fontMetrics().horizontalAdvance(QLatin1Char('W')) * 400);
    EXPECT_LE(area.right(), view->viewport()->width());
    keys(Qt::Key_Escape);
    EXPECT_FALSE(isOpen(list));
}

TEST_F(FilesPage, TheBackupCopiesEveryByteHoweverTheFolderIsTyped) {
    std::filesystem::create_directory(folder.path() / "copies");
    module.log.open(folder.string() + "\\SKS.CBR"); // as the finder hands it back
    screens.open(Screen::backup);
    EXPECT_EQ(shown(backup, "Label5"), folder.string() + "/SKS.CBR");
    for (const char* nowhere : {"", " ", "nowhere"}) {
        type(backup, "Text1", nowhere);
        messages.expect("Run-time error 76: Path not found");
        click(backup, "Command2");
        EXPECT_EQ(shown(backup, "Label3") + shown(backup, "Text1"), nowhere);
    }
    folder.write("SKS.CBR", std::string(13000, '\n')); // more lines than contacts are counted
    for (const char* typed : {" copies  ", "COPIES\\", ".//Copies//", "."}) {
        std::filesystem::remove(folder.path() / "copies/SKS.CBR");
        type(backup, "Text1", typed);
        click(backup, "Command2");
        EXPECT_EQ(shown(backup, "Label3"), "DONE......CLICK EXIT");
        EXPECT_EQ(folder.read(*typed == '.' && typed[1] == '\0' ? "SKS.CBR" : "copies/SKS.CBR"),
                  std::string(13000, '\n'));
    }
}

TEST_F(FilesPage, TheFinderHandsBackAFolderOrAFile) {
    std::filesystem::create_directory(folder.path() / "copies");
    screens.open(Screen::backup);
    click(backup, "Command3");
    auto* drives = control<QComboBox>(finder, "drvList");
    EXPECT_EQ(drives->itemText(0), QStringLiteral("/"));
    const auto [view, place] = clickLine("dirList", "copies");
    QTest::mouseDClick(view, Qt::LeftButton, Qt::NoModifier, place);
    const std::string selected = shown(finder, "Label5");
    EXPECT_THAT(selected, ::testing::EndsWith("/COPIES/"));
    click(finder, "Command1");
    settle();
    EXPECT_FALSE(isOpen(finder));
    EXPECT_EQ(shown(backup, "Text1"), selected);
    EXPECT_EQ(QApplication::focusWidget(), control(backup, "Text1"));

    screens.open(Screen::start);
    click("frmVantrelStart", "Command3");
    EXPECT_THAT(lines(finder, "filList"), ElementsAre("SKS.CBR", "StnsWorked.TXT"));
    clickLine("filList", "SKS.CBR");
    click(finder, "Command1");
    settle();
    EXPECT_THAT(shown("frmVantrelStart", "Text9"), ::testing::EndsWith("/SKS.CBR"));

    click("frmVantrelStart", "Command3");
    drives = control<QComboBox>(finder, "drvList");
    EXPECT_NE(shown(finder, "Label5"), drives->currentText().toStdString());
    drives->activated(drives->currentIndex()); // the drive that shows is chosen again
    EXPECT_EQ(shown(finder, "Label5"), drives->currentText().toStdString());
}

} // namespace
} // namespace vantrel::test
