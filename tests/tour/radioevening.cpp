// SPDX-License-Identifier: MIT
#include "fakes/qt/ptyradio.h"
#include "tour/scenes.h"
#include "tour/stage.h"

#include <QTest>

namespace vantrel::test {

namespace {

const std::string log = "RADIO.CBR";

void chooseRadio(Stage& stage, const PtyRadio& radio) {
    std::filesystem::create_symlink(radio.device(), stage.folder / "com1");
    stage.write(log, logHeaderLines);
    stage.screens.open(Screen::start);
    stage.click(startPage, "Option1");
    stage.type(startPage, "Text9", log);
    stage.choose(startPage, "Combo1", "TS-2000");
    stage.choose(startPage, "Combo2", "Com1");
    stage.choose(startPage, "Combo3", "9600");
    stage.check("device of com1", stage.shown(startPage, "Label13"), radio.device());
    stage.picture(startPage, "start-radio");
    stage.click(startPage, "Command2");
}

} // namespace

void playRadioEvening(Stage& stage) {
    PtyRadio radio(radioNamed("Kenwood"));
    radio.delay = 100;
    radio.hertz = 10'120'000;
    writeRoster(stage); // whatever was imported before
    chooseRadio(stage, radio);
    // It is read as soon as the page shows; 30 m has no band text of its own.
    if (!QTest::qWaitFor([&] { return stage.shown(mainPage, "Text7") == "10.120"; }))
        throw std::runtime_error("the radio is not read when the page opens");
    stage.check("band outside the sprint", stage.shown(mainPage, "Label10"), "20 Meters ");

    const struct {
        long hertz;
        Station station;
        const char* shown;
        const char* band;
        const char* khz;
    } evening[] = {{14'020'000, joe, "14.020", "20 Meters ", "14020"},
                   {7'025'400, ann, "7.025", "40 Meters ", " 7025"},
                   {28'999'990, klaus, "28.999", "10 Meters ", "28999"},
                   {1'825'000, club, "1.825", "160 Meters", " 1825"}};
    std::string expected = logHeaderLines;
    for (const auto& worked : evening) {
        radio.hertz = worked.hertz;
        stage.enter(mainPage, "Text2", worked.station.call);
        stage.press(mainPage, "Text2", Qt::Key_Return);
        expected += contactWith(worked.station, worked.khz);
        stage.checkFile(log, expected);
        stage.check("frequency", stage.shown(mainPage, "Text7"), worked.shown);
        stage.check("band", stage.shown(mainPage, "Label10"), worked.band);
    }
    stage.picture(mainPage, "main-radio");
}

} // namespace vantrel::test
