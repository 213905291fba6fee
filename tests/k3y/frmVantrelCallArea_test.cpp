// SPDX-License-Identifier: MIT
#include "k3y/callarea.h"
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
    program.type("frmVantrelStart", "Text2", "kh6/w1a/4");
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
    const std::string codes[] = {"01", "02", "03", "04", "05", "06", "07", "08", "09", "00",
                                 "KH", "KL", "KP", "NA", "SA", "EU", "AF", "AS", "OC"};
    for (int row = 0; row < 19; ++row) {
        clickRow(row);
        const std::string code = codes[row];
        EXPECT_TRUE(program.shown(page, "Label3").ends_with(code)) << code;
        EXPECT_EQ(program.shown("frmVantrelStart", "Text9"),
                  "2010-01-06-K3Y-" + code + "-KH6-W1A-4.CBR");
    }
    EXPECT_EQ(program.shown(page, "Label3"), "Oceania\t   OC");
    program.click(page, "Command2");
    FormHarness::settle();
    EXPECT_FALSE(program.isOpen(page));
    EXPECT_EQ(program.shown("frmVantrelStart", "Text9"), "MINE.CBR");
    EXPECT_EQ(k3yLogName("02-01-2010", "KH", " w1abc "), "02-01-2010-K3Y-KH-W1ABC.CBR");
}

} // namespace
} // namespace vantrel::test
