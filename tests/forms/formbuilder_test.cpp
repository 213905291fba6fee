// SPDX-License-Identifier: MIT
#include "forms/formbuilder.h"

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

struct ControlsTest : ::testing::Test {
    void show() {
        form.show();
        form.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
        box->setFocus();
    }

    QWidget form;
    FormBuilder build{&form};
    QLineEdit* box = build.text("Text1", 6);
};

TEST_F(ControlsTest, BoxTakesWhatIsTypedInPlaceOfItsPadding) {
    show();
    const struct {
        const char* before;
        int cursor;
        const char* typed;
        const char* after;
    } rows[] = {{"JO    ", 6, "HN", "JOHN"},     {"JO    ", 1, "X", "JXO"},
                {"      ", 6, "K9SKC", "K9SKC"}, {" ", 1, "K1ABCD", "K1ABCD"},
                {"AL ", 3, "B C", "AL B C"}, // a blank between words
                {"K1ABCD", 6, "E", "K1ABCD"}};
    for (const auto& row : rows) {
        box->setText(QString::fromLatin1(row.before));
        box->setCursorPosition(row.cursor);
        QTest::keyClicks(box, QString::fromLatin1(row.typed));
        EXPECT_EQ(box->text().toStdString(), row.after) << '"' << row.before << '"';
    }
}

TEST_F(ControlsTest, OptionIsChosenBehindItsText) {
    QRadioButton* option = build.option("Option1", "SKS");
    option->resize(400, 20);
    form.resize(420, 40);
    show();
    QTest::mouseClick(option, Qt::LeftButton, Qt::NoModifier, QPoint(350, 10));
    EXPECT_TRUE(option->isChecked());
}

TEST_F(ControlsTest, AltKeyClicksBeforeTheNextKeyArrives) {
    QPushButton* log = build.command("Command1", "&LOG");
    std::string logged;
    QObject::connect(log, &QPushButton::clicked, &form, [&] {
        logged += box->text().toStdString();
        box->clear();
    });
    show();
    QTest::keyClicks(box, QStringLiteral("NONE"));
    QTest::keyClick(box, Qt::Key_L, Qt::AltModifier);
    QTest::keyClicks(box, QStringLiteral("K1"));
    EXPECT_EQ(box->text().toStdString(), "K1");
    log->setEnabled(false);
    QTest::keyClick(box, Qt::Key_L, Qt::AltModifier);
    EXPECT_EQ(logged, "NONE");
}

} // namespace
} // namespace vantrel::test
