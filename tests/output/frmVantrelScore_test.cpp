// SPDX-License-Identifier: MIT
#include "output/contacts.h"
#include "output/score.h"
#include "output/scorereport.h"
#include "platform/qt/stackedbars.h"
#include "support/qt/formharness.h"

#include <QApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr const char* page = "frmVantrelScore";

class ScorePage : public ::testing::Test, public FormHarness {
protected:
    ScorePage() {
        module.settings.logFileName = "SKS.CBR";
        module.settings.bonusStation = "W4BON     ";
    }
    void openPage(const std::vector<std::string>& logged) {
        folder.write("SKS.CBR", logOf(logged));
        screens.open(Screen::score);
    }
    std::vector<std::string> boxes() const {
        std::vector<std::string> texts;
        for (const char* name :
             {"Text1", "Text2", "Text3", "Text4", "Text9", "Text8", "Text5", "Text6", "Text7"})
            texts.push_back(shown(page, name));
        return texts;
    }
    bool pictureShows() const { return form(page)->findChild<StackedBars*>()->isVisible(); }

    const std::vector<std::string> contacts{
        line({.call = "K9SKC", .number = "5000S", .state = "IL"}),
        line({.call = "W4BON", .number = "7C", .state = "SC", .frequency = "7050", .time = "0101"}),
        line({.call = "DL1QRS", .number = "88T", .state = "DL", .marker = "DUPE"})};
};

TEST_F(ScorePage, ShowsTheFiguresAndThePicture) {
    openPage(contacts);
    // 2 x 2 + 5 + 10 + 15 + 25 + 25
    EXPECT_THAT(boxes(), ElementsAre("2", "2", "1", "1", "1", "1", "1", "80", "84"));
    EXPECT_EQ(shown(page, "Label13"), "DUPES ARE NOT LOGGED");
    EXPECT_EQ(shown(page, "Label14"), " ");
    EXPECT_TRUE(pictureShows());
    EXPECT_EQ(folder.read("SKS.CBR"), logOf(contacts));
}

TEST_F(ScorePage, EuropeanCaptionsAndLoggedDupes) {
    module.settings.contestCode = "SKSE";
    module.settings.dupeMode = "YES";
    openPage(contacts);
    EXPECT_THAT(boxes(), ElementsAre("2", "1", "1", "1", "1", "1", "0", "56", "58"));
    EXPECT_EQ(shown(page, "Label4"), "  DXCC Countries:");
    EXPECT_EQ(shown(page, "Label7"), "      Regular Members Worked: ");
    EXPECT_EQ(shown(page, "Label13"), "DUPES ARE LOGGED");
    EXPECT_EQ(shown(page, "Label14"), "BUT NOT COUNTED");
}

TEST_F(ScorePage, AnEmptyLogHasZerosAndNoPicture) {
    openPage({});
    EXPECT_EQ(boxes(), std::vector<std::string>(9, "0"));
    EXPECT_FALSE(pictureShows());
}

TEST_F(ScorePage, AnOverflowLeavesWhatWasReached) {
    messages.expect("Run-time error 6: Overflow");
    openPage(std::vector<std::string>(1310, line({.call = "K9SKC", .number = "NONE"})));
    EXPECT_THAT(boxes(), ElementsAre("1310", "1", "0", "0", "0", "0", "1310", "32750", ""));
    EXPECT_EQ(messages.shown.front().icon, BoxIcon::critical);
}

TEST_F(ScorePage, AMissingLogLeavesAllBoxesEmpty) {
    messages.expect("Run-time error 53: File not found");
    screens.open(Screen::score);
    EXPECT_EQ(boxes(), std::vector<std::string>(9, ""));
    EXPECT_THAT(messages.shown.front().informative, HasSubstr("SKS.CBR"));
}

TEST_F(ScorePage, OpenedAgainItCountsWhatWasLoggedSince) {
    openPage({});
    openPage(contacts);
    EXPECT_EQ(shown(page, "Text7"), "84");
    EXPECT_TRUE(pictureShows());
}

TEST_F(ScorePage, PrintsWhatItShows) {
    openPage(contacts);
    messages.expect("The File has been sent to the Printer!");
    click(page, "Command2");
    module.settings.bonusStation = "W4BON     ";
    EXPECT_THAT(printer.jobs,
                ElementsAre(scoreReport(computeScore(views(contacts), module.settings),
                                        folder.string() + "/SKS.CBR")));
    EXPECT_EQ(messages.shown.back().icon, BoxIcon::exclamation);
    EXPECT_EQ(messages.shown.back().informative, "");
    settle();
    EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), "Command1");

    printer.hasPrinter = false;
    messages.expect("The File has been sent to the Printer!");
    click(page, "Command2");
    EXPECT_EQ(folder.read("SKS-SCORE.PDF"), "a PDF");
    EXPECT_THAT(messages.shown.back().informative, HasSubstr(folder.string() + "/SKS-SCORE.PDF"));
    click(page, "Command1");
    EXPECT_FALSE(isOpen(page));
}

} // namespace
} // namespace vantrel::test
