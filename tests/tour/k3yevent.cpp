// SPDX-License-Identifier: MIT
#include "tour/k3yevent.h"

#include "support/contacts.h"
#include "tour/stage.h"

#include <fstream>

namespace vantrel::test {

namespace {

constexpr const char* start = "frmVantrelStart";
constexpr const char* mainPage = "frmVantrelMain";
constexpr const char* tagBox = "frmK3Ybox";
constexpr const char* dupeBox = "frmCheckDupeK3Y";
constexpr const char* areas = "frmK3YStandings";
constexpr const char* regions = "frmK3YStandings2";
const std::string log = "K3Y.CBR";

// What was worked before this evening.
std::string workedBefore() {
    std::string bytes = logHeaderLines;
    for (const ContactFields& contact :
         {ContactFields{.frequency = " 7030", .hisCall = "K3Y/3", .hisNumber = "2820S"},
          ContactFields{.frequency = "10120", .hisCall = "K3Y/0", .hisNumber = "8123C"},
          ContactFields{.frequency = "21050", .hisCall = "K3Y/5", .hisNumber = "55C"},
          ContactFields{.frequency = " 1820", .hisCall = "K3Y/KH6", .hisNumber = "4411T"}})
        bytes += contactLine(contact) + "\r\n";
    return bytes;
}

void openTheLog(Stage& stage) {
    std::ofstream(stage.folder / log, std::ios::binary) << workedBefore();
    stage.screens.open(Screen::start);
    stage.type(start, "Text1", "k3y");
    stage.type(start, "Text9", log);
    stage.choose(start, "Combo6", "YES");
    stage.click(start, "Command2");
    stage.check("contacts in the event's log", stage.shown(mainPage, "Text1"), "04");
}

void enterTheStation(Stage& stage) {
    stage.type(mainPage, "Text2", "gb0skc");
    stage.press(mainPage, "Text2", Qt::Key_Return);
    stage.type(mainPage, "Text3", "ian");
    stage.type(mainPage, "Text4", "g");
    stage.type(mainPage, "Text5", "77s");
}

ContactFields theContact() {
    return {.hisCall = "GB0SKC", .hisName = "IAN", .hisState = "G", .hisNumber = "77S"};
}

} // namespace

void playK3yEvent(Stage& stage) {
    openTheLog(stage);

    // The tag is chosen when the station is known to be one, just before logging.
    enterTheStation(stage);
    stage.click(mainPage, "Option1");
    stage.click(tagBox, "Option1");
    stage.picture(tagBox, "k3y-box");
    stage.click(tagBox, "Command1");
    stage.check("tag", stage.shown(mainPage, "Label23"), "-- K3Y/EU --");
    stage.picture(mainPage, "main-k3y-tag");
    stage.press(mainPage, "Text5", Qt::Key_Return);
    ContactFields contact = theContact();
    contact.marker = "K3Y/EU";
    std::string expected = workedBefore() + contactLine(contact) + "\r\n";
    stage.checkFile(log, expected);

    enterTheStation(stage);
    stage.press(mainPage, "Text5", Qt::Key_Return);
    stage.picture(dupeBox, "k3y-dupe");
    stage.click(dupeBox, "Command2");
    contact.marker = "DUPE";
    expected += contactLine(contact) + "\r\n";
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
    stage.check("Europe on 20M", stage.shown(regions, "Text665"), "GB0SKC");
    stage.picture(regions, "k3y-standings-regions");
    stage.click(regions, "Command1");
}

} // namespace vantrel::test
