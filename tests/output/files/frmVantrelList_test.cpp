// SPDX-License-Identifier: MIT
#include "support/qt/formharness.h"

#include <QApplication>
#include <QClipboard>
#include <QListView>
#include <QScrollBar>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

constexpr const char* page = "frmVantrelList";

class ListPage : public ::testing::Test, public FormHarness {
protected:
    ListPage() {
        folder.write("SKS.CBR", "");
        module.log.open("SKS.CBR");
    }
    void openPage(const std::string& bytes) {
        folder.write("SKS.CBR", bytes);
        screens.openList(ListedFile::log);
        settle();
    }
    QListView* view() const { return control<QListView>(page, "List1"); }
    int row() const { return view()->currentIndex().row(); }
    void keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }
};

TEST_F(ListPage, ShowsTheFileLineByLine) {
    messages.expect("Run-time error 53: File not found");
    screens.openList(ListedFile::adif);
    EXPECT_EQ(shown(page, "Label1"), folder.string() + "/SKS.ADI   0 LINES");

    openPage(" Contest: SKS, 1\r\n\r\nJ\xDCRGEN <b>\r\n");
    EXPECT_THAT(lines(page, "List1"),
                ::testing::ElementsAre(" Contest: SKS, 1", "", "J\xDCRGEN <b>"));
    EXPECT_EQ(shown(page, "Label1"), folder.string() + "/SKS.CBR   3 LINES");
}

TEST_F(ListPage, FindsOnwardsAndRoundTheEnd) {
    openPage("K1ABC\r\nW1XYZ\r\nK1ABD\r\nN5A\r\n");
    keys(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("k1ab"));
    EXPECT_EQ(row(), 0);
    keys(Qt::Key_Return);
    EXPECT_EQ(row(), 2);
    keys(Qt::Key_F3);
    EXPECT_EQ(row(), 0);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("x"));
    EXPECT_EQ(row(), 0);
    EXPECT_EQ(shown(page, "Label2"), "NOT FOUND");
    keys(Qt::Key_Escape); // ends the finding, the next one closes
    EXPECT_EQ(QApplication::focusWidget(), view());
    keys(Qt::Key_Escape);
    EXPECT_FALSE(isOpen(page));
}

TEST_F(ListPage, CopiesTheSelectedLinesInTheirOrder) {
    openPage("ONE\r\nTWO  \r\nTHREE\r\n");
    view()->setCurrentIndex(view()->model()->index(1, 0));
    keys(Qt::Key_Up, Qt::ShiftModifier);
    keys(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "ONE\nTWO  \n");
}

// The header is short, the lines after it are long: all of them can be scrolled into view.
TEST_F(ListPage, TheLongestLineDecidesHowFarItScrolls) {
    openPage("X\r\n" + std::string(400, 'W') + "\r\n");
    view()->horizontalScrollBar()->setValue(view()->horizontalScrollBar()->maximum());
    const QRect area = view()->visualRect(view()->model()->index(1, 0));
    EXPECT_GE(area.width(), view()->fontMetrics().horizontalAdvance(QLatin1Char('W')) * 400);
    EXPECT_LE(area.right(), view()->viewport()->width());
}

} // namespace
} // namespace vantrel::test
