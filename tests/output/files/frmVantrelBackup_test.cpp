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
        for (int i = 0; i < 13000; ++i) // more lines than contacts are counted
            log += "NOTE: a, b\n";
        folder.write("SKS.CBR", log);
        module.log.open("SKS.CBR");
        std::filesystem::create_directory(folder.path() / "copies");
    }

    // Clicks a line of the finder's list; returns where.
    QPoint clickLine(const char* list, const std::string& text) {
        auto* view = control<QAbstractItemView>(finder, list);
        const std::vector<std::string> all = lines(finder, list);
        const auto row = static_cast<int>(std::find(all.begin(), all.end(), text) - all.begin());
        const QPoint place = view->visualRect(view->model()->index(row, 0)).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        return place;
    }

    std::string log = logHeaderLines + contactLine({}) + "\r\n";
};

TEST_F(BackupPage, CopiesEveryByteHoweverTheFolderIsTyped) {
    module.log.open(folder.string() + "\\SKS.CBR"); // as the finder hands it back
    screens.open(Screen::backup);
    EXPECT_EQ(shown(page, "Label5"), folder.string() + "/SKS.CBR");
    for (const std::string& typed :
         {std::string(" copies  "), std::string("COPIES\\"), folder.string() + "/Copies//"}) {
        std::filesystem::remove(folder.path() / "copies/SKS.CBR");
        type(page, "Text1", typed);
        click(page, "Command2");
        EXPECT_EQ(shown(page, "Label3"), "DONE......CLICK EXIT");
        EXPECT_EQ(folder.read("copies/SKS.CBR"), log) << typed;
    }
    type(page, "Text1", folder.string()); // onto itself
    click(page, "Command2");
    EXPECT_EQ(folder.read("SKS.CBR"), log);
}

TEST_F(BackupPage, WithoutAFolderOrLogItIsAnErrorAndTheTypingStays) {
    screens.open(Screen::backup);
    for (const char* typed : {"", " ", "nowhere"}) {
        type(page, "Text1", typed);
        messages.expect("Run-time error 76: Path not found");
        click(page, "Command2");
        EXPECT_EQ(shown(page, "Label3"), ""); // no longer at work
        EXPECT_EQ(shown(page, "Text1"), typed);
    }
    EXPECT_FALSE(std::filesystem::exists("/SKS.CBR"));
    std::filesystem::remove(folder.path() / "SKS.CBR");
    type(page, "Text1", "copies");
    messages.expect("Run-time error 53: File not found");
    click(page, "Command2");
    EXPECT_TRUE(std::filesystem::is_empty(folder.path() / "copies"));
}

TEST_F(BackupPage, FinderHandsTheFolderBack) {
    folder.write(".hidden", "");
    screens.open(Screen::backup);
    click(page, "Command3");
    EXPECT_THAT(lines(finder, "filList"), Not(Contains(".hidden")));
    EXPECT_EQ(control<QComboBox>(finder, "drvList")->itemText(0), QStringLiteral("/"));
    const QPoint place = clickLine("dirList", "copies");
    QTest::mouseDClick(control<QAbstractItemView>(finder, "dirList")->viewport(), Qt::LeftButton,
                       Qt::NoModifier, place);
    const std::string selected = shown(finder, "Label5");
    EXPECT_THAT(selected, EndsWith("/COPIES/"));
    click(finder, "Command1");
    settle();
    EXPECT_FALSE(isOpen(finder));
    EXPECT_EQ(shown(page, "Text1"), selected);
    EXPECT_EQ(QApplication::focusWidget(), control(page, "Text1"));

    click(page, "Command3");
    auto* drives = control<QComboBox>(finder, "drvList");
    const std::string top = drives->currentText().toStdString();
    EXPECT_NE(shown(finder, "Label5"), top);
    drives->activated(drives->currentIndex()); // the drive that shows is chosen again
    EXPECT_EQ(shown(finder, "Label5"), top);
}

TEST_F(BackupPage, FinderGivesTheStartPageALogFromAnywhere) {
    screens.open(Screen::start);
    click("frmVantrelStart", "Command3");
    clickLine("filList", "SKS.CBR");
    click(finder, "Command1");
    settle();
    EXPECT_THAT(shown("frmVantrelStart", "Text9"), EndsWith("/SKS.CBR"));
}

} // namespace
} // namespace vantrel::test
