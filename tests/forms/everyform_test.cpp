// SPDX-License-Identifier: MIT
// What holds for every screen: its name, unique Alt keys, plain text, and room on the screen.
#include "support/contacts.h"
#include "support/qt/formharness.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>
#include <set>

namespace vantrel::test {
namespace {

constexpr QSize smallestScreen(1366, 700);

struct Row {
    Screen screen;
    const char* name;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

class EveryForm : public ::testing::TestWithParam<Row>, public FormHarness {
protected:
    EveryForm() {
        module.settings.logFileName = "SKS.CBR";
        folder.write("SKS.CBR", logHeaderLines + contactLine({}) + "\r\n");
        folder.write("SKS.ADI", "<EOH>\r\n<EOF>\r\n");
        if (GetParam().screen != Screen::start)
            screens.open(Screen::main);
        if (GetParam().screen == Screen::checkDupeK3y)
            screens.askAboutDupe({[] {}, [] {}});
        else
            screens.open(GetParam().screen);
    }
};

TEST_P(EveryForm, HasNamesAndAltKeysOnceAndFitsAndEscapeClosesAllButTheTwoPages) {
    const auto& [screen, name] = GetParam();
    const QWidget* shownForm = form(name);
    std::set<QString> names;
    for (const QWidget* control : shownForm->findChildren<QWidget*>()) {
        const QString own = control->objectName();
        EXPECT_TRUE(own.isEmpty() || own.startsWith(u"qt_") || names.insert(own).second)
            << own.toStdString();
    }
    std::set<QString> keys;
    for (const QAbstractButton* button : shownForm->findChildren<QAbstractButton*>()) {
        const QString key = QKeySequence::mnemonic(button->text()).toString();
        // The two captions of the backup page share a letter and are known so.
        EXPECT_TRUE(key.isEmpty() || keys.insert(key).second || screen == Screen::backup)
            << button->text().toStdString();
    }
    for (const QLabel* label : shownForm->findChildren<QLabel*>())
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
    EXPECT_LE(shownForm->width(), smallestScreen.width());
    EXPECT_LE(shownForm->height(), smallestScreen.height());

    QTest::keyClick(form(name), Qt::Key_Escape);
    settle();
    EXPECT_EQ(isOpen(name), screen == Screen::start || screen == Screen::main);
}

INSTANTIATE_TEST_SUITE_P(
    Screens, EveryForm,
    ::testing::Values(
        Row{Screen::start, "frmVantrelStart"}, Row{Screen::main, "frmVantrelMain"},
        Row{Screen::correct, "frmVantrelCorrect"}, Row{Screen::deletion, "frmVantrelDelete"},
        Row{Screen::editor, "frmVantrelEDITcbr"}, Row{Screen::score, "frmVantrelScore"},
        Row{Screen::bonus, "frmCountBonus"}, Row{Screen::files, "frmVantrelFiles"},
        Row{Screen::list, "frmVantrelList"}, Row{Screen::showDb, "frmVantrelShowDB"},
        Row{Screen::backup, "frmVantrelBackup"}, Row{Screen::finder, "frmFileFinder"},
        Row{Screen::updateList, "frmSelectUpdateList"}, Row{Screen::readData, "frmReadSKCCDATA"},
        Row{Screen::memberUpdate, "frmVantrelUpdate"}, Row{Screen::callArea, "frmVantrelCallArea"},
        Row{Screen::standings, "frmK3YStandings"}, Row{Screen::standings2, "frmK3YStandings2"},
        Row{Screen::checkDupeK3y, "frmCheckDupeK3Y"}, Row{Screen::k3yBox, "frmK3Ybox"}),
    [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace vantrel::test
