// SPDX-License-Identifier: MIT
#include "tour/scenes.h"
#include "tour/stage.h"

#include <array>

namespace vantrel::test {

namespace {

constexpr const char* tagBox = "frmK3Ybox";
constexpr const char* dupeBox = "frmCheckDupeK3Y";
constexpr const char* areas = "frmK3YStandings";
constexpr const char* regions = "frmK3YStandings2";
const std::string log = "K3Y.CBR";
const Station eventStation{"GB0SKC", "IAN", "G", "77S", false};

// What was worked before this evening.
std::string workedBefore() {
    std::string bytes = logHeaderLines;
    for (const auto& [khz, call, number] :
         {std::array{" 7030", "K3Y/3", "2820S"}, std::array{"10120", "K3Y/0", "8123C"},
          std::array{"21050", "K3Y/5", "55C"}, std::array{" 1820", "K3Y/KH6", "4411T"}})
        bytes += contactWith({call, "CLUB", "IL", number}, khz);
    return bytes;
}

void enterTheStation(Stage& stage) {
    stage.enter(mainPage, "Text2", eventStation.call);
    stage.type(mainPage, "Text3", eventStation.name);
    stage.type(mainPage, "Text4", eventStation.state);
    stage.type(mainPage, "Text5", eventStation.number);
}

} // namespace

void playK3yEvent(Stage& stage) {
    std::string expected = workedBefore();
    stage.write(log, expected);
    stage.screens.open(Screen::start);
    stage.type(startPage, "Text1", "k3y");
    stage.type(startPage, "Text9", log);
    stage.choose(startPage, "Combo6", "YES");
    stage.click(startPage, "Command2");
    stage.check("contacts in the event's log", stage.shown(mainPage, "Text1"), "04");

    // The tag is chosen when the station is known to be one, just before logging.
    enterTheStation(stage);
    stage.click(mainPage, "Option1");
    stage.click(tagBox, "Option1");
    stage.picture(tagBox, "k3y-box");
    stage.click(tagBox, "Command1");
    stage.check("tag", stage.shown(mainPage, "Label23"), "-- K3Y/EU --");
    stage.picture(mainPage, "main-k3y-tag");
    stage.press(mainPage, "Text5", Qt::Key_Return);
    expected += contactWith(eventStation, "14050", "K3Y/EU");
    stage.checkFile(log, expected);

    enterTheStation(stage);
    stage.press(mainPage, "Text5", Qt::Key_Return);
    stage.picture(dupeBox, "k3y-dupe");
    stage.click(dupeBox, "Command2");
    expected += contactWith(eventStation, "14050", "DUPE");
    stage.checkFile(log, expected);

    enterTheStation(stage);
    stage.press(mainPage, "Text5", Qt::Key_Return);
    stage.press(dupeBox, "Command1", Qt::Key_Escape);
    stage.checkFile(log, expected);
    stage.check("contacts after a dropped one", stage.shown(mainPage, "Text1"), "06");

    stage.click(mainPage, "Command11");
    stage.check("call areas worked", stage.shown(areas, "Label2"), "TOTAL:  3");
    stage.picture(areas, "k3y-standings");
    stage.click(areas, "Command2");
    stage.check("regions worked", stage.shown(regions, "Label2"), "TOTAL:  2");
    stage.check("Europe on 20M", stage.shown(regions, "Text665"), eventStation.call);
    stage.picture(regions, "k3y-standings-regions");
    stage.click(regions, "Command1");
}

} // namespace vantrel::test
