// SPDX-License-Identifier: MIT
#include "tour/scenes.h"
#include "tour/stage.h"

#include <QPrinterInfo>

namespace vantrel::test {

namespace {

constexpr const char* score = "frmVantrelScore";
constexpr const char* bonus = "frmCountBonus";
constexpr const char* list = "frmVantrelList";
constexpr const char* members = "frmVantrelShowDB";

// Presses the button that prints; on a machine with a printer nothing is sent to it.
void print(Stage& stage, const char* form, const char* button, const std::string& message,
           const std::string& pdf) {
    if (!QPrinterInfo::defaultPrinter().isNull())
        return;
    stage.confirming(message, [&] { stage.click(form, button); });
    stage.check(pdf, stage.read(pdf).substr(0, 5), "%PDF-");
}

} // namespace

void playAfterContest(Stage& stage) {
    stage.click(mainPage, "Command11");
    // 12 contacts, 7 regions; 1 Centurion, 2 Tribunes, 2 Senators, the club and bonus station
    // three times.
    stage.check("bonus points", stage.shown(score, "Text6"), "205");
    stage.check("total score", stage.shown(score, "Text7"), "289");
    stage.picture(score, "score");
    print(stage, score, "Command2", "The File has been sent to the Printer!",
          "SKS061611-SCORE.PDF");
    stage.leave(score);
    stage.click(mainPage, "Command16");
    stage.check("bonus count", stage.shown(bonus, "Label1"), "Total: 0");
    stage.picture(bonus, "bonus");
    stage.leave(bonus);

    stage.click(mainPage, "Command9");
    stage.click(filesPage, "Option14");
    stage.click(filesPage, "Option6");
    stage.picture(filesPage, "files");
    stage.click(filesPage, "Option7");
    stage.check("first contact as ADIF", stage.lines(list, "List1").at(1),
                "<FREQ:6>14.050<BAND:3>20M<MODE:2>CW<QSO_DATE:8>20110616<TIME_ON:4>0012"
                "<RST_SENT:3>599<CALL:5>K1ABC<RST_RCVD:3>599<NAME:3>JOE<STATE:2>CT"
                "<SKCC_NR:5>0123T<COMMENT:15>SKCC NR: 0123T<EOR>");
    stage.picture(list, "list-adif");
    stage.leave(list);
    print(stage, filesPage, "Option12", "THE FILE HAS BEEN SENT TO THE PRINTER",
          "SKS061611-LOG.PDF");
    stage.click(filesPage, "Option3");
    stage.check("members", stage.lines(members, "List1").at(0),
                "N4XYZ     8123C     ANN       NC ");
    stage.picture(members, "members");
    stage.leave(members);
    stage.leave(filesPage);
}

} // namespace vantrel::test
