// SPDX-License-Identifier: MIT
// What holds for every screen: its name, unique Alt keys, plain text, and room on the screen.
#include "support/contacts.h"
#include "support/qt/formharness.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>
#include <map>
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

std::string nameOf(const ::testing::TestParamInfo<Row>& info) {
    return info.param.name;
}

class EveryForm : public ::testing::TestWithParam<Row>, public FormHarness {
protected:
    EveryForm() {
        module.settings.logFileName = "SKS.CBR";
        folder.write("SKS.CBR", logHeaderLines + contactLine({}) + "\r\n");
        folder.write("SKS.ADI", "<EOH>\r\n<EOF>\r\n");
        folder.write("SKSDB1.TXT", "");
        module.rosterFile = "SKSDB1.TXT";
        if (GetParam().screen != Screen::start)
            screens.open(Screen::main);
    }
};

TEST_P(EveryForm, HasItsNameAndEachControlOnce) {
    screens.open(GetParam().screen);
    ASSERT_TRUE(isOpen(GetParam().name));
    std::map<QString, int> names;
    for (const QWidget* control : form(GetParam().name)->findChildren<QWidget*>())
        if (!control->objectName().isEmpty() && !control->objectName().startsWith(u"qt_"))
            ++names[control->objectName()];
    for (const auto& [name, count] : names)
        EXPECT_EQ(count, 1) << name.toStdString();
}

TEST_P(EveryForm, HasNoAltKeyTwice) {
    if (GetParam().screen == Screen::backup)
        GTEST_SKIP() << "its two captions share a letter and are known so";
    screens.open(GetParam().screen);
    std::set<QString> keys;
    for (const QAbstractButton* button : form(GetParam().name)->findChildren<QAbstractButton*>()) {
        const QString key = QKeySequence::mnemonic(button->text()).toString();
        EXPECT_TRUE(key.isEmpty() || keys.insert(key).second) << button->text().toStdString();
    }
}

TEST_P(EveryForm, FitsTheSmallestScreenAndShowsPlainText) {
    screens.open(GetParam().screen);
    const QSize size = form(GetParam().name)->size();
    EXPECT_LE(size.width(), smallestScreen.width());
    EXPECT_LE(size.height(), smallestScreen.height());
    for (const QLabel* label : form(GetParam().name)->findChildren<QLabel*>())
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
}

TEST_P(EveryForm, EscapeClosesAllButTheTwoPages) {
    const Screen screen = GetParam().screen;
    screens.open(screen);
    QTest::keyClick(form(GetParam().name), Qt::Key_Escape);
    settle();
    EXPECT_EQ(isOpen(GetParam().name), screen == Screen::start || screen == Screen::main);
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
    nameOf);

} // namespace
} // namespace vantrel::test
