// SPDX-License-Identifier: MIT
// Plays an operator through the program in real windows, takes a picture of each screen and
// compares the files that come of it byte for byte.
#include "screens/start/startlog.h"
#include "support/contacts.h"
#include "tour/afterwards.h"
#include "tour/k3yevent.h"
#include "tour/radioevening.h"
#include "tour/stage.h"
#include "tour/upkeep.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <vector>

namespace vantrel::test {
namespace {

constexpr const char* start = "frmVantrelStart";
constexpr const char* mainPage = "frmVantrelMain";
const std::string log = "SKS061611.CBR";

void writeRoster(const Stage& stage) {
    const auto write = [&](const char* name, const std::string& bytes) {
        std::ofstream(stage.folder / name, std::ios::binary) << bytes;
    };
    write("SKSDB2.TXT", "K1ABC     0123T     JOE       CT \r\n"
                        "K9SKC     5000S     CLUB      IL \r\n");
    write("SKSDB3.TXT", "N4XYZ     8123C     ANN       NC \r\n");
    write("SKSDB5.TXT", "DL1QRS    9010      KLAUS     DL \r\n");
}

void fillStartPage(Stage& stage) {
    stage.screens.open(Screen::start);
    stage.picture(start, "start-fresh");
    stage.click(start, "Option1");
    stage.type(start, "Text2", "w1abc");
    stage.type(start, "Text6", "john");
    stage.type(start, "Text7", "ma");
    stage.type(start, "Text8", "1234t");
    stage.click(start, "Command4");
    stage.check("default name", stage.shown(start, "Text9"), log);
    stage.answering(std::string(newFileQuestion), true,
                    [&] { stage.choose(start, "Combo7", "YES"); });
    stage.type(start, "Text10", "k9skc");
    stage.picture(start, "start-filled");
    stage.click(start, "Command2");
    stage.picture(mainPage, "main-empty");
}

// One contact as the exchange is heard; an empty name means the roster has filled it in.
struct Heard {
    const char* call;
    const char* frequency; // empty: stays
    const char* name;
    const char* state;
    const char* number;
    ContactFields expected;
};

void logContact(Stage& stage, const Heard& heard) {
    if (*heard.frequency != '\0') {
        stage.type(mainPage, "Text7", heard.frequency);
        stage.press(mainPage, "Text7", Qt::Key_Return);
    }
    stage.type(mainPage, "Text2", heard.call);
    stage.press(mainPage, "Text2", Qt::Key_Return);
    if (*heard.name == '\0') {
        stage.press(mainPage, "Text2", Qt::Key_Return);
        return;
    }
    stage.type(mainPage, "Text3", heard.name);
    stage.type(mainPage, "Text4", heard.state);
    stage.type(mainPage, "Text5", heard.number);
    stage.press(mainPage, "Text5", Qt::Key_Return);
}

std::vector<Heard> contest() {
    return {
        {"k1abc",
         "",
         "",
         "",
         "",
         {.hisCall = "K1ABC", .hisName = "JOE", .hisState = "CT", .hisNumber = "0123T"}},
        {"n4xyz",
         "",
         "",
         "",
         "",
         {.hisCall = "N4XYZ", .hisName = "ANN", .hisState = "NC", .hisNumber = "8123C"}},
        {"w5new",
         "",
         "bob",
         "tx",
         "none",
         {.hisCall = "W5NEW", .hisName = "BOB", .hisState = "TX", .hisNumber = "NONE"}},
        {"k1abc",
         "7045",
         "",
         "",
         "",
         {.frequency = " 7045",
          .hisCall = "K1ABC",
          .hisName = "JOE",
          .hisState = "CT",
          .hisNumber = "0123T"}},
        {"dl1qrs",
         "",
         "",
         "",
         "",
         {.frequency = " 7045",
          .hisCall = "DL1QRS",
          .hisName = "KLAUS",
          .hisState = "DL",
          .hisNumber = "9010"}},
        {"k9skc",
         "3.55",
         "",
         "",
         "",
         {.frequency = " 3550",
          .hisCall = "K9SKC",
          .hisName = "CLUB",
          .hisState = "IL",
          .hisNumber = "5000S"}},
        {"ve3abc",
         "",
         "sue",
         "on",
         "4411t",
         {.frequency = " 3550",
          .hisCall = "VE3ABC",
          .hisName = "SUE",
          .hisState = "ON",
          .hisNumber = "4411T"}},
        {"g4aaa/p",
         "21050",
         "ian",
         "g",
         "77s",
         {.frequency = "21050",
          .hisCall = "G4AAA/P",
          .hisName = "IAN",
          .hisState = "G",
          .hisNumber = "77S"}},
        {"n4xyz",
         "",
         "",
         "",
         "",
         {.frequency = "21050",
          .hisCall = "N4XYZ",
          .hisName = "ANN",
          .hisState = "NC",
          .hisNumber = "8123C"}},
        {"k9skc",
         "1820",
         "",
         "",
         "",
         {.frequency = " 1820",
          .hisCall = "K9SKC",
          .hisName = "CLUB",
          .hisState = "IL",
          .hisNumber = "5000S"}},
    };
}

// A duplicate on 20 m: the word comes up, and nothing is left in the boxes.
void workADuplicate(Stage& stage) {
    stage.type(mainPage, "Text7", "14");
    stage.press(mainPage, "Text7", Qt::Key_Return);
    stage.type(mainPage, "Text2", "k1abc");
    stage.press(mainPage, "Text2", Qt::Key_Return);
    stage.picture("frmVantrelDupe", "dupe");
    stage.check("call after a dupe", stage.shown(mainPage, "Text2"), "");
    stage.check("number after a dupe", stage.shown(mainPage, "Text5"), "");
}

// His number came through, his call did not: the first Enter yields the call, the second
// looks it up, the third logs.
void workByNumber(Stage& stage) {
    stage.type(mainPage, "Text7", "14050");
    stage.type(mainPage, "Text2", "9010");
    stage.press(mainPage, "Text2", Qt::Key_Return);
    stage.check("call of 9010", stage.shown(mainPage, "Text2"), "DL1QRS    ");
    stage.press(mainPage, "Text2", Qt::Key_Return);
    stage.check("name of 9010", stage.shown(mainPage, "Text3"), "KLAUS     ");
    stage.picture(mainPage, "main-looked-up");
    stage.press(mainPage, "Text2", Qt::Key_Return);
}

// A frequency typed wrong is refused, corrected, and the contact is still there to log.
void correctAFrequency(Stage& stage) {
    stage.type(mainPage, "Text2", "k9skc");
    stage.type(mainPage, "Text7", "144.050");
    stage.press(mainPage, "Text2", Qt::Key_Return);
    stage.answering(" A FREQUENCY MUST BE ENTERED INTO THE FREQ BOX ", true,
                    [&] { stage.press(mainPage, "Text2", Qt::Key_Return); });
    stage.type(mainPage, "Text7", "14.055");
    stage.press(mainPage, "Text7", Qt::Key_Return);
    stage.press(mainPage, "Text2", Qt::Key_Return);
}

void playContest(Stage& stage) {
    std::string expected = logHeaderLines;
    for (const Heard& heard : contest()) {
        logContact(stage, heard);
        expected += contactLine(heard.expected) + "\r\n";
        stage.checkFile(log, expected);
    }
    workADuplicate(stage);
    stage.checkFile(log, expected);
    workByNumber(stage);
    expected +=
        contactLine(
            {.hisCall = "DL1QRS", .hisName = "KLAUS", .hisState = "DL", .hisNumber = "9010"}) +
        "\r\n";
    stage.checkFile(log, expected);
    correctAFrequency(stage);
    expected += contactLine({.frequency = "14055",
                             .hisCall = "K9SKC",
                             .hisName = "CLUB",
                             .hisState = "IL",
                             .hisNumber = "5000S"}) +
                "\r\n";
    stage.checkFile(log, expected);
    stage.check("count", stage.shown(mainPage, "Text1"), "12");
    stage.picture(mainPage, "main-contest");
}

void play(Stage& stage) {
    writeRoster(stage);
    fillStartPage(stage);
    playContest(stage);
    playAfterContest(stage);
    playUpkeep(stage);
    playK3yEvent(stage);
    playRadioEvening(stage);
}

// The looks that pictures are taken in: VANTREL_TOUR_POINTS, the font's size, and
// VANTREL_TOUR_PALETTE=dark.
void dress(QApplication& application) {
    if (const int points = qEnvironmentVariableIntValue("VANTREL_TOUR_POINTS")) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    if (qgetenv("VANTREL_TOUR_PALETTE") != "dark")
        return;
    application.setStyle(QStringLiteral("Fusion"));
    const QColor window(0x2B, 0x2B, 0x2B);
    QPalette dark(QColor(0x3C, 0x3C, 0x3C), window);
    dark.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
    dark.setColor(QPalette::ToolTipBase, window);
    QApplication::setPalette(dark);
}

} // namespace
} // namespace vantrel::test

int main(int argc, char** argv) {
    if (std::getenv("QT_QPA_PLATFORM") == nullptr && std::getenv("DISPLAY") == nullptr)
        ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    vantrel::test::dress(application);
    if (argc != 2) {
        std::fprintf(stderr, "usage: tour FOLDER (emptied first)\n");
        return 2;
    }
    try {
        vantrel::test::Stage stage(argv[1]);
        vantrel::test::play(stage);
        std::printf("tour: log and pictures are in %s\n", stage.folder.c_str());
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tour: %s\n", error.what());
        return 1;
    }
}
