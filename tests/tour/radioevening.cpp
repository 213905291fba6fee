// SPDX-License-Identifier: MIT
#include "tour/radioevening.h"

#include "fakes/qt/ptyradio.h"
#include "support/contacts.h"
#include "tour/stage.h"

#include <QTest>
#include <QTimer>

#include <filesystem>
#include <fstream>

namespace vantrel::test {

namespace {

constexpr const char* start = "frmVantrelStart";
constexpr const char* mainPage = "frmVantrelMain";
const std::string log = "RADIO.CBR";

// One contact on the band that the radio is tuned to; the roster knows all of them.
struct Worked {
    long hertz;
    const char* call;
    const char* shown; // in the frequency box
    const char* band;
    ContactFields expected;
};

std::vector<Worked> evening() {
    return {
        {14'020'000,
         "k1abc",
         "14.020",
         "20 Meters ",
         {.frequency = "14020",
          .hisCall = "K1ABC",
          .hisName = "JOE",
          .hisState = "CT",
          .hisNumber = "0123T"}},
        {7'025'400,
         "n4xyz",
         "7.025",
         "40 Meters ",
         {.frequency = " 7025",
          .hisCall = "N4XYZ",
          .hisName = "ANN",
          .hisState = "NC",
          .hisNumber = "8123C"}},
        {28'999'990,
         "dl1qrs",
         "28.999",
         "10 Meters ",
         {.frequency = "28999",
          .hisCall = "DL1QRS",
          .hisName = "KLAUS",
          .hisState = "DL",
          .hisNumber = "9010"}},
        {1'825'000,
         "k9skc",
         "1.825",
         "160 Meters",
         {.frequency = " 1825",
          .hisCall = "K9SKC",
          .hisName = "CLUB",
          .hisState = "IL",
          .hisNumber = "5000S"}},
    };
}

// The members of this evening, whatever was imported before it.
void writeRoster(const Stage& stage) {
    const auto write = [&](const char* name, const char* lines) {
        std::ofstream(stage.folder / name, std::ios::binary) << lines;
    };
    write("SKSDB2.TXT", "K1ABC     0123T     JOE       CT \r\n"
                        "K9SKC     5000S     CLUB      IL \r\n");
    write("SKSDB3.TXT", "N4XYZ     8123C     ANN       NC \r\n");
    write("SKSDB5.TXT", "DL1QRS    9010      KLAUS     DL \r\n");
}

void chooseRadio(Stage& stage, const PtyRadio& radio) {
    std::filesystem::create_symlink(radio.device(), stage.folder / "com1");
    std::ofstream(stage.folder / log, std::ios::binary) << logHeaderLines;
    stage.screens.open(Screen::start);
    stage.click(start, "Option1");
    stage.type(start, "Text9", log);
    stage.choose(start, "Combo1", "TS-2000");
    stage.choose(start, "Combo2", "Com1");
    stage.choose(start, "Combo3", "9600");
    stage.check("device of com1", stage.shown(start, "Label13"), radio.device());
    stage.picture(start, "start-radio");
    stage.click(start, "Command2");
}

// Enter while the radio is still being asked: it counts as soon as the answer is there.
void enterTwice(Stage& stage, const char* call) {
    stage.type(mainPage, "Text2", call);
    QTimer::singleShot(20, stage.form(mainPage),
                       [&stage] { stage.press(mainPage, "Text2", Qt::Key_Return); });
    stage.press(mainPage, "Text2", Qt::Key_Return);
}

void waitForLog(Stage& stage, const std::string& expected) {
    const auto size = [&] { return std::filesystem::file_size(stage.folder / log); };
    if (!QTest::qWaitFor([&] { return size() >= expected.size(); }))
        throw std::runtime_error("the contact is not in the log");
    stage.checkFile(log, expected);
}

} // namespace

void playRadioEvening(Stage& stage) {
    PtyRadio radio(radioNamed("Kenwood"));
    radio.delay = 100;
    radio.hertz = 10'120'000;
    writeRoster(stage);
    chooseRadio(stage, radio);
    if (!QTest::qWaitFor([&] { return stage.shown(mainPage, "Text7") == "10.120"; }))
        throw std::runtime_error("the radio is not read when the page opens");
    stage.check("auto read", stage.shown(mainPage, "Label11"), "AUTO READ ON ");
    stage.check("band outside the sprint", stage.shown(mainPage, "Label10"), "20 Meters ");

    std::string expected = logHeaderLines;
    for (const Worked& worked : evening()) {
        radio.hertz = worked.hertz;
        enterTwice(stage, worked.call);
        expected += contactLine(worked.expected) + "\r\n";
        waitForLog(stage, expected);
        stage.check("frequency", stage.shown(mainPage, "Text7"), worked.shown);
        stage.check("band", stage.shown(mainPage, "Label10"), worked.band);
    }
    stage.picture(mainPage, "main-radio");

    radio.answer = nullptr;
    const std::string silent = "ERROR READING FREQUENCY FROM THE CAT PORT";
    stage.type(mainPage, "Text2", "n4xyz");
    for (int search = 0; search < 2; ++search)
        stage.answering(silent, true, [&] { stage.press(mainPage, "Text2", Qt::Key_Return); });
    expected += contactLine({.frequency = " 1825",
                             .hisCall = "N4XYZ",
                             .hisName = "ANN",
                             .hisState = "NC",
                             .hisNumber = "8123C"}) +
                "\r\n";
    stage.checkFile(log, expected);
    stage.module.settings.rig = noneSetting; // the radio goes home with its owner
}

} // namespace vantrel::test
