// SPDX-License-Identifier: MIT
#include "tour/scenes.h"
#include "tour/stage.h"

namespace vantrel::test {

namespace {

constexpr const char* correction = "frmVantrelCorrect";
constexpr const char* deletion = "frmVantrelDelete";
constexpr const char* editor = "frmVantrelEDITcbr";
constexpr const char* backup = "frmVantrelBackup";

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
    stage.leave("frmVantrelUpdate");
    stage.click("frmSelectUpdateList", "Option1");
    stage.click("frmReadSKCCDATA", "Command2");
    stage.check("import", stage.shown("frmReadSKCCDATA", "Label3"),
                "DONE. . . . 1 MBRS ADDED. Click EXIT");
    stage.picture("frmReadSKCCDATA", "import-done");
    stage.checkFile("SKSDB2.TXT", "K1ABC     123S      JOE       CT \r\n"
                                  "K9SKC     5000S     CLUB      IL \r\n");
    stage.leave("frmReadSKCCDATA");
    stage.leave("frmSelectUpdateList");
    stage.leave(filesPage);
}

void correctAndUndo(Stage& stage) {
    const std::string before = stage.read(contestLog);
    stage.click(mainPage, "Command7");
    stage.enter(correction, "Text1", "w5new");
    stage.type(correction, "Text2", "robert");
    stage.click(correction, "Command2");
    changed(stage, before, "BOB       ", "ROBERT    ");
    stage.picture(correction, "correction");
    stage.click(correction, "Command5");
    stage.checkFile(contestLog, before);
    stage.click(correction, "Command5");
    changed(stage, before, "BOB       ", "ROBERT    ");
    stage.leave(correction);
}

void deleteAContact(Stage& stage) {
    const std::string before = stage.read(contestLog);
    stage.click(mainPage, "Command8");
    stage.enter(deletion, "Text1", "g4aaa");
    stage.picture(deletion, "deletion");
    stage.click(deletion, "Command2");
    changed(stage, before, contactWith(ian, "21050"), "");
    stage.leave(deletion);
    stage.check("count after a deletion", stage.shown(mainPage, "Text1"), "11");
}

void editAReport(Stage& stage) {
    const std::string before = stage.read(contestLog);
    stage.click(mainPage, "Command9");
    stage.click(filesPage, "Option9");
    stage.enter(editor, "Text1", "ve3abc");
    stage.type(editor, "Text11", "579");
    stage.click(editor, "Command2");
    // The editor rebuilds the line, with its own idea of the report sent and a shorter marker.
    changed(stage, before, "599 JOHN       MA 1234T VE3ABC     599 SUE        ON  4411T       \r\n",
            "559 JOHN       MA 1234T VE3ABC     579 SUE        ON  4411T     \r\n");
    stage.picture(editor, "editor");
    stage.leave(editor);
    stage.leave(filesPage);
}

void backUp(Stage& stage) {
    std::filesystem::create_directory(stage.folder / "backup");
    stage.click(mainPage, "Command10");
    stage.click(backup, "Command3");
    stage.picture("frmFileFinder", "finder");
    stage.leave("frmFileFinder");
    stage.enter(backup, "Text1", (stage.folder / "backup").c_str());
    stage.check("backup", stage.shown(backup, "Label3"), "DONE......CLICK EXIT");
    stage.picture(backup, "backup");
    stage.checkFile("backup/" + contestLog, stage.read(contestLog));
    stage.leave(backup);
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
