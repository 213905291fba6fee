// SPDX-License-Identifier: MIT
// Plays an operator through the program in real windows, takes a picture of each screen and
// compares the files that come of it byte for byte.
#include "fakes/qt/ptyradio.h"
#include "forms/visiblestyle.h"
#include "screens/start/startnotes.h"
#include "support/contacts.h"
#include "tour/stage.h"

#include <QPrinterInfo>

#include <cstdio>

namespace vantrel::test {
namespace {

constexpr const char* startPage = "frmVantrelStart";
constexpr const char* mainPage = "frmVantrelMain";
constexpr const char* filesPage = "frmVantrelFiles";
const std::string contestLog = "SKS061611.CBR";

struct Station {
    std::string call;
    std::string name;
    std::string state;
    std::string number;
    bool isMember = true; // in the roster that writeRoster() makes
};
const Station joe{"K1ABC", "JOE", "CT", "0123T"};
const Station club{"K9SKC", "CLUB", "IL", "5000S"};
const Station ann{"N4XYZ", "ANN", "NC", "8123C"};
const Station klaus{"DL1QRS", "KLAUS", "DL", "9010"};
const Station bob{"W5NEW", "BOB", "TX", "NONE", false};
const Station sue{"VE3ABC", "SUE", "ON", "4411T", false};
const Station ian{"G4AAA/P", "IAN", "G", "77S", false};

void writeRoster(const Stage& stage) {
    const auto record = [](const Station& member) {
        return padded(member.call, 10) + padded(member.number, 10) + padded(member.name, 10) +
               padded(member.state, 3) + "\r\n";
    };
    stage.folder.write("SKSDB2.TXT", record(joe) + record(club));
    stage.folder.write("SKSDB3.TXT", record(ann));
    stage.folder.write("SKSDB5.TXT", record(klaus));
}

// What the log must gain by a contact.
std::string contactWith(const Station& station, const std::string& khz = "14050",
                        const std::string& marker = "      ") {
    return contactLine({.frequency = khz,
                        .hisCall = station.call,
                        .hisName = station.name,
                        .hisState = station.state,
                        .hisNumber = station.number,
                        .marker = marker}) +
           "\r\n";
}

// As the exchange is heard: the roster knows a member's, the others' is typed.
void enterContact(Stage& stage, const Station& station) {
    stage.work(mainPage, "Text2=" + station.call + '!');
    if (!station.isMember)
        stage.work(mainPage, "Text3=" + station.name + " Text4=" + station.state +
                                 " Text5=" + station.number);
}

void logContact(Stage& stage, const Station& station) {
    enterContact(stage, station);
    stage.work(mainPage, station.isMember ? "Text2!" : "Text5!");
}

// --- A sprint, from the empty start page to a dozen contacts -------------------------------

void fillStartPage(Stage& stage) {
    stage.screens.open(Screen::start);
    stage.press(startPage, "Text2", Qt::Key_Escape); // leaves neither this page nor the next
    stage.picture(startPage, "start-fresh");
    stage.work(startPage, "Option1 Text2=w1abc Text6=john Text7=ma Text8=1234t Command4");
    EXPECT_EQ(stage.shown(startPage, "Text9"), contestLog);
    stage.confirming(std::string(newFileQuestion),
                     [&] { stage.choose(startPage, "Combo7", "YES"); });
    stage.type(startPage, "Text10", "k9skc");
    stage.picture(startPage, "start-filled");
    stage.click(startPage, "Command2");
    stage.picture(mainPage, "main-empty");
}

void playContest(Stage& stage) {
    writeRoster(stage);
    fillStartPage(stage);
    std::string expected = logHeaderLines;
    const struct {
        const char* tuned; // "": stays
        Station station;
        const char* khz;
    } contest[] = {{"", joe, "14050"},     {"", ann, "14050"},      {"", bob, "14050"},
                   {"7045", joe, " 7045"}, {"", klaus, " 7045"},    {"3.55", club, " 3550"},
                   {"", sue, " 3550"},     {"21050", ian, "21050"}, {"", ann, "21050"},
                   {"1820", club, " 1820"}};
    for (const auto& heard : contest) {
        if (*heard.tuned != '\0')
            stage.work(mainPage, std::string("Text7=") + heard.tuned + '!');
        logContact(stage, heard.station);
        EXPECT_EQ(stage.folder.read(contestLog), expected += contactWith(heard.station, heard.khz));
    }
    stage.press(mainPage, "Text2", Qt::Key_F1);
    stage.leave("frmVantrelHelp", "help");
    stage.type(mainPage, "Text2", "k1");
    int begin = 0, end = 0;
    EXPECT_EQ(QAccessible::queryAccessibleInterface(stage.control(mainPage, "Text2"))
                  ->textInterface()
                  ->textAtOffset(2, QAccessible::WordBoundary, &begin, &end),
              u"K1"); // the last word of a box is told
    stage.picture(mainPage, "main-typing");
    // A duplicate on 20 m: the word comes up, and nothing is left in the boxes.
    stage.work(mainPage, "Text7=14! Text2=k1abc!");
    stage.hears("frmVantrelDupe", "Label1", "DUPE");
    stage.picture("frmVantrelDupe", "dupe");
    EXPECT_EQ(stage.shown(mainPage, "Text2"), "");
    // His number came through, his call did not: the first Enter yields the call, the second
    // looks it up, the third logs.
    stage.work(mainPage, "Text7=14050! Text2=9010!");
    EXPECT_EQ(stage.shown(mainPage, "Text2"), "DL1QRS    ");
    stage.work(mainPage, "Text2!");
    stage.hears(mainPage, "Label26", "KLAUS, DL, 9010. ENTER LOGS");
    stage.picture(mainPage, "main-looked-up");
    stage.work(mainPage, "Text2! Text7=14.055!");
    logContact(stage, club);
    EXPECT_EQ(stage.folder.read(contestLog),
              expected + contactWith(klaus) + contactWith(club, "14055"));
    EXPECT_EQ(stage.shown(mainPage, "Text1"), "12");
    stage.hears(mainPage, "Label26", "LOGGED K9SKC 14055 0012");
    auto* worked = QAccessible::queryAccessibleInterface(stage.control(mainPage, "List1"));
    EXPECT_EQ(Stage::nameOf(worked->child(0)), "K1ABC JOE 0123T CT 14050 at 0012");
    std::string passed; // by Tab, as one reads
    stage.control(mainPage, "Text7")->setFocus();
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        passed += Stage::nameOf(QApplication::focusWidget()) + '|';
    }
    EXPECT_EQ(passed, "Enter|Up|Down|");
    stage.picture(mainPage, "main-contest");
}

// --- Score, files and lists ----------------------------------------------------------------

void playAfterContest(Stage& stage) {
    constexpr const char* score = "frmVantrelScore";
    stage.click(mainPage, "Command11");
    // 12 contacts, 7 regions; 1 Centurion, 2 Tribunes, 2 Senators, the club and bonus station
    // three times.
    EXPECT_EQ(stage.shown(score, "Text6") + ' ' + stage.shown(score, "Text7"), "205 289");
    if (QPrinterInfo::defaultPrinter().isNull()) { // nothing is sent to a real one
        stage.confirming("The File has been sent to the Printer!",
                         [&] { stage.click(score, "Command2"); });
        EXPECT_EQ(stage.folder.read("SKS061611-SCORE.PDF").substr(0, 5), "%PDF-");
    }
    stage.leave(score, "score");
    stage.click(mainPage, "Command16");
    stage.leave("frmCountBonus", "bonus");

    stage.click(mainPage, "Command9");
    stage.work(filesPage, "Option14 Option6 Option7");
    stage.leave("frmVantrelList", "list-adif");
    stage.click(filesPage, "Option3");
    EXPECT_EQ(stage.lines("frmVantrelShowDB", "List1").at(0), "N4XYZ     8123C     ANN       NC ");
    stage.leave("frmVantrelShowDB", "members");
    stage.leave(filesPage, "files");
}

// --- Roster import, correction, deletion, editor, backup -----------------------------------

void importTheRoster(Stage& stage) {
    constexpr const char* choice = "frmSelectUpdateList";
    constexpr const char* import = "frmReadSKCCDATA";
    stage.folder.write("skccdata.txt",
                       "SKCCNR|CALL|NAME|QTH|SPC|OLDCALL|SKCC|DXCODE|JOINDATE|CENTDATE|TRIBDATE\r\n"
                       "123S|K1ABC|Joe|Town|CT||||||\r\n7|N7NEW|Nora|Town|AZ||||||\r\n");
    stage.click(mainPage, "Command9");
    stage.click(filesPage, "Option11");
    stage.click(choice, "Option2");
    stage.leave("frmVantrelUpdate", "update-members");
    stage.click(choice, "Option1");
    stage.click(import, "Command2");
    EXPECT_EQ(stage.shown(import, "Label3"), "DONE. . . . 1 MBRS ADDED. Click EXIT");
    stage.leave(import, "import-done");
    stage.leave(choice, "update-choice");
    stage.press(filesPage, "Command1", Qt::Key_Escape);
}

void changeTheLog(Stage& stage) {
    constexpr const char* correction = "frmVantrelCorrect";
    stage.click(mainPage, "Command7");
    stage.work(correction, "Text1=w5new! Text2=robert Command2");
    stage.hears(correction, "Label11", " Done....Click EXIT ");
    stage.leave(correction, "correction");

    stage.click(mainPage, "Command8");
    stage.work("frmVantrelDelete", "Text1=g4aaa!");
    stage.picture("frmVantrelDelete", "deletion");
    stage.work("frmVantrelDelete", "Command2 Command1");
    EXPECT_EQ(stage.shown(mainPage, "Text1"), "11");

    constexpr const char* editor = "frmVantrelEDITcbr";
    stage.click(mainPage, "Command9");
    stage.click(filesPage, "Option9");
    stage.work(editor, "Text1=ve3abc! Text11=579 Command2");
    stage.leave(editor, "editor");
    stage.press(filesPage, "Command1", Qt::Key_Escape);
}

void playUpkeep(Stage& stage) {
    importTheRoster(stage);
    changeTheLog(stage);
    constexpr const char* backup = "frmVantrelBackup";
    std::filesystem::create_directory(stage.folder.path() / "backup");
    stage.click(mainPage, "Command10");
    stage.click(backup, "Command3");
    stage.leave("frmFileFinder", "finder");
    stage.type(backup, "Text1", (stage.folder.path() / "backup").string());
    stage.work(backup, "Text1!");
    EXPECT_EQ(stage.shown(backup, "Label3"), "DONE......CLICK EXIT");
    EXPECT_EQ(stage.folder.read("backup/" + contestLog), stage.folder.read(contestLog));
    stage.leave(backup, "backup");
}

// --- The K3Y event: a station under its tag, a duplicate logged -----------------------------

void playK3yEvent(Stage& stage) {
    const std::string log = "K3Y.CBR";
    const Station europe{"GB0SKC", "IAN", "G", "77S", false};
    std::string expected = logHeaderLines + contactWith({"K3Y/3", "CLUB", "IL", "2820S"}, " 7030") +
                           contactWith({"K3Y/0", "CLUB", "IL", "8123C"}, "10120") +
                           contactWith({"K3Y/5", "CLUB", "IL", "55C"}, "21050") +
                           contactWith({"K3Y/KH6", "CLUB", "IL", "4411T"}, " 1820");
    stage.folder.write(log, expected);
    stage.screens.open(Screen::start);
    stage.click(startPage, "Option4");
    stage.leave("frmVantrelCallArea", "k3y-call-area");
    stage.type(startPage, "Text9", log);
    stage.choose(startPage, "Combo6", "YES");
    stage.click(startPage, "Command2");
    EXPECT_EQ(stage.shown(mainPage, "Text1"), "04");

    // The tag is chosen when the station is known to be one, just before logging.
    enterContact(stage, europe);
    stage.click(mainPage, "Option1");
    stage.click("frmK3Ybox", "Option1");
    stage.leave("frmK3Ybox", "k3y-box");
    EXPECT_EQ(stage.shown(mainPage, "Label23"), "-- K3Y/EU --");
    stage.picture(mainPage, "main-k3y-tag");
    stage.press(mainPage, "Text5", Qt::Key_Return);
    EXPECT_EQ(stage.folder.read(log), expected += contactWith(europe, "14050", "K3Y/EU"));

    constexpr const char* dupe = "frmCheckDupeK3Y";
    logContact(stage, europe);
    stage.picture(dupe, "k3y-dupe");
    stage.click(dupe, "Command2");
    EXPECT_EQ(stage.folder.read(log), expected += contactWith(europe, "14050", "DUPE"));
    stage.picture(mainPage, "main-k3y-logged");

    stage.click(mainPage, "Command11");
    EXPECT_EQ(Stage::nameOf(stage.control("frmK3YStandings", "Text21")), "K3Y/3 40M 2820S");
    stage.picture("frmK3YStandings", "k3y-standings");
    stage.click("frmK3YStandings", "Command2");
    stage.leave("frmK3YStandings2", "k3y-standings-regions");
}

// --- A radio on the cable that changes bands and takes its time to answer --------------------

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
    logContact(stage, club);
    std::string expected = logHeaderLines + contactWith(club, "28999");
    EXPECT_EQ(stage.folder.read(log), expected);
    stage.picture(mainPage, "main-radio");

    // Typed on while the radio takes its time, to the window: call, Enter, Enter, the next call.
    radio.forget();
    radio.delay = 200;
    const auto typeOn = [&](const char* keys) {
        for (; *keys != '\0'; ++keys)
            QTest::keyClick(stage.form(mainPage)->windowHandle(), *keys);
    };
    stage.form(mainPage)->activateWindow();
    radio.hertz = 21'025'000;
    typeOn("dl1qrs");
    QTimer::singleShot(30, qApp, [&] { typeOn("\rn4xyz\r\r"); });
    typeOn("\r");
    expected += contactWith(klaus, "21025") + contactWith(ann, "21025");
    EXPECT_TRUE(QTest::qWaitFor([&] { return stage.folder.read(log) == expected; }, 20'000));
    EXPECT_EQ(radio.received(), "FA;FA;FA;FA;");
}

// The looks that pictures are taken in: VANTREL_TOUR_POINTS, the font's size, and
// VANTREL_TOUR_PALETTE=dark or contrast.
void dress() {
    if (const int points = qEnvironmentVariableIntValue("VANTREL_TOUR_POINTS")) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    const QByteArray name = qgetenv("VANTREL_TOUR_PALETTE");
    if (name.isEmpty())
        return;
    const bool dark = name == "dark";
    const QColor window = dark ? QColor(0x2B, 0x2B, 0x2B) : Qt::black;
    QPalette palette(dark ? QColor(0x3C, 0x3C, 0x3C) : Qt::black, window);
    palette.setColor(QPalette::Base, dark ? QColor(0x1E, 0x1E, 0x1E) : Qt::black);
    palette.setColor(QPalette::ToolTipBase, window);
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
    if (argc != 2) {
        std::fprintf(stderr, "usage: tour FOLDER (emptied first)\n");
        return 2;
    }
    try {
        Stage stage(argv[1]);
        for (const auto scene :
             {playContest, playAfterContest, playUpkeep, playK3yEvent, playRadioEvening})
            scene(stage);
        std::printf("tour: log and pictures are in %s\n", stage.folder.string().c_str());
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tour: %s\n", error.what());
        return 1;
    }
}
