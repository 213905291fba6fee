// SPDX-License-Identifier: MIT
#include "roster/rosterimport.h"
#include "support/qt/formharness.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <algorithm>
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

    // A data list of so many members beginning with N.
    static std::string dataList(int members) {
        std::string list;
        for (int i = 1; i <= members; ++i)
            list += std::to_string(i) + "T|N" + std::to_string(i) + "AA|NED|TOWN|ME||||||\r\n";
        return list;
    }
};

TEST_F(ImportPages, DataListFillsTheRoster) {
    folder.write("skccdata.txt", dataList(2) + "broken|line\r\n");
    click(choice, "Option1");
    EXPECT_EQ(shown(dataPage, "Text1"), files.path("skccdata.txt"));
    click(dataPage, "Command2");
    EXPECT_EQ(folder.read("SKSDB3.TXT"), "N1AA      0001T     NED       ME \r\n"
                                         "N2AA      0002T     NED       ME \r\n");
    EXPECT_EQ(shown(dataPage, "Label3"), "DONE. . . . 2 MBRS ADDED. Click EXIT");
    EXPECT_EQ(shown(dataPage, "Label2"), "3                        ");
    EXPECT_EQ(shown(dataPage, "Label5"), "1 LINES SKIPPED");
    EXPECT_TRUE(control<QAbstractButton>(dataPage, "Command1")->isEnabled());
    click(dataPage, "Command1");
    settle();
    EXPECT_FALSE(isOpen(dataPage));
    EXPECT_TRUE(isOpen(choice));
}

TEST_F(ImportPages, MissingListsAreReportedEachInItsWay) {
    click(choice, "Option1");
    messages.expect("Run-time error 53: File not found");
    click(dataPage, "Command2");
    EXPECT_THAT(messages.shown.back().informative, HasSubstr("skccdata.txt"));
    click(choice, "Option2");
    messages.expect("SKCCLIST.TXT IS NOT FOUND");
    click(listPage, "Command2");
    EXPECT_EQ(messages.shown.back().icon, BoxIcon::exclamation);
    EXPECT_TRUE(control<QAbstractButton>(listPage, "Command2")->isEnabled());
    EXPECT_FALSE(folder.has("SKSDB1.TXT"));
}

TEST_F(ImportPages, MemberListCountsWhatItFixedAndLeavesTheLogChosen) {
    module.settings.logFileName = "SKS.CBR";
    folder.write("SKSDB2.TXT", "K1ABC     0123C     JOE       CT \r\n");
    folder.write("SKCCLIST.TXT",
                 "skccnr|call|name|city|state|ccnr\r\n123|K1ABC|Joe|Town|CT|123T|\r\n");
    click(choice, "Option2");
    click(listPage, "Command2");
    EXPECT_EQ(folder.read("SKSDB2.TXT"), "K1ABC     0123T     JOE       CT \r\n");
    EXPECT_EQ(shown(listPage, "Label3"), "DONE...0 Mbrs Added...Click EXIT");
    EXPECT_EQ(shown(listPage, "Label4"), "1 SKCC#'s Fixed");
    EXPECT_EQ(module.settings.logFileName, "SKS.CBR");
    EXPECT_EQ(module.memberListPath, files.path("SKSDB2.TXT"));
}

TEST_F(ImportPages, ButtonsRestMeanwhileAndClosingLeavesTheFiles) {
    folder.write("skccdata.txt", dataList(5000));
    folder.write("SKSDB3.TXT", "as it was");
    click(choice, "Option1");
    bool rested = true;
    eventLoop.onYield = [&] {
        if (!isOpen(dataPage))
            return;
        rested = rested && !control<QAbstractButton>(dataPage, "Command1")->isEnabled() &&
                 !control<QAbstractButton>(dataPage, "Command2")->isEnabled();
        form(dataPage)->close();
    };
    click(dataPage, "Command2");
    eventLoop.onYield = nullptr;
    settle();
    EXPECT_TRUE(rested);
    EXPECT_FALSE(isOpen(dataPage));
    EXPECT_EQ(folder.read("SKSDB3.TXT"), "as it was");
}

TEST_F(ImportPages, ClosedWhileTheFilesAreSavedTheyAreSavedAllTheSame) {
    folder.write("skccdata.txt", dataList(2));
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
    EXPECT_THAT(launcher.started, ElementsAre(files.nativePath("ROSTFETCH.EXE")));
    EXPECT_THAT(launcher.started.back(), HasSubstr("rostfetch.exe"));
}

TEST_F(ImportPages, ListIsFoundInTheFinder) {
    std::filesystem::create_directory(folder.path() / "lists");
    folder.write("lists/SKCCLIST.TXT", "1|K1AA|Al|Town|CT|1T|\r\n");
    click(choice, "Option2");
    click(listPage, "Command3");
    const auto choose = [&](const char* list, const char* item) {
        const std::vector<std::string> items = lines("frmFileFinder", list);
        const auto row = std::find(items.begin(), items.end(), item) - items.begin();
        auto* view = control<QAbstractItemView>("frmFileFinder", list);
        view->setFocus();
        view->setCurrentIndex(view->model()->index(static_cast<int>(row), 0));
        QTest::keyClick(view, Qt::Key_Return);
    };
    choose("dirList", "lists");
    choose("filList", "SKCCLIST.TXT");
    const std::string selected = shown("frmFileFinder", "Label5");
    click("frmFileFinder", "Command1");
    settle();
    EXPECT_EQ(shown(listPage, "Text1"), selected);
    click(listPage, "Command2");
    EXPECT_EQ(shown(listPage, "Label3"), "DONE...1 Mbrs Added...Click EXIT");
}

} // namespace
} // namespace vantrel::test
