// SPDX-License-Identifier: MIT
// The file screen and what it opens, the backup and the finder.
#include "output/adif/adif.h"
#include "output/adif/strictadif.h"
#include "support/qt/formharness.h"

#include <QAbstractItemView>
#include <QClipboard>

namespace vantrel::test {
namespace {

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
    void keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }
    void enterFolder(const std::string& name) {
        auto* view = control<QAbstractItemView>(finder, "dirList");
        const std::vector<std::string> all = lines(finder, "dirList");
        const auto row = static_cast<int>(std::find(all.begin(), all.end(), name) - all.begin());
        const QPoint place = view->visualRect(view->model()->index(row, 0)).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }

    const std::string contacts = logOf({&Fields::hisNumber, &Fields::marker}, "1234T; 77S DUPE");
    const std::string log = logHeaderLines + contacts;
};

TEST_F(FilesPage, WritesBothAdifFilesAtEachClickAndSaysWhere) {
    press(page, "Option5", Qt::Key_Down); // an arrow key runs no job
    EXPECT_EQ(shown(page, "Option6Result"), "NO SUCH FILE YET");
    for (int i = 0; i < 2; ++i) {
        folder.write("SKS.ADI", "");
        click(page, "Option6");
        EXPECT_EQ(folder.read("SKS.ADI"), adifText(contactsIn(contacts)));
        EXPECT_EQ(texts(page, "Label5 Text2"),
                  "ADIF FILE CREATED AT:|" + folder.string() + "/SKS.ADI|");
    }
    clock.time = {2012, 2, 28, 22, 12, 9};
    module.settings.gmtOffset = "5";
    click(page, "Option14");
    EXPECT_EQ(folder.read("SKS-STRICT.ADI"),
              strictAdif(contactsIn(contacts), "20120229 031209").bytes);
    EXPECT_THAT(shown(page, "Option6Result"), // not on the day of the clock: with its date
                ::testing::MatchesRegex("20..-..-.. [0-2].[0-5]. SKS.ADI"));
    folder.write("SKS.ADI", log);
    module.log.open("sks.adi"); // a log that is called like its ADIF file
    clickFor("Run-time error 75: Path/File access error", page, "Option6");
    EXPECT_EQ(folder.read("SKS.ADI"), log);
    module.log.open("SKS.CBR");
    folder.write("SKS.CBR", log + "QSO: 14050 CW 2011-06-16 0012\r\n");
    click(page, "Option14");
    EXPECT_EQ(shown(page, "Label6"), "2 WRITTEN, 1 LEFT OUT: NO CALL, DATE OR TIME");
}

TEST_F(FilesPage, PrintsEveryItemOfTheLog) {
    printer.hasPrinter = false;
    clickFor("THE FILE HAS BEEN SENT TO THE PRINTER", page, "Option12");
    EXPECT_EQ(joinLines(printer.jobs.back()),
              "SKS.CBR\r\n\r\nContest: SKS\r\nMy Call: W1ABC\r\nMy SKCC#: 1234T \r\n"
              "Count: 66 to HisCall\r\n" +
                  contacts);
    EXPECT_EQ(folder.read("SKS-LOG.PDF"), "a PDF");
    folder.write("SKS.CBR", std::string(12001, '\n'));
    clickFor("Run-time error 9: Subscript out of range", page, "Option12");
}

TEST_F(FilesPage, ShowsAndSortsEachMemberFile) {
    folder.write("SKSDB3.TXT", std::string(8001, '\n'));
    clickFor("Run-time error 9: Subscript out of range", page, "Option3");
    for (const std::string number : {"1", "2", "3", "4", "5"}) {
        folder.write("SKSDB" + number + ".TXT", "CALL" + number + "     0002\r\nX, Y\r\n");
        click(page, ("Option" + number).c_str());
        EXPECT_THAT(lines(viewer, "List1"), ElementsAre("CALL" + number + "     0002", "X", "Y"));
        EXPECT_EQ(shown(viewer, "Label1"), folder.string() + "/SKSDB" + number + ".TXT   3 LINES");
        EXPECT_EQ(shown(page, ("Option" + number + "Result").c_str()), "2 MEMBERS");
        folder.write("SKSDB" + number + ".TXT", "K2A       0002\r\nK1A       0001\r\n");
    }
    clickFor("THE DATABASE FILES HAVE BEEN ALPHABETIZED BY SKCC#s", page, "Option13");
    EXPECT_EQ(folder.read("SKSDB5.TXT"), "K1A       0001\r\nK2A       0002\r\n");
}

TEST_F(FilesPage, TheListOfTheAdifFileOrTheLogReturnsToItsPageFindsAndCopies) {
    folder.write("SKS.ADI", "<EOH>, 1\r\n\r\nJ\xDCRGEN <b>\r\n");
    click(page, "Option7");
    EXPECT_THAT(lines(list, "List1"), ElementsAre("<EOH>, 1", "", "J\xDCRGEN <b>"));
    screens.open(Screen::main); // which takes it over for the log
    settle();
    click("frmVantrelMain", "Command6");
    EXPECT_EQ(lines(list, "List1").front(), " Contest: SKS");
    click(list, "Command1");
    settle();
    EXPECT_EQ(QApplication::activeWindow(), form("frmVantrelMain"));

    folder.write("SKS.CBR", "K1ABC\r\nW1XYZ  \r\nK1ABD\r\n");
    click(page, "Option8");
    settle();
    auto* view = control<QAbstractItemView>(list, "List1");
    std::string told = shown(list, "Label2"); // the last line
    view->setCurrentIndex(view->model()->index(0, 0));
    keys(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("k1ab"));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_F3, Qt::Key_X}) { // the end is gone round
        keys(key);
        told += ", " + shown(list, "Label2");
    }
    EXPECT_EQ(told, "3 OF 3, 2 OF 2, 1 OF 2, NOT FOUND");
    keys(Qt::Key_Escape); // ends the finding, the next one closes
    keys(Qt::Key_Down, Qt::ShiftModifier);
    keys(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "K1ABC\nW1XYZ  \n");
    keys(Qt::Key_Escape);
    EXPECT_FALSE(isOpen(list));
}

TEST_F(FilesPage, TheBackupCopiesEveryByteOfTheLogOfTheMomentAndKeepsAFullerCopy) {
    const std::string manyLines(13000, '\n'); // more than contacts are counted
    const std::string fuller = log + contactLine({}) + "\r\n";
    folder.write("SKS.CBR", manyLines);
    std::filesystem::create_directory(folder.path() / "copies");
    folder.write("copies/SKS.CBR", fuller);
    module.log.open(folder.string() + "\\SKS.CBR"); // as the finder hands it back
    screens.open(Screen::backup);
    EXPECT_EQ(shown(backup, "Label5"), folder.string() + "/SKS.CBR");
    type(backup, "Text1", "nowhere");
    clickFor("Run-time error 76: Path not found", backup, "Command2");
    EXPECT_EQ(texts(backup, "Label3 Text1"), "|nowhere|");
    type(backup, "Text1", " COPIES\\  ");
    EXPECT_EQ(shown(backup, "Label6"), "THE COPY THERE: 3 QSOS, LAST 2011-06-16 0012");
    press(backup, "Text1", Qt::Key_Return);
    EXPECT_EQ(texts(backup, "Label3 Label6"),
              "DONE......CLICK EXIT|0 QSOS WRITTEN. THE COPY THERE HELD OTHER LINES: KEPT AS " +
                  folder.string() + "/copies/SKS.CBR.OLD|");
    type(backup, "Text1", folder.string()); // onto itself
    click(backup, "Command2");
    EXPECT_EQ(folder.read("SKS.CBR"), manyLines);
    EXPECT_EQ(folder.read("copies/SKS.CBR") + folder.read("copies/SKS.CBR.OLD"),
              manyLines + fuller);
    folder.write("NEW.CBR", logHeaderLines);
    module.log.open("NEW.CBR");
    type(backup, "Text1", "copies");
    press(backup, "Text1", Qt::Key_Escape);
    screens.open(Screen::backup); // the folder is remembered
    EXPECT_EQ(shown(backup, "Label6"), "NO COPY THERE YET");
    click(backup, "Command2");
    EXPECT_EQ(folder.read("copies/NEW.CBR"), logHeaderLines);
}

// Names that the program cannot say are left out; the true case stays where upper
// case would name two folders; a folder that cannot be read leaves the operator where he is.
TEST_F(FilesPage, TheFinderLeadsToFoldersAndHandsBackWhatIsChosen) {
    for (const char* name : {"b\xC3\xBCro", "gone", "Logs", "logs", "\xD0\xB6"})
        std::filesystem::create_directory(folder.path() / name);
    folder.write("back\\slash.CBR", "");
    const std::string top = upper(folder.string());
    screens.open(Screen::backup);
    click(backup, "Command3");
    EXPECT_THAT(lines(finder, "filList"), ElementsAre("SKS.CBR", "StnsWorked.TXT"));
    EXPECT_THAT(lines(finder, "dirList"),
                ::testing::UnorderedElementsAre("..", "b\xFCro", "gone", "Logs", "logs"));
    std::filesystem::remove(folder.path() / "gone");
    messages.expect("Run-time error 76: Path not found");
    enterFolder("gone");
    enterFolder("Logs");
    EXPECT_EQ(shown(finder, "Label5"), folder.string() + "/Logs/");
    enterFolder("..");
    enterFolder("b\xFCro");
    click(finder, "Command1");
    settle();
    EXPECT_EQ(shown(backup, "Text1"), top + "/B\xDCRO/");

    click(backup, "Command3"); // by its cross, back to a log that has two names by now
    std::filesystem::rename(folder.path() / "SKS.CBR", folder.path() / "sks.cbr");
    folder.write("Sks.cbr", "");
    messages.expect("Run-time error 75: Path/File access error");
    form(finder)->close();
    std::filesystem::rename(folder.path() / "sks.cbr", folder.path() / "SKS.CBR");
    std::filesystem::remove(folder.path() / "Sks.cbr");

    for (const char* name : {"a,b.CBR", "c\"d.CBR", "e.CBR "}) // the configuration cannot hold them
        folder.write(name, "");
    screens.open(Screen::start);
    click("frmVantrelStart", "Command3");
    EXPECT_THAT(lines(finder, "filList"), ElementsAre("SKS.CBR", "StnsWorked.TXT"));
    for (int i = 0; i < 2; ++i)
        press(finder, "filList", Qt::Key_End); // chooses as a click does
    click(finder, "Command1");
    settle();
    EXPECT_EQ(shown("frmVantrelStart", "Text9"), top + "/StnsWorked.TXT");
}

} // namespace
} // namespace vantrel::test
