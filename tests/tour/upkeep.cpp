// SPDX-License-Identifier: MIT
#include "tour/upkeep.h"

#include "support/contacts.h"
#include "tour/stage.h"

#include <fstream>
#include <iterator>

namespace vantrel::test {

namespace {

constexpr const char* mainPage = "frmVantrelMain";
constexpr const char* filesPage = "frmVantrelFiles";
const std::string log = "SKS061611.CBR";

std::string bytesOf(const Stage& stage, const std::string& name) {
    std::ifstream file(stage.folder / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void replaceFirst(std::string& text, const std::string& what, const std::string& by) {
    text.replace(text.find(what), what.size(), by);
}

void leave(Stage& stage, const char* page) {
    stage.click(page, "Command1");
    Stage::settle();
}

void importTheRoster(Stage& stage) {
    std::ofstream(stage.folder / "skccdata.txt", std::ios::binary)
        << "SKCCNR|CALL|NAME|QTH|SPC|OLDCALL|SKCC|DXCODE|JOINDATE|CENTDATE|TRIBDATE\r\n"
           "123S|K1ABC|Joe|Town|CT||||||\r\n7|N7NEW|Nora|Town|AZ||||||\r\n";
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
    const std::string before = bytesOf(stage, log);
    stage.click(mainPage, "Command7");
    stage.type("frmVantrelCorrect", "Text1", "w5new");
    stage.press("frmVantrelCorrect", "Text1", Qt::Key_Return);
    stage.type("frmVantrelCorrect", "Text2", "robert");
    stage.click("frmVantrelCorrect", "Command2");
    std::string expected = before;
    replaceFirst(expected, "BOB       ", "ROBERT    ");
    stage.checkFile(log, expected);
    stage.picture("frmVantrelCorrect", "correction");
    stage.click("frmVantrelCorrect", "Command5");
    stage.checkFile(log, before);
    stage.click("frmVantrelCorrect", "Command5");
    stage.checkFile(log, expected);
    leave(stage, "frmVantrelCorrect");
}

void deleteAContact(Stage& stage) {
    std::string expected = bytesOf(stage, log);
    stage.click(mainPage, "Command8");
    stage.type("frmVantrelDelete", "Text1", "g4aaa");
    stage.press("frmVantrelDelete", "Text1", Qt::Key_Return);
    stage.picture("frmVantrelDelete", "deletion");
    stage.click("frmVantrelDelete", "Command2");
    replaceFirst(expected,
                 contactLine({.frequency = "21050",
                              .hisCall = "G4AAA/P",
                              .hisName = "IAN",
                              .hisState = "G",
                              .hisNumber = "77S"}) +
                     "\r\n",
                 "");
    stage.checkFile(log, expected);
    leave(stage, "frmVantrelDelete");
    stage.check("count after a deletion", stage.shown(mainPage, "Text1"), "11");
}

void editAReport(Stage& stage) {
    stage.click(mainPage, "Command9");
    stage.click(filesPage, "Option9");
    stage.type("frmVantrelEDITcbr", "Text1", "ve3abc");
    stage.press("frmVantrelEDITcbr", "Text1", Qt::Key_Return);
    stage.type("frmVantrelEDITcbr", "Text11", "579");
    stage.click("frmVantrelEDITcbr", "Command2");
    stage.picture("frmVantrelEDITcbr", "editor");
    leave(stage, "frmVantrelEDITcbr");
    leave(stage, filesPage);
}

void backUp(Stage& stage) {
    std::filesystem::create_directory(stage.folder / "backup");
    stage.click(mainPage, "Command10");
    stage.click("frmVantrelBackup", "Command3");
    stage.picture("frmFileFinder", "finder");
    stage.click("frmFileFinder", "Command1");
    Stage::settle();
    stage.type("frmVantrelBackup", "Text1", (stage.folder / "backup").string());
    stage.press("frmVantrelBackup", "Text1", Qt::Key_Return);
    stage.check("backup", stage.shown("frmVantrelBackup", "Label3"), "DONE......CLICK EXIT");
    stage.picture("frmVantrelBackup", "backup");
    stage.checkFile("backup/" + log, bytesOf(stage, log));
    leave(stage, "frmVantrelBackup");
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
