// SPDX-License-Identifier: MIT
#include "roster/rosterimport.h"
#include "support/qt/formharness.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr const char* choice = "frmSelectUpdateList";
constexpr const char* dataPage = "frmReadSKCCDATA";
constexpr const char* listPage = "frmVantrelUpdate";

class ImportPages : public ::testing::Test, public FormHarness {
protected:
    void SetUp() override {
        screens.open(Screen::start);
        click("frmVantrelStart", "Command5");
    }

    const std::string twoMembers = "1T|N1AA|NED|TOWN|ME||||||\r\n2T|N2AA|NED|TOWN|ME||||||\r\n";
};

TEST_F(ImportPages, DataListFillsTheRoster) {
    folder.write("skccdata.txt", twoMembers + "broken|line\r\n");
    click(choice, "Option1");
    EXPECT_EQ(shown(dataPage, "Text1"), files.path("skccdata.txt"));
    click(dataPage, "Command2");
    EXPECT_EQ(folder.read("SKSDB3.TXT"), "N1AA      0001T     NED       ME \r\n"
                                         "N2AA      0002T     NED       ME \r\n");
    EXPECT_EQ(shown(dataPage, "Label3"), "DONE. . . . 2 MBRS ADDED. Click EXIT");
    EXPECT_EQ(shown(dataPage, "Label2"), "3                        ");
    EXPECT_EQ(shown(dataPage, "Label5"), "1 LINES SKIPPED");
    EXPECT_EQ(shown(dataPage, "Label1"), "    SAVING THE FILES");
    settle();
    EXPECT_EQ(QApplication::focusWidget(), control(dataPage, "Command1"));
    click(dataPage, "Command1"); // enabled again
    settle();
    EXPECT_FALSE(isOpen(dataPage));
}

TEST_F(ImportPages, MissingListsAreReportedEachInItsWayAndNothingIsLeftOfAnEarlierImport) {
    folder.write("skccdata.txt", twoMembers);
    click(choice, "Option1");
    click(dataPage, "Command2");
    std::filesystem::remove(folder.path() / "skccdata.txt");
    messages.expect("Run-time error 53: File not found");
    click(dataPage, "Command2");
    EXPECT_THAT(messages.shown.back().informative, HasSubstr("skccdata.txt"));
    EXPECT_EQ(shown(dataPage, "Label1") + shown(dataPage, "Label3"), "");
    click(choice, "Option2");
    messages.expect("SKCCLIST.TXT IS NOT FOUND");
    click(listPage, "Command2");
    EXPECT_EQ(messages.shown.back().icon, BoxIcon::exclamation);
}

TEST_F(ImportPages, MemberListCountsWhatItFixed) {
    folder.write("SKSDB2.TXT", "K1ABC     0123C     JOE       CT \r\n");
    folder.write("SKCCLIST.TXT",
                 "skccnr|call|name|city|state|ccnr\r\n123|K1ABC|Joe|Town|CT|123T|\r\n");
    click(choice, "Option2");
    click(listPage, "Command2");
    EXPECT_EQ(folder.read("SKSDB2.TXT"), "K1ABC     0123T     JOE       CT \r\n");
    EXPECT_EQ(shown(listPage, "Label3"), "DONE...0 Mbrs Added...Click EXIT");
    EXPECT_EQ(shown(listPage, "Label4"), "1 SKCC#'s Fixed");
    EXPECT_EQ(shown(listPage, "Label5"), "");
}

TEST_F(ImportPages, ButtonsRestMeanwhileAndClosingLeavesTheFiles) {
    folder.write("skccdata.txt", twoMembers);
    folder.write("SKSDB3.TXT", "as it was");
    click(choice, "Option1");
    eventLoop.onYield = [&] {
        for (const char* button : {"Command1", "Command2"})
            EXPECT_FALSE(control(dataPage, button)->isEnabled()) << button;
        form(dataPage)->close();
    };
    click(dataPage, "Command2");
    eventLoop.onYield = nullptr;
    settle();
    EXPECT_EQ(eventLoop.yields, 1);
    EXPECT_FALSE(isOpen(dataPage));
    EXPECT_EQ(folder.read("SKSDB3.TXT"), "as it was");
}

TEST_F(ImportPages, ClosedWhileTheFilesAreSavedTheyAreSavedAllTheSame) {
    folder.write("skccdata.txt", twoMembers);
    click(choice, "Option1");
    const QPointer<QWidget> import = form(dataPage);
    int savingSteps = 0;
    eventLoop.onYield = [&] { // as the real one does, where the window may come to its end
        if (isOpen(dataPage) && shown(dataPage, "Label1") == "    SAVING THE FILES" &&
            ++savingSteps == 2) // the first is still in time to give up
            QTimer::singleShot(0, import, &QWidget::close);
        QCoreApplication::processEvents();
    };
    click(dataPage, "Command2");
    eventLoop.onYield = nullptr;
    settle();
    EXPECT_TRUE(import.isNull());
    EXPECT_THAT(folder.read("SKSDB3.TXT"), HasSubstr("N2AA"));
}

TEST_F(ImportPages, FetcherOfTheProgramFolderIsStarted) {
    folder.write("rostfetch.exe", "");
    click(choice, "Option3");
    EXPECT_THAT(launcher.started, ElementsAre((folder.path() / "rostfetch.exe").string()));
}

TEST_F(ImportPages, WhatTheFinderHandsBackIsTheListToRead) {
    click(choice, "Option2");
    type(listPage, "Text1", "");
    click(listPage, "Command3");
    const std::string selected = shown("frmFileFinder", "Label5");
    click("frmFileFinder", "Command1");
    settle();
    EXPECT_EQ(shown(listPage, "Text1"), selected);
}

} // namespace
} // namespace vantrel::test
