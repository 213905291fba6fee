// SPDX-License-Identifier: MIT
#include "forms/formbuilder.h"

#include <QTest>

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

TEST(Controls, TakeTheOperatorsKeysAndClicks) {
    QWidget form;
    FormBuilder build(&form);
    QLineEdit* box = build.text("Text1", 6);
    QRadioButton* option = build.option("Option1", "SKS");
    option->setGeometry(0, 40, 400, 20);
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));

    // What is typed stands in place of the padding.
    box->setFocus();
    const std::tuple<const char*, int, const char*, const char*> rows[] = {
        {"JO    ", 6, "HN", "JOHN"},  {"JO    ", 1, "X", "JXO"},   {"      ", 6, "K9SKC", "K9SKC"},
        {" ", 1, "K1ABCD", "K1ABCD"}, {"AL ", 3, "B C", "AL B C"}, // a blank between words
        {"K1ABCD", 6, "E", "K1ABCD"}};
    for (const auto& [before, cursor, typed, after] : rows) {
        box->setText(QString::fromLatin1(before));
        box->setCursorPosition(cursor);
        QTest::keyClicks(box, QString::fromLatin1(typed));
        EXPECT_EQ(box->text().toStdString(), after) << '"' << before << '"';
    }

    // Behind its text, too.
    QTest::mouseClick(option, Qt::LeftButton, Qt::NoModifier, QPoint(350, 10));
    EXPECT_TRUE(option->isChecked());
}

} // namespace
} // namespace vantrel::test
