// SPDX-License-Identifier: MIT
// Plays an operator through the program in real windows, takes a picture of each screen and
// compares the files that come of it byte for byte.
#include "fakes/qt/ptyradio.h"
#include "forms/visiblestyle.h"
#include "screens/start/startnotes.h"
#include "support/contacts.h"
#include "tour/stage.h"

#include <cstdio>
#include <utility>

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
};
// The first four are in the roster that writeRoster() makes.
const Station joe{"K1ABC", "JOE", "CT", "0123T"};
const Station club{"K9SKC", "CLUB", "IL", "5000S"};
const Station ann{"N4XYZ", "ANN", "NC", "8123C"};
const Station klaus{"DL1QRS", "KLAUS", "DL", "9010"};
const Station bob{"W5NEW", "BOB", "TX", "NONE"};
const Station sue{"VE3ABC", "SUE", "ON", "4411T"};
const Station ian{"G4AAA/P", "IAN", "G", "77S"};

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

// Presses the keys in the window in front, whatever has the focus there, and says how many they
// were. "&m" is Alt+M, "^" the arrow up, "~" Del.
int press(const std::string& keys) {
    int count = 0;
    Qt::KeyboardModifiers held;
    for (const char key : keys) {
        if (key == '&') {
            held = Qt::AltModifier;
            continue;
        }
        std::ignore = QTest::qWaitFor([] { return QApplication::activeWindow() != nullptr; });
        QWindow* window = QApplication::activeWindow()->windowHandle();
        if (key == '^' || key == '~')
            QTest::keyClick(window, key == '^' ? Qt::Key_Up : Qt::Key_Delete);
        else
            QTest::keyClick(window, key, std::exchange(held, {}));
        // A key let go and pressed at one moment would be a held one; a real desktop is slower.
        QTest::qWait(QGuiApplication::platformName() == u"offscreen" ? 2 : 30);
        ++count;
    }
    return count;
}

// The same once the page in front has the keyboard, which a real desktop gives it in its own time.
int press(const Stage& stage, const char* formName, const std::string& keys) {
    EXPECT_TRUE(QTest::qWaitForWindowActive(stage.form(formName)));
    return press(keys);
}

// What a contact costs the operator is what the program is for.
void takes(const std::string& what, int most, int keys) {
    if (what.empty())
        return;
    std::printf("tour: %s takes %d keys\n", what.c_str(), keys);
    EXPECT_EQ(keys, most) << what;
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
        const char* what; // "": nobody counts
        int keys;
        const char* pressed;
        std::string gained; // by the log
    } contest[] = {
        {"a member", 7, "k1abc\r\r", contactWith(joe)},
        {"", 0, "n4xyz\r\r", contactWith(ann)},
        {"a non-member", 19, "w5new\r bob\rtx\rnone\r", contactWith(bob)},
        {"a typed frequency", 6, "&m7045\r", ""},
        {"", 0, "k1abc\r\rdl1qrs\r\r", contactWith(joe, " 7045") + contactWith(klaus, " 7045")},
        {"", 0, "&m3.55\rk9skc\r\rve3abc\r sue\ron\r4411t\r",
         contactWith(club, " 3550") + contactWith(sue, " 3550")},
        {"", 0, "&m21050\rg4aaa/p\r ian\rg\r77s\r", contactWith(ian, "21050")},
        {"a non-member on the second band", 8, "w5new\r \r", contactWith(bob, "21050")},
        {"", 0, "&m1820\rk9skc\r\r", contactWith(club, " 1820")}};
    for (const auto& part : contest) {
        takes(part.what, part.keys, press(part.pressed));
        EXPECT_EQ(stage.folder.read(contestLog), expected += part.gained);
    }
    stage.control(mainPage, "Text3")->setFocus();
    stage.press(mainPage, "Text3", Qt::Key_F1);
    stage.leave("frmVantrelHelp", "help");
    EXPECT_EQ(QApplication::focusWidget(), stage.control(mainPage, "Text3"));
    stage.control(mainPage, "Text2")->setFocus();
    press("k1");
    stage.picture(mainPage, "main-typing");
    // A duplicate on 20 m: the word comes up, and nothing is left in the boxes.
    press("abc&m14\r\r");
    stage.picture("frmVantrelDupe", "dupe");
    EXPECT_EQ(stage.shown(mainPage, "Text2"), "");
    // His number came through, his call did not: the first Enter yields the call, the second
    // looks it up, the third logs.
    press("&m14050\r");
    int keys = press("9010\r");
    EXPECT_EQ(stage.shown(mainPage, "Text2"), "DL1QRS    ");
    keys += press("\r");
    stage.picture(mainPage, "main-looked-up");
    takes("a number", 7, keys + press("\r"));
    press("&m14.055\rk9skc\r\r");
    EXPECT_EQ(stage.folder.read(contestLog),
              expected + contactWith(klaus) + contactWith(club, "14055"));
    EXPECT_EQ(stage.shown(mainPage, "Text1"), "12");
    stage.picture(mainPage, "main-contest");
}

// --- Score, files and lists ----------------------------------------------------------------

void playAfterContest(Stage& stage) {
    constexpr const char* score = "frmVantrelScore";
    stage.click(mainPage, "Command11");
    // 12 contacts, 7 regions; 1 Centurion, 2 Tribunes, 2 Senators, the club and bonus station
    // three times.
    EXPECT_EQ(stage.shown(score, "Text6") + ' ' + stage.shown(score, "Text7"), "205 289");
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

// The last contact was copied wrong, logged on the wrong band, and never was one.
void changeTheLog(Stage& stage) {
    constexpr const char* correction = "frmVantrelCorrect";
    const std::string before = stage.folder.read(contestLog);
    const std::string kept = before.substr(0, before.size() - contactWith(club).size());
    const Station corrected{"K9SKD", club.name, club.state, club.number};
    int keys = press(stage, mainPage, "^\r");
    takes("the last call corrected", 8, keys + press(stage, correction, "k9skd&s"));
    EXPECT_EQ(stage.folder.read(contestLog), kept + contactWith(corrected, "14055"));
    stage.leave(correction, "correction");
    keys = press(stage, mainPage, "^\r");
    takes("the last band corrected", 9, keys + press(stage, correction, "&f21055&s"));
    EXPECT_EQ(stage.folder.read(contestLog), kept + contactWith(corrected, "21055"));
    stage.press(correction, "Text1", Qt::Key_Escape);

    constexpr const char* deletion = "frmVantrelDelete";
    keys = press(stage, mainPage, "^~");
    stage.picture(deletion, "deletion");
    takes("the last contact deleted", 3, keys + press(stage, deletion, "&d"));
    EXPECT_EQ(stage.folder.read(contestLog), kept);
    stage.click(deletion, "Command1");
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
    const Station europe{"GB0SKC", "IAN", "G", "77S"};
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
    press("gb0skc\r ian\rg\r77s");
    const int keys = press("&k");
    stage.picture("frmK3Ybox", "k3y-box");
    takes("a K3Y tag", 2, keys + press(stage, "frmK3Ybox", "e"));
    EXPECT_EQ(stage.shown(mainPage, "Label23"), "-- K3Y/EU --");
    stage.picture(mainPage, "main-k3y-tag");
    press("\r");
    EXPECT_EQ(stage.folder.read(log), expected += contactWith(europe, "14050", "K3Y/EU"));

    constexpr const char* dupe = "frmCheckDupeK3Y";
    press("gb0skc\r \r");
    stage.picture(dupe, "k3y-dupe");
    stage.click(dupe, "Command2");
    EXPECT_EQ(stage.folder.read(log), expected += contactWith(europe, "14050", "DUPE"));
    stage.picture(mainPage, "main-k3y-logged");

    stage.click(mainPage, "Command11");
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
    press("k9skc\r\r");
    std::string expected = logHeaderLines + contactWith(club, "28999");
    EXPECT_TRUE(QTest::qWaitFor([&] { return stage.folder.read(log) == expected; }));
    stage.picture(mainPage, "main-radio");

    // Typed on while the radio takes its time, to the window: call, Enter, Enter, the next call.
    radio.forget();
    radio.delay = 200;
    stage.form(mainPage)->activateWindow();
    radio.hertz = 21'025'000;
    press("dl1qrs");
    QTimer::singleShot(30, qApp, [] { press("\rn4xyz\r\r"); });
    press("\r");
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
