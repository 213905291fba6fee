// SPDX-License-Identifier: MIT
#include "platform/qt/formbuilder.h"

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

class ControlsTest : public ::testing::Test {
protected:
    void show() {
        form.show();
        form.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }

    QWidget form;
    FormBuilder build{&form};
};

struct Typing {
    const char* name;
    const char* before;
    int cursor;
    const char* typed;
    const char* after;
};

void PrintTo(const Typing& typing, std::ostream* out) {
    *out << typing.name;
}

class BoxOfSix : public ControlsTest, public ::testing::WithParamInterface<Typing> {};

TEST_P(BoxOfSix, TakesWhatIsTypedInPlaceOfItsPadding) {
    QLineEdit* box = build.text("Text1", 6);
    box->setText(QString::fromLatin1(GetParam().before));
    show();
    box->setFocus();
    box->setCursorPosition(GetParam().cursor);
    QTest::keyClicks(box, QString::fromLatin1(GetParam().typed));
    EXPECT_EQ(box->text().toStdString(), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BoxOfSix,
    ::testing::Values(Typing{"PaddedValue_IsTypedOnto", "JO    ", 6, "HN", "JOHN"},
                      Typing{"PaddedValue_IsTypedInto", "JO    ", 1, "X", "JXO"},
                      Typing{"BlanksAlone_GiveWay", "      ", 6, "K9SKC", "K9SKC"},
                      Typing{"OneBlankLeft_TakesNoRoom", " ", 1, "K1ABCD", "K1ABCD"},
                      Typing{"BlankBetweenWords_Stays", "AL ", 3, "B C", "AL B C"},
                      Typing{"FullBox_TakesNoMore", "K1ABCD", 6, "E", "K1ABCD"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(ControlsTest, OptionIsChosenBehindItsText) {
    QRadioButton* option = build.option("Option1", "SKS");
    option->resize(400, 20);
    form.resize(420, 40);
    show();
    QTest::mouseClick(option, Qt::LeftButton, Qt::NoModifier, QPoint(350, 10));
    EXPECT_TRUE(option->isChecked());
}

TEST_F(ControlsTest, AltKeyClicksBeforeTheNextKeyArrives) {
    QLineEdit* box = build.text("Text1");
    QPushButton* log = build.command("Command1", "&LOG");
    std::string logged;
    QObject::connect(log, &QPushButton::clicked, &form, [&] {
        logged = box->text().toStdString();
        box->clear();
    });
    show();
    box->setFocus();
    QTest::keyClicks(box, QStringLiteral("NONE"));
    QTest::keyClick(box, Qt::Key_L, Qt::AltModifier);
    QTest::keyClicks(box, QStringLiteral("K1"));
    EXPECT_EQ(logged, "NONE");
    EXPECT_EQ(box->text().toStdString(), "K1");
    log->setEnabled(false);
    QTest::keyClick(box, Qt::Key_L, Qt::AltModifier);
    EXPECT_EQ(logged, "NONE");
}

} // namespace
} // namespace vantrel::test
