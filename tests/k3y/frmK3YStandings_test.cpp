// SPDX-License-Identifier: MIT
#include "k3y/k3ylines.h"
#include "support/qt/formharness.h"

#include <QApplication>
#include <QLineEdit>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

constexpr const char* areaPage = "frmK3YStandings";
constexpr const char* regionPage = "frmK3YStandings2";

class StandingsForms : public ::testing::Test, protected FormHarness {
protected:
    StandingsForms() {
        module.settings.contestCode = contestK3y;
        module.settings.contestText = contestK3y;
        module.settings.logFileName = "K3Y.CBR";
    }

    void openFromMainPage(const std::vector<std::string>& lines) {
        folder.write("K3Y.CBR", k3yLog(lines));
        screens.open(Screen::main);
        settle();
        click("frmVantrelMain", "Command11");
        settle();
    }

    // The objectNames of a page's filled cells and what they show.
    std::vector<std::string> filled(const char* page) const {
        std::vector<std::string> result;
        for (const QLineEdit* cell : form(page)->findChildren<QLineEdit*>())
            if (cell->palette().color(QPalette::Base) == QColor(Qt::blue) &&
                cell->palette().color(QPalette::Text) == QColor(Qt::white))
                result.push_back(cell->objectName().toStdString() + ' ' +
                                 cell->text().toStdString());
        return result;
    }
};

TEST_F(StandingsForms, WorkedCellsAreWhiteOnBlueAndBearTheirNames) {
    openFromMainPage({k3yLine("K3Y/1", "1820", "1T"), k3yLine("K3Y/1", "28050", "2T"),
                      k3yLine("K3Y/2", "1820", "3T"), k3yLine("K3Y/0", "28050", "4T"),
                      k3yLine("K3Y/KH6", "1820", "5T"), k3yLine("K3Y/KL7", "14050", "6T"),
                      k3yLine("VK2SKC", "28040", "7T", "K3Y/OC")});
    EXPECT_THAT(filled(areaPage), ::testing::ElementsAre("Text1 1T    ", "Text9 2T    ",
                                                         "Text10 3T    ", "Text90 4T    "));
    EXPECT_EQ(shown(areaPage, "Label2"), "TOTAL:  4");
    click(areaPage, "Command2");
    settle();
    EXPECT_THAT(filled(regionPage),
                ::testing::ElementsAre("Text111 5T    ", "Text225 6T    ", "Text999 VK2SKC"));
    EXPECT_EQ(shown(regionPage, "Label2"), "TOTAL:  3");
}

TEST_F(StandingsForms, ThePagesTakeEachOthersPlaceAndLeadBackToTheMainPage) {
    openFromMainPage({k3yLine("K3Y/1", "1820")});
    click(areaPage, "Command2");
    settle();
    EXPECT_FALSE(isOpen(areaPage));
    // Contacts logged meanwhile show: each opening reads the log again.
    folder.write("K3Y.CBR", k3yLog({k3yLine("K3Y/1", "1820"), k3yLine("K3Y/2", "1820")}));
    click(regionPage, "Command2");
    settle();
    EXPECT_FALSE(isOpen(regionPage));
    EXPECT_EQ(shown(areaPage, "Label2"), "TOTAL:  2");

    click(areaPage, "Command1");
    settle();
    EXPECT_FALSE(isOpen(areaPage));
    EXPECT_EQ(QApplication::focusWidget(), control("frmVantrelMain", "Text2"));
}

TEST_F(StandingsForms, AMissingLogIsSaidAndLeavesTheGridEmpty) {
    folder.write("K3Y.CBR", k3yLog({}));
    screens.open(Screen::main);
    std::filesystem::remove(folder.path() / "K3Y.CBR");
    messages.expect("Run-time error 53: File not found");
    click("frmVantrelMain", "Command11");
    EXPECT_THAT(messages.shown.back().informative, ::testing::HasSubstr("K3Y.CBR"));
    EXPECT_THAT(filled(areaPage), ::testing::IsEmpty());
}

} // namespace
} // namespace vantrel::test
