// SPDX-License-Identifier: MIT
// Leads an operator through all pages in real windows and takes a picture of each; that every
// byte of a log is right, outside.py shows with the built program.
#include "fakes/qt/ptyradio.h"
#include "forms/visiblestyle.h"
#include "screens/start/startnotes.h"
#include "tour/stage.h"

#include <cstdio>

namespace vantrel::test {
namespace {

constexpr const char* startPage = "frmVantrelStart";
constexpr const char* mainPage = "frmVantrelMain";
constexpr const char* filesPage = "frmVantrelFiles";

// A line of a log; him: his call, report, name, state and number, 36 columns.
std::string worked(const std::string& khz, const std::string& him) {
    return "QSO: " + khz + " CW 2011-06-16 0012 W1ABC      599 JOHN       MA 1234T " + him +
           "      \r\n";
}

// Takes these steps on a page, then a picture of the page they lead to.
void show(Stage& stage, const char* from, const std::string& steps, const char* page,
          const char* picture) {
    stage.work(from, steps);
    stage.picture(page, picture);
}

// The same, and leaves that page by its EXIT.
void visit(Stage& stage, const char* from, const std::string& steps, const char* page,
           const char* picture) {
    show(stage, from, steps, page, picture);
    stage.click(page, "Command1");
    stage.settle();
}

// --- A sprint, from the empty start page to a dozen contacts -------------------------------

void fillStartPage(Stage& stage) {
    stage.folder.write("SKSDB2.TXT", "K1ABC     0123T     JOE       CT \r\n"
                                     "K9SKC     5000S     CLUB      IL \r\n");
    stage.folder.write("SKSDB3.TXT", "N4XYZ     8123C     ANN       NC \r\n");
    stage.folder.write("SKSDB5.TXT", "DL1QRS    9010      KLAUS     DL \r\n");
    stage.screens.open(Screen::start);
    stage.press(startPage, "Text2", Qt::Key_Escape); // leaves neither this page nor the next
    stage.picture(startPage, "start-fresh");
    stage.work(startPage, "Option1 Text2=w1abc Text6=john Text7=ma Text8=1234t Command4");
    stage.confirming(std::string(newFileQuestion),
                     [&] { stage.choose(startPage, "Combo7", "YES"); });
    show(stage, startPage, "Text10=k9skc", startPage, "start-filled");
    show(stage, startPage, "Command2", mainPage, "main-empty");
}

void playContest(Stage& stage) {
    stage.work(mainPage, "Text2=k1abc! Text2! Text2=n4xyz! Text2! "
                         "Text2=w5new! Text3=bob Text4=tx Text5=none! "
                         "Text7=7045! Text2=k1abc! Text2! Text2=dl1qrs! Text2! "
                         "Text7=3.55! Text2=k9skc! Text2! "
                         "Text2=ve3abc! Text3=sue Text4=on Text5=4411t! "
                         "Text7=21050! Text2=g4aaa/p! Text3=ian Text4=g Text5=77s! "
                         "Text2=w5new! Text3=bob Text4=tx Text5=none! "
                         "Text7=1820! Text2=k9skc! Text2!");
    stage.control(mainPage, "Text3")->setFocus();
    stage.press(mainPage, "Text3", Qt::Key_F1);
    visit(stage, mainPage, "", "frmVantrelHelp", "help");
    EXPECT_EQ(QApplication::focusWidget(), stage.control(mainPage, "Text3"));
    show(stage, mainPage, "Text2=k1", mainPage, "main-typing");
    // A duplicate; then a number that came through when the call did not.
    show(stage, mainPage, "Text2=k1abc Text7=14! Text2!", "frmVantrelDupe", "dupe");
    show(stage, mainPage, "Text7=14050! Text2=9010! Text2!", mainPage, "main-looked-up");
    show(stage, mainPage, "Text2! Text7=14.055! Text2=k9skc! Text2!", mainPage, "main-contest");
}

// --- Score, files and lists ----------------------------------------------------------------

void playAfterContest(Stage& stage) {
    stage.click(mainPage, "Command11");
    // 12 contacts, 7 regions; 1 Centurion, 2 Tribunes, 2 Senators, the club and bonus station
    // three times.
    EXPECT_EQ(stage.texts("frmVantrelScore", "Text6 Text7"), "205|289|");
    visit(stage, mainPage, "", "frmVantrelScore", "score");
    visit(stage, mainPage, "Command16", "frmCountBonus", "bonus");
    stage.click(mainPage, "Command9");
    visit(stage, filesPage, "Option14 Option6 Option7", "frmVantrelList", "list-adif");
    visit(stage, filesPage, "Option3", "frmVantrelShowDB", "members");
    visit(stage, filesPage, "", filesPage, "files");
}

// --- Roster import, correction, deletion, editor, backup -----------------------------------

void importTheRoster(Stage& stage) {
    constexpr const char* choice = "frmSelectUpdateList";
    stage.folder.write("skccdata.txt",
                       "SKCCNR|CALL|NAME|QTH|SPC|OLDCALL|SKCC|DXCODE|JOINDATE|CENTDATE|TRIBDATE\r\n"
                       "123S|K1ABC|Joe|Town|CT||||||\r\n7|N7NEW|Nora|Town|AZ||||||\r\n");
    stage.click(mainPage, "Command9");
    stage.click(filesPage, "Option11");
    visit(stage, choice, "Option2", "frmVantrelUpdate", "update-members");
    stage.click(choice, "Option1");
    visit(stage, "frmReadSKCCDATA", "Command2", "frmReadSKCCDATA", "import-done");
    visit(stage, choice, "", choice, "update-choice");
    stage.press(filesPage, "Command1", Qt::Key_Escape);
}

void changeTheLog(Stage& stage) {
    constexpr const char* editor = "frmVantrelEDITcbr";
    stage.press(mainPage, "Text2", Qt::Key_Up);
    stage.press(mainPage, "List1", Qt::Key_Return);
    visit(stage, "frmVantrelCorrect", "Text1=k9skd Command2", "frmVantrelCorrect", "correction");
    stage.press(mainPage, "Text2", Qt::Key_Up);
    stage.press(mainPage, "List1", Qt::Key_Delete);
    show(stage, mainPage, "", "frmVantrelDelete", "deletion");
    stage.work("frmVantrelDelete", "Command2 Command1");
    stage.click(mainPage, "Command9");
    stage.click(filesPage, "Option9");
    visit(stage, editor, "Text1=ve3abc! Text11=579 Command2", editor, "editor");
    stage.press(filesPage, "Command1", Qt::Key_Escape);
}

void backUp(Stage& stage) {
    constexpr const char* backup = "frmVantrelBackup";
    std::filesystem::create_directory(stage.folder.path() / "backup");
    stage.click(mainPage, "Command10");
    visit(stage, backup, "Command3", "frmFileFinder", "finder");
    stage.type(backup, "Text1", (stage.folder.path() / "backup").string());
    visit(stage, backup, "Text1!", backup, "backup");
}

// --- The K3Y event: a station under its tag, a duplicate logged -----------------------------

void playK3yEvent(Stage& stage) {
    stage.folder.write("K3Y.CBR", logHeaderLines +
                                      worked(" 7030", "K3Y/3      599 CLUB       IL  2820S ") +
                                      worked("10120", "K3Y/0      599 CLUB       IL  8123C ") +
                                      worked("21050", "K3Y/5      599 CLUB       IL  55C   ") +
                                      worked(" 1820", "K3Y/KH6    599 CLUB       IL  4411T "));
    stage.screens.open(Screen::start);
    visit(stage, startPage, "Option4", "frmVantrelCallArea", "k3y-call-area");
    stage.choose(startPage, "Combo6", "YES");
    stage.work(startPage, "Text9=K3Y.CBR Command2");
    // The tag is chosen when the station is known to be one, just before logging.
    show(stage, mainPage, "Text2=gb0skc! Text3=ian Text4=g Text5=77s Option1", "frmK3Ybox",
         "k3y-box");
    show(stage, "frmK3Ybox", "Option1 Command1", mainPage, "main-k3y-tag");
    show(stage, mainPage, "Text5! Text2=gb0skc! Text3=ian Text4=g Text5=77s!", "frmCheckDupeK3Y",
         "k3y-dupe");
    show(stage, "frmCheckDupeK3Y", "Command2", mainPage, "main-k3y-logged");
    show(stage, mainPage, "Command11", "frmK3YStandings", "k3y-standings");
    visit(stage, "frmK3YStandings", "Command2", "frmK3YStandings2", "k3y-standings-regions");
}

// --- A radio on the cable that changes bands and takes its time to answer --------------------

// Presses the keys in the main page's window, whatever has the focus there.
void press(const Stage& stage, const std::string& keys) {
    EXPECT_TRUE(QTest::qWaitForWindowActive(stage.form(mainPage)));
    for (const char key : keys) {
        QTest::keyClick(stage.form(mainPage)->windowHandle(), key);
        // A key let go and pressed at one moment would be a held one; a real desktop is slower.
        QTest::qWait(QGuiApplication::platformName() == u"offscreen" ? 2 : 30);
    }
}

void playRadioEvening(Stage& stage) {
    const std::string log = "RADIO.CBR";
    PtyRadio radio(radioNamed("Kenwood"));
    radio.delay = 100;
    radio.hertz = 10'120'000;
    std::filesystem::create_symlink(radio.device(), stage.folder.path() / "com1");
    stage.folder.write(log, logHeaderLines);
    stage.screens.open(Screen::start);
    stage.type(startPage, "Text9", log);
    stage.choose(startPage, "Combo1", "TS-2000");
    stage.choose(startPage, "Combo2", "Com1");
    stage.choose(startPage, "Combo3", "9600");
    stage.picture(startPage, "start-radio");
    stage.click(startPage, "Command2");
    // It is read as soon as the page shows; 30 m has no band text of its own.
    EXPECT_TRUE(QTest::qWaitFor([&] { return stage.shown(mainPage, "Text7") == "10.120"; }));
    EXPECT_EQ(stage.shown(mainPage, "Label10"), "20 Meters ");
    radio.hertz = 28'999'990;
    press(stage, "k9skc\r\r");
    std::string expected = logHeaderLines + worked("28999", "K9SKC      599 CLUB       IL  5000S ");
    EXPECT_TRUE(QTest::qWaitFor([&] { return stage.folder.read(log) == expected; }));
    stage.picture(mainPage, "main-radio");

    // Typed on while the radio takes its time, to the window: call, Enter, Enter, the next call.
    radio.forget();
    radio.delay = 200;
    stage.form(mainPage)->activateWindow();
    radio.hertz = 21'025'000;
    press(stage, "dl1qrs");
    QTimer::singleShot(30, qApp, [&] { press(stage, "\rn4xyz\r\r"); });
    press(stage, "\r");
    expected += worked("21025", "DL1QRS     599 KLAUS      DL  9010  ") +
                worked("21025", "N4XYZ      599 ANN        NC  8123C ");
    EXPECT_TRUE(QTest::qWaitFor([&] { return stage.folder.read(log) == expected; }, 20'000));
    EXPECT_EQ(radio.received(), "FA;FA;FA;FA;");
}

// The looks that pictures are taken in: VANTREL_TOUR_POINTS, the font's size, and
// VANTREL_TOUR_PALETTE=dark or contrast.
void dress() {
    if (const int points = qEnvironmentVariableIntValue("VANTREL_TOUR_POINTS"))
        QApplication::setFont(QFont(QApplication::font().family(), points));
    const QByteArray name = qgetenv("VANTREL_TOUR_PALETTE");
    if (name.isEmpty())
        return;
    const bool dark = name == "dark";
    QPalette palette(dark ? QColor(0x3C3C3C) : Qt::black, dark ? QColor(0x2B2B2B) : Qt::black);
    palette.setColor(QPalette::Base, dark ? QColor(0x1E1E1E) : Qt::black);
    if (!dark) {
        palette.setColor(QPalette::Highlight, Qt::yellow);
        palette.setColor(QPalette::HighlightedText, Qt::black);
    }
    QApplication::setPalette(palette);
}

} // namespace
} // namespace vantrel::test

int main(int argc, char** argv) {
    using namespace vantrel::test;
    if (std::getenv("DISPLAY") == nullptr)
        ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    QApplication::setStyle(new vantrel::VisibleStyle);
    QApplication::setQuitOnLastWindowClosed(false);
    GTEST_FLAG_SET(throw_on_failure, true);
    dress();
    try {
        if (argc != 2)
            throw std::invalid_argument("the one argument is a folder, emptied first");
        Stage stage(argv[1]);
        for (const auto scene : {fillStartPage, playContest, playAfterContest, importTheRoster,
                                 changeTheLog, backUp, playK3yEvent, playRadioEvening})
            scene(stage);
        std::printf("tour: log and pictures are in %s\n", stage.folder.string().c_str());
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tour: %s\n", error.what());
        return 1;
    }
}
