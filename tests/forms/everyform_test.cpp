// SPDX-License-Identifier: MIT
// What holds for every screen: its name, unique Alt keys, plain text, and room on the screen.
#include "support/contacts.h"
#include "support/qt/formharness.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeySequence>
#include <QLabel>
#include <QTest>

#include <set>

namespace vantrel::test {
namespace {

TEST(EveryForm, HasNamesAndAltKeysOnceAndFitsAndEscapeClosesAllButTheTwoPages) {
    FormHarness program;
    program.module.settings.logFileName = "SKS.CBR";
    program.folder.write("SKS.CBR", logHeaderLines + contactLine({}) + "\r\n");
    program.folder.write("SKS.ADI", "<EOH>\r\n<EOF>\r\n");
    std::set<QString> forms;
    for (int i = 0; i <= static_cast<int>(Screen::k3yBox); ++i) {
        const auto screen = static_cast<Screen>(i);
        if (screen == Screen::dupe) // no window: it goes by itself
            continue;
        if (screen == Screen::checkDupeK3y)
            program.screens.askAboutDupe({[] {}, [] {}});
        else
            program.screens.open(screen);
        FormHarness::settle();
        const QPointer<QWidget> form = QApplication::activeWindow();
        SCOPED_TRACE(form->objectName().toStdString());
        EXPECT_TRUE(forms.insert(form->objectName()).second);
        std::set<QString> names;
        for (const QWidget* control : form->findChildren<QWidget*>()) {
            const QString name = control->objectName();
            EXPECT_TRUE(name.isEmpty() || name.startsWith(u"qt_") || names.insert(name).second)
                << name.toStdString();
        }
        std::set<QString> keys;
        for (const QAbstractButton* button : form->findChildren<QAbstractButton*>()) {
            const QString key = QKeySequence::mnemonic(button->text()).toString();
            // The two captions of the backup page share a letter and are known so.
            EXPECT_TRUE(key.isEmpty() || keys.insert(key).second || screen == Screen::backup)
                << button->text().toStdString();
        }
        for (const QLabel* label : form->findChildren<QLabel*>())
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
        EXPECT_TRUE(QRect(0, 0, 1366, 700).contains(QRect({}, form->size())));

        QTest::keyClick(form, Qt::Key_Escape);
        FormHarness::settle();
        EXPECT_EQ(form != nullptr, screen == Screen::start || screen == Screen::main);
    }
}

} // namespace
} // namespace vantrel::test
