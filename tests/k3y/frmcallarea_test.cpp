// SPDX-License-Identifier: MIT
#include "support/qt/formharness.h"

#include <QAbstractItemView>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

constexpr const char* page = "frmVantrelCallArea";

TEST(CallAreaPage, ProposesTheLogsNameUntilItIsAborted) {
    FormHarness program;
    program.clock.time = {2010, 1, 5, 20, 0, 0};
    program.screens.open(Screen::start);
    program.type("frmVantrelStart", "Text2", "w1abc/4");
    program.type("frmVantrelStart", "Text9", "MINE.CBR");
    program.choose("frmVantrelStart", "Combo5", "5"); // not saved yet: 01:00 UTC the next day
    program.click("frmVantrelStart", "Option4");
    EXPECT_EQ(program.shown("frmVantrelStart", "Text9"), "MINE.CBR");

    auto* list = program.control<QAbstractItemView>(page, "List1");
    const auto clickRow = [&](int row) {
        const QModelIndex index = list->model()->index(row, 0);
        list->scrollTo(index);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualRect(index).center());
    };
    clickRow(2);
    EXPECT_EQ(program.module.callArea, "03");
    EXPECT_EQ(program.shown(page, "Label3"), "USA         03");
    EXPECT_EQ(program.shown("frmVantrelStart", "Text9"), "2010-01-06-K3Y-03-W1ABC-4.CBR");
    clickRow(18);
    EXPECT_EQ(program.shown(page, "Label3"), "Oceania\t   OC");
    EXPECT_EQ(program.shown("frmVantrelStart", "Text9"), "2010-01-06-K3Y-OC-W1ABC-4.CBR");
    program.click(page, "Command2");
    FormHarness::settle();
    EXPECT_FALSE(program.isOpen(page));
    EXPECT_EQ(program.shown("frmVantrelStart", "Text9"), "MINE.CBR");
    EXPECT_EQ(program.module.callArea, "OC");
}

} // namespace
} // namespace vantrel::test
