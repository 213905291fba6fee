// SPDX-License-Identifier: MIT
#include "tour/scenes.h"
#include "tour/stage.h"

namespace vantrel::test {

namespace {

constexpr const char* correction = "frmVantrelCorrect";
constexpr const char* deletion = "frmVantrelDelete";
constexpr const char* editor = "frmVantrelEDITcbr";
constexpr const char* backup = "frmVantrelBackup";

void leave(Stage& stage, const char* page) {
    stage.click(page, "Command1");
    Stage::settle();
}

void search(Stage& stage, const char* page, const char* call) {
    stage.type(page, "Text1", call);
    stage.press(page, "Text1", Qt::Key_Return);
}

// The log must be as before but for one piece; returns what it is now.
std::string changed(const Stage& stage, std::string log, const std::string& what,
                    const std::string& by) {
    log.replace(log.find(what), what.size(), by);
    stage.checkFile(contestLog, log);
    return log;
}

void importTheRoster(Stage& stage) {
    stage.write("skccdata.txt",
                "SKCCNR|CALL|NAME|QTH|SPC|OLDCALL|SKCC|DXCODE|JOINDATE|CENTDATE|TRIBDATE\r\n"
                "123S|K1ABC|Joe|Town|CT||||||\r\n7|N7NEW|Nora|Town|AZ||||||\r\n");
    stage.click(mainPage, "Command9");
    stage.click(filesPage, "Option11");
    stage.picture("frmSelectUpdateList", "update-choice");
    stage.click("frmSelectUpdateList", "Option2");
    stage.picture("frmVantrelUpdate", "update-members");
    leave(stage, "frmVantrelUpdate");
    stage.click("frmSelectUpdateList", "Option1");
    stage.click("frmReadSKCCDATA", "Command2");
    stage.check("import", stage.shown("frmReadSKCCDATA", "Label3"),
                "DONE. . . . 1 MBRS ADDED. Click EXIT");
    stage.picture("frmReadSKCCDATA", "import-done");
    stage.checkFile("SKSDB2.TXT", "K1ABC     123S      JOE       CT \r\n"
                                  "K9SKC     5000S     CLUB      IL \r\n");
    leave(stage, "frmReadSKCCDATA");
    leave(stage, "frmSelectUpdateList");
    leave(stage, filesPage);
}

void correctAndUndo(Stage& stage) {
    const std::string before = stage.read(contestLog);
    stage.click(mainPage, "Command7");
    search(stage, correction, "w5new");
    stage.type(correction, "Text2", "robert");
    stage.click(correction, "Command2");
    changed(stage, before, "BOB       ", "ROBERT    ");
    stage.picture(correction, "correction");
    stage.click(correction, "Command5");
    stage.checkFile(contestLog, before);
    stage.click(correction, "Command5");
    changed(stage, before, "BOB       ", "ROBERT    ");
    leave(stage, correction);
}

void deleteAContact(Stage& stage) {
    const std::string before = stage.read(contestLog);
    stage.click(mainPage, "Command8");
    search(stage, deletion, "g4aaa");
    stage.picture(deletion, "deletion");
    stage.click(deletion, "Command2");
    changed(stage, before, contactWith(ian, "21050"), "");
    leave(stage, deletion);
    stage.check("count after a deletion", stage.shown(mainPage, "Text1"), "11");
}

void editAReport(Stage& stage) {
    const std::string before = stage.read(contestLog);
    stage.click(mainPage, "Command9");
    stage.click(filesPage, "Option9");
    search(stage, editor, "ve3abc");
    stage.type(editor, "Text11", "579");
    stage.click(editor, "Command2");
    // The editor rebuilds the line, with its own idea of the report sent and a shorter marker.
    changed(stage, before, contactWith(sue, " 3550"),
            contactLine({.frequency = " 3550",
                         .rstSent = "559",
                         .hisCall = sue.call,
                         .rstReceived = "579",
                         .hisName = sue.name,
                         .hisState = sue.state,
                         .hisNumber = sue.number,
                         .marker = "    "}) +
                "\r\n");
    stage.picture(editor, "editor");
    leave(stage, editor);
    leave(stage, filesPage);
}

void backUp(Stage& stage) {
    std::filesystem::create_directory(stage.folder / "backup");
    stage.click(mainPage, "Command10");
    stage.click(backup, "Command3");
    stage.picture("frmFileFinder", "finder");
    leave(stage, "frmFileFinder");
    search(stage, backup, (stage.folder / "backup").c_str());
    stage.check("backup", stage.shown(backup, "Label3"), "DONE......CLICK EXIT");
    stage.picture(backup, "backup");
    stage.checkFile("backup/" + contestLog, stage.read(contestLog));
    leave(stage, backup);
}

} // namespace

void playUpkeep(Stage& stage) {
    importTheRoster(stage);
    correctAndUndo(stage);
    deleteAContact(stage);
    editAReport(stage);
    backUp(stage);
}

} // namespace vantrel::test
