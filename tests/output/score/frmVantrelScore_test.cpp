// SPDX-License-Identifier: MIT
#include "forms/stackedbars.h"
#include "output/score/contacts.h"
#include "output/score/score.h"
#include "output/score/scorereport.h"
#include "support/qt/formharness.h"

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
        folder.write("SKS.CBR", "");
        module.log.open("SKS.CBR");
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

    // 3 contacts and 15 duplicates that bring in other figures.
    static std::vector<std::string> anEvening() {
        std::vector<std::string> contacts{
            line({.call = "K9SKC", .number = "NONE", .state = "IL"}),
            line({.call = "K9SKC", .number = "NONE", .state = "IL", .frequency = "7050"}),
            line({.call = "W4BON", .number = "NONE", .state = "SC", .time = "0101"})};
        for (const char* number : {"1C", "2C", "3C", "4C", "1T", "2T", "3T", "4T", "5T", "1S", "2S",
                                   "3S", "4S", "5S", "6S"})
            contacts.push_back(line({.number = number, .marker = "DUPE"}));
        return contacts;
    }

    const std::vector<std::string> contacts = anEvening();
};

TEST_F(ScorePage, ShowsTheFiguresAndThePicture) {
    openPage(contacts);
    // 3 x 2 + 4 x 5 + 5 x 10 + 6 x 15 + 25 + 2 x 25
    EXPECT_THAT(boxes(), ElementsAre("3", "2", "4", "5", "6", "1", "2", "235", "241"));
    EXPECT_EQ(shown(page, "Label13"), "DUPES ARE NOT LOGGED");
    EXPECT_EQ(shown(page, "Label14"), " ");
}

TEST_F(ScorePage, EuropeanCaptionsAndLoggedDupes) {
    module.settings.contestCode = "SKSE";
    module.settings.dupeMode = "YES";
    openPage(contacts);
    EXPECT_THAT(boxes(), ElementsAre("3", "1", "4", "5", "6", "1", "-9", "191", "194"));
    EXPECT_EQ(shown(page, "Label4"), "  DXCC Countries:");
    EXPECT_EQ(shown(page, "Label7"), "      Regular Members Worked: ");
    EXPECT_EQ(shown(page, "Label13"), "DUPES ARE LOGGED");
    EXPECT_EQ(shown(page, "Label14"), "BUT NOT COUNTED");
}

TEST_F(ScorePage, AnOverflowLeavesWhatWasReached) {
    messages.expect("Run-time error 6: Overflow");
    openPage(std::vector<std::string>(1310, line({.call = "K9SKC", .number = "NONE"})));
    EXPECT_THAT(boxes(), ElementsAre("1310", "1", "0", "0", "0", "0", "1310", "32750", ""));
}

TEST_F(ScorePage, OpenedAgainItCountsAnew) {
    openPage({});
    EXPECT_EQ(boxes(), std::vector<std::string>(9, "0"));
    EXPECT_FALSE(pictureShows());
    openPage(contacts);
    EXPECT_EQ(shown(page, "Text7"), "241");
    std::filesystem::remove(folder.path() / "SKS.CBR");
    messages.expect("Run-time error 53: File not found");
    screens.open(Screen::score);
    EXPECT_EQ(boxes(), std::vector<std::string>(9, ""));
    EXPECT_FALSE(pictureShows());
}

TEST_F(ScorePage, PrintsWhatItShows) {
    openPage(contacts);
    messages.expect("The File has been sent to the Printer!");
    click(page, "Command2");
    EXPECT_THAT(printer.jobs,
                ElementsAre(scoreReport(computeScore(views(contacts), module.settings),
                                        folder.string() + "/SKS.CBR")));
    EXPECT_EQ(messages.shown.back().informative, "");

    printer.hasPrinter = false;
    messages.expect("The File has been sent to the Printer!");
    click(page, "Command2");
    EXPECT_EQ(folder.read("SKS-SCORE.PDF"), "a PDF");
    EXPECT_THAT(messages.shown.back().informative, HasSubstr(folder.string() + "/SKS-SCORE.PDF"));
}

TEST_F(ScorePage, TheBonusPageCountsTheLogAsItIsOnTheDisk) {
    const auto totalOf = [this](const std::string& name) {
        folder.write("SKS.CBR", logOf({line({.name = name})}));
        screens.open(Screen::bonus);
        return shown("frmCountBonus", "Label1");
    };
    EXPECT_EQ(totalOf("JOHN/25"), "Total: 25");
    messages.expect("Run-time error 6: Overflow");
    EXPECT_EQ(totalOf("JOHN/99999"), "");
}

} // namespace
} // namespace vantrel::test
