// SPDX-License-Identifier: MIT
#include "logedit/loglines.h"
#include "support/qt/formharness.h"

#include <QAbstractButton>
#include <QTest>

#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <utility>

namespace vantrel::test {
namespace {

using ::testing::HasSubstr;
using ::testing::SizeIs;

constexpr const char* correctPage = "frmVantrelCorrect";
constexpr const char* deletePage = "frmVantrelDelete";
constexpr const char* editPage = "frmVantrelEDITcbr";

// The main page on a log of three contacts, and one of the three pages over it.
class LogPages : public ::testing::Test, public FormHarness {
protected:
    LogPages() {
        module.settings.logFileName = logName;
        folder.write(logName, before);
        screens.open(Screen::main);
    }

    void search(const char* page, std::string_view call) {
        type(page, "Text1", call);
        press(page, "Text1", Qt::Key_Return);
    }

    bool enabled(const char* page, const char* button) const {
        return control<QAbstractButton>(page, button)->isEnabled();
    }

    const std::string before =
        logOf({contact("K1ABC", "JOE"), contact("K9SKC"), contact("K1ABD", "ANN")});
};

TEST_F(LogPages, CorrectionChangesTheTypedFieldAndTheMainPageFollows) {
    screens.open(Screen::correct);
    search(correctPage, "k1ab");
    EXPECT_EQ(shown(correctPage, "Text1"), "K1AB");
    EXPECT_EQ(shown(correctPage, "Text2"), "JOE");
    EXPECT_EQ(shown(correctPage, "Text7"), "14050");
    click(correctPage, "Command4");
    EXPECT_EQ(shown(correctPage, "Label13"), "FOUND: K1ABD");
    click(correctPage, "Command4");
    EXPECT_EQ(shown(correctPage, "Label11"), "LAST ENTRY");
    EXPECT_EQ(shown(correctPage, "Text2"), "ANN");

    type(correctPage, "Text1", "k1abe");
    type(correctPage, "Text2", "bartholomew");
    type(correctPage, "Text4", "mass");
    click(correctPage, "Option1");
    EXPECT_FALSE(control<QAbstractButton>(correctPage, "Option1")->isChecked());
    click(correctPage, "Command2");
    std::string line = contact("K1ABE", "BARTHOLOME", "DUPE  ");
    line.replace(91, 3, "MAS");
    const std::string after = logOf({contact("K1ABC", "JOE"), contact("K9SKC"), line});
    EXPECT_EQ(folder.read(logName), after);
    EXPECT_EQ(folder.read(backupName), before);
    EXPECT_EQ(shown(correctPage, "Label11"), " Done....Click EXIT ");
    EXPECT_EQ(shown(correctPage, "Label12"), "CUT TO WIDTH: HIS NAME, HIS STATE");
    EXPECT_EQ(shown(correctPage, "Label13"), "FOUND: K1ABE");
    EXPECT_THAT(folder.read("StnsWorked.TXT"), HasSubstr("BARTHOLOME"));
    EXPECT_THAT(lines("frmVantrelMain", "List1").back(), HasSubstr("BARTHOLOME"));

    click(correctPage, "Command5");
    EXPECT_EQ(shown(correctPage, "Label11"), " Undone....Click EXIT ");
    EXPECT_EQ(folder.read(logName), before);
    EXPECT_THAT(lines("frmVantrelMain", "List1").back(), HasSubstr("ANN  "));
    click(correctPage, "Command5");
    EXPECT_EQ(shown(correctPage, "Label11"), " Redone....Click EXIT ");
    EXPECT_EQ(folder.read(logName), after);
}

TEST_F(LogPages, AKeySearchedForInVainIsNotSavedAsACall) {
    screens.open(Screen::correct);
    search(correctPage, "K9SKC");
    type(correctPage, "Text1", "w1aw");
    click(correctPage, "Command4");
    type(correctPage, "Text2", "NEW");
    click(correctPage, "Command2");
    EXPECT_EQ(folder.read(logName),
              logOf({contact("K1ABC", "JOE"), contact("K9SKC", "NEW"), contact("K1ABD", "ANN")}));

    search(correctPage, "W1AW");
    EXPECT_EQ(shown(correctPage, "Label11"), "THIS CALL IS NOT FOUND");
    EXPECT_EQ(shown(correctPage, "Label13"), "");
    EXPECT_FALSE(enabled(correctPage, "Command2"));
}

TEST_F(LogPages, AChangeThatCannotBeMadeIsToldAndLeavesLogAndTyping) {
    screens.open(Screen::correct);
    search(correctPage, "K9SKC");
    type(correctPage, "Text2", "CLUBB");
    type(correctPage, "Text1", "K9");
    messages.expect("A CALL NEEDS AT LEAST THREE CHARACTERS");
    click(correctPage, "Command2");
    type(correctPage, "Text1", "K9SKC");
    calls.failAt(Call::write, 1, ENOSPC);
    messages.expect("Run-time error 61: Disk full");
    click(correctPage, "Command2");
    EXPECT_EQ(folder.read(logName), before);
    EXPECT_EQ(shown(correctPage, "Label11"), ""); // no longer at work

    calls.heal();
    files.appendLine(logName, contact("W1AW")); // logged meanwhile
    messages.expect("THE LOG HAS CHANGED SINCE THE SEARCH");
    click(correctPage, "Command2");
    EXPECT_EQ(folder.read(logName), before + contact("W1AW") + "\r\n");
    EXPECT_EQ(shown(correctPage, "Text2"), "CLUBB");
}

TEST_F(LogPages, AChangeStandsThoughTheWorkedStationsCannotBeWritten) {
    screens.open(Screen::deletion);
    search(deletePage, "K9SKC");
    std::filesystem::remove(folder.path() / "StnsWorked.TXT");
    std::filesystem::create_directory(folder.path() / "StnsWorked.TXT");
    messages.expect("Run-time error 75: Path/File access error");
    click(deletePage, "Command2");
    EXPECT_EQ(shown(deletePage, "Label4"), "Deleted...Click EXIT");
    EXPECT_EQ(folder.read(logName), logOf({contact("K1ABC", "JOE"), contact("K1ABD", "ANN")}));
    EXPECT_THAT(lines("frmVantrelMain", "List1"), SizeIs(2));
}

TEST_F(LogPages, AfterAnUndoOneSearchesBeforeChangingAgain) {
    for (const auto& [screen, page] :
         {std::pair{Screen::correct, correctPage}, std::pair{Screen::deletion, deletePage},
          std::pair{Screen::editor, editPage}}) {
        SCOPED_TRACE(page);
        screens.open(screen);
        EXPECT_FALSE(enabled(page, "Command2"));
        search(page, "K9SKC");
        EXPECT_TRUE(enabled(page, "Command2"));
        if (screen == Screen::correct)
            type(page, "Text2", "NEW");
        click(page, "Command2");
        click(page, "Command5");
        EXPECT_EQ(folder.read(logName), before);
        EXPECT_FALSE(enabled(page, "Command2"));
        EXPECT_EQ(shown(page, screen == Screen::deletion ? "Label2" : "Text2"), "");
        // The next call typed takes the place of the one searched for.
        QTest::keyClicks(control(page, "Text1"), QStringLiteral("k1ab"));
        press(page, "Text1", Qt::Key_Return);
        EXPECT_EQ(shown(page, "Text1"), "K1AB");
        EXPECT_TRUE(enabled(page, "Command2"));
    }
}

TEST_F(LogPages, DeletionRemovesWhatItShowsOnce) {
    screens.open(Screen::deletion);
    EXPECT_EQ(shown(deletePage, "Label4"), "ENTER A CALLSIGN ");
    search(deletePage, "k9skc");
    EXPECT_EQ(shown(deletePage, "Label2"), "K9SKC       CLUB       IL  5000S ");
    EXPECT_EQ(shown(deletePage, "Label3"), "14050 MHz CW 2011-06-16 0012       ");
    click(deletePage, "Command2");
    const std::string after = logOf({contact("K1ABC", "JOE"), contact("K1ABD", "ANN")});
    EXPECT_EQ(folder.read(logName), after);
    EXPECT_EQ(shown(deletePage, "Label4"), "Deleted...Click EXIT");
    EXPECT_EQ(shown(deletePage, "Label2") + shown(deletePage, "Label3"), "");
    EXPECT_FALSE(enabled(deletePage, "Command2"));
    EXPECT_EQ(shown("frmVantrelMain", "Text1"), "02");
    EXPECT_THAT(lines("frmVantrelMain", "List1"), SizeIs(2));

    search(deletePage, "K1AB");
    click(deletePage, "Command4");
    click(deletePage, "Command4");
    EXPECT_EQ(shown(deletePage, "Label4"), "  LAST ENTRY");
    click(deletePage, "Command2");
    EXPECT_EQ(folder.read(logName), logOf({contact("K1ABC", "JOE")}));
    search(deletePage, "W1AW");
    EXPECT_EQ(shown(deletePage, "Label4"), "THIS CALL NOT FOUND ");
    EXPECT_FALSE(enabled(deletePage, "Command2"));
}

TEST_F(LogPages, EditorRebuildsTheLine) {
    screens.open(Screen::editor);
    search(editPage, "k1abd");
    EXPECT_EQ(shown(editPage, "Label16"), "MAKE CORRECTIONS AS NECESSARY");
    EXPECT_EQ(shown(editPage, "Text12"), "ANN       ");
    type(editPage, "Text2", "7045");
    type(editPage, "Text6", "579");
    click(editPage, "Option1");
    click(editPage, "Command2");
    EXPECT_EQ(shown(editPage, "Label16"), "                   Done......Click EXIT");
    EXPECT_EQ(shown(editPage, "Text2"), " 7045");
    EXPECT_EQ(folder.read(logName),
              logOf({contact("K1ABC", "JOE"), contact("K9SKC"),
                     "QSO:  7045 CW 2011-06-16 0012 W1ABC      557 JOHN       MA 1234T K1ABD      "
                     "589 ANN        IL  5000S DUPE"}));
    search(editPage, "W1AW");
    EXPECT_EQ(shown(editPage, "Label16"), "W1AW IS NOT IN THE FILE");
    click(editPage, "Command4");
    EXPECT_EQ(shown(editPage, "Label16"), "LAST ENTRY");
}

} // namespace
} // namespace vantrel::test
