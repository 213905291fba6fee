// SPDX-License-Identifier: MIT
#include "screens/start/startlog.h"
#include "tour/scenes.h"
#include "tour/stage.h"

namespace vantrel::test {

void writeRoster(const Stage& stage) {
    const auto record = [](const Station& member) {
        return padded(member.call, 10) + padded(member.number, 10) + padded(member.name, 10) +
               padded(member.state, 3) + "\r\n";
    };
    stage.write("SKSDB2.TXT", record(joe) + record(club));
    stage.write("SKSDB3.TXT", record(ann));
    stage.write("SKSDB5.TXT", record(klaus));
}

namespace {

void fillStartPage(Stage& stage) {
    stage.screens.open(Screen::start);
    stage.picture(startPage, "start-fresh");
    stage.click(startPage, "Option1");
    stage.type(startPage, "Text2", "w1abc");
    stage.type(startPage, "Text6", "john");
    stage.type(startPage, "Text7", "ma");
    stage.type(startPage, "Text8", "1234t");
    stage.click(startPage, "Command4");
    stage.check("default name", stage.shown(startPage, "Text9"), contestLog);
    stage.confirming(std::string(newFileQuestion),
                     [&] { stage.choose(startPage, "Combo7", "YES"); });
    stage.type(startPage, "Text10", "k9skc");
    stage.picture(startPage, "start-filled");
    stage.click(startPage, "Command2");
    stage.picture(mainPage, "main-empty");
}

// As the exchange is heard: the roster knows a member's, the others' is typed.
void logContact(Stage& stage, const Station& station) {
    stage.enter(mainPage, "Text2", station.call);
    if (!station.isMember) {
        stage.type(mainPage, "Text3", station.name);
        stage.type(mainPage, "Text4", station.state);
        stage.type(mainPage, "Text5", station.number);
    }
    stage.press(mainPage, station.isMember ? "Text2" : "Text5", Qt::Key_Return);
}

// A duplicate on 20 m: the word comes up, and nothing is left in the boxes.
void workADuplicate(Stage& stage) {
    stage.enter(mainPage, "Text2", "k1abc");
    stage.picture("frmVantrelDupe", "dupe");
    stage.check("call after a dupe", stage.shown(mainPage, "Text2"), "");
}

// His number came through, his call did not: the first Enter yields the call, the second
// looks it up, the third logs.
void workByNumber(Stage& stage) {
    stage.enter(mainPage, "Text2", "9010");
    stage.check("call of 9010", stage.shown(mainPage, "Text2"), "DL1QRS    ");
    stage.press(mainPage, "Text2", Qt::Key_Return);
    stage.picture(mainPage, "main-looked-up");
    stage.press(mainPage, "Text2", Qt::Key_Return);
}

} // namespace

void playContest(Stage& stage) {
    writeRoster(stage);
    fillStartPage(stage);
    std::string expected = logHeaderLines;
    const auto gained = [&](const std::string& contact) {
        expected += contact;
        stage.checkFile(contestLog, expected);
    };
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
            stage.enter(mainPage, "Text7", heard.tuned);
        logContact(stage, heard.station);
        gained(contactWith(heard.station, heard.khz));
    }
    stage.enter(mainPage, "Text7", "14");
    workADuplicate(stage);
    gained("");
    stage.enter(mainPage, "Text7", "14050");
    workByNumber(stage);
    gained(contactWith(klaus));
    stage.enter(mainPage, "Text7", "14.055");
    logContact(stage, club);
    gained(contactWith(club, "14055"));
    stage.check("count", stage.shown(mainPage, "Text1"), "12");
    stage.picture(mainPage, "main-contest");
}

} // namespace vantrel::test
