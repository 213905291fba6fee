// SPDX-License-Identifier: MIT
#include "support/contacts.h"
#include "support/qt/formharness.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QTest>

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

using ::testing::Contains;
using ::testing::EndsWith;
using ::testing::Not;

constexpr const char* page = "frmVantrelBackup";
constexpr const char* finder = "frmFileFinder";

class BackupPage : public ::testing::Test, public FormHarness {
protected:
    BackupPage() {
        module.settings.logFileName = "SKS.CBR";
        folder.write("SKS.CBR", log);
        std::filesystem::create_directory(folder.path() / "copies");
    }

    const std::string log = logHeaderLines + contactLine({}) + "\r\n";
};

TEST_F(BackupPage, CopiesTheLogIntoTheFolderTyped) {
    screens.open(Screen::backup);
    EXPECT_EQ(shown(page, "Label5"), files.path("SKS.CBR"));
    type(page, "Text1", " " + folder.string() + "/copies/ ");
    click(page, "Command2");
    EXPECT_EQ(shown(page, "Label3"), "DONE......CLICK EXIT");
    EXPECT_EQ(folder.read("copies/SKS.CBR"), log);
    EXPECT_EQ(folder.read("SKS.CBR"), log);
}

TEST_F(BackupPage, MissingFolderIsAnErrorAndTheTypingStays) {
    screens.open(Screen::backup);
    messages.expect("Run-time error 76: Path not found");
    click(page, "Command2");
    type(page, "Text1", folder.string() + "/nowhere");
    messages.expect("Run-time error 76: Path not found");
    click(page, "Command2");
    EXPECT_EQ(shown(page, "Label3"), "");
    EXPECT_EQ(shown(page, "Text1"), folder.string() + "/nowhere");
    EXPECT_FALSE(folder.has("nowhere"));
}

TEST_F(BackupPage, FinderHandsTheFolderBack) {
    folder.write(".hidden", "");
    screens.open(Screen::backup);
    click(page, "Command3");
    EXPECT_EQ(module.finderMode, FinderMode::backup);
    EXPECT_THAT(lines(finder, "filList"), Contains("SKS.CBR"));
    EXPECT_THAT(lines(finder, "filList"), Not(Contains(".hidden")));
    EXPECT_EQ(control<QComboBox>(finder, "drvList")->itemText(0), QStringLiteral("/"));
    auto* folders = control<QAbstractItemView>(finder, "dirList");
    const auto rowOf = [&](const std::string& name) {
        const std::vector<std::string> all = lines(finder, "dirList");
        return static_cast<int>(std::find(all.begin(), all.end(), name) - all.begin());
    };
    const QPoint place = folders->visualRect(folders->model()->index(rowOf("copies"), 0)).center();
    QTest::mouseClick(folders->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(folders->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_THAT(shown(finder, "Label5"), EndsWith("/COPIES/"));
    const std::string selected = shown(finder, "Label5");
    click(finder, "Command1");
    settle();
    EXPECT_FALSE(isOpen(finder));
    EXPECT_EQ(shown(page, "Text1"), selected);
    EXPECT_EQ(QApplication::focusWidget(), control(page, "Text1"));
    click(page, "Command2");
    EXPECT_EQ(folder.read("copies/SKS.CBR"), log);
}

TEST_F(BackupPage, FinderGivesTheStartPageALogFromAnywhere) {
    screens.open(Screen::start);
    click("frmVantrelStart", "Command3");
    auto* list = control<QAbstractItemView>(finder, "filList");
    const std::vector<std::string> all = lines(finder, "filList");
    const int row = static_cast<int>(std::find(all.begin(), all.end(), "SKS.CBR") - all.begin());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualRect(list->model()->index(row, 0)).center());
    click(finder, "Command1");
    settle();
    EXPECT_THAT(shown("frmVantrelStart", "Text9"), EndsWith("/SKS.CBR"));
    click("frmVantrelStart", "Command2");
    EXPECT_EQ(shown("frmVantrelMain", "Text1"), "01");
}

} // namespace
} // namespace vantrel::test
