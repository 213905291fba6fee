// SPDX-License-Identifier: MIT
#include "forms/stackedbars.h"
#include "log/shortlog.h"
#include "support/qt/formharness.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

constexpr const char* page = "frmVantrelScore";

class ScorePage : public ::testing::Test, public FormHarness {
protected:
    ScorePage() {
        folder.write("SKS.CBR", "");
        module.log.open("SKS.CBR");
        module.settings.bonusStation = "W4BON";
    }
    // What the page shows for the log: the figures and whether there is a picture.
    std::string opened(FieldList fields, const std::string& contacts) {
        folder.write("SKS.CBR", logOf(fields, contacts));
        screens.open(Screen::score);
        return boxes();
    }
    std::string boxes() const {
        std::string texts;
        for (const char* name :
             {"Text1", "Text2", "Text3", "Text4", "Text9", "Text8", "Text5", "Text6", "Text7"})
            texts += shown(page, name) + '|';
        return texts + (form(page)->findChild<StackedBars*>()->isVisible() ? "bars" : "");
    }
    std::string printed() {
        messages.expect("The File has been sent to the Printer!");
        click(page, "Command2");
        return joinLines(printer.jobs.back());
    }
};

TEST_F(ScorePage, ShowsAndPrintsTheFiguresOfBothKindsOfSprint) {
    const FieldList fields{&Fields::hisCall, &Fields::hisNumber, &Fields::hisState};
    const char* contacts = "A 1C; A 1T; A 2T; A 1S; A 2S; A 3S; K9SKC NONE; K9SKC NONE; "
                           "K9SKC NONE; K9SKC NONE; W4BON NONE SC";
    EXPECT_EQ(opened(fields, contacts), "11|2|1|2|3|1|4|195|217|bars");
    EXPECT_EQ(shown(page, "Label4") + shown(page, "Label7"), "S/P/Cs:K9SKC QSOs:");
    EXPECT_EQ(shown(page, "Label13") + shown(page, "Label14"), "DUPES ARE NOT LOGGED ");
    const std::string path = folder.string() + "/SKS.CBR";
    EXPECT_EQ(shown(page, "Label1"), path);
    EXPECT_EQ(printed(), "\r\n\r\n" + path +
                             "\r\n\r\n       Number of QSOs: 11\r\n     Number of S/P/Cs: 2\r\n"
                             " Number of Centurions: 1\r\n   Number of Tribumes: 2\r\n"
                             "   Number of Senators: 3\r\nNumber Bonus Stn QSOs: 1\r\n"
                             " Number of K9SKC QSOs: 4\r\n   Total Bonus Points: 195\r\n\r\n"
                             "         TOTAL SCORE: 217\r\n");
    EXPECT_EQ(messages.shown.back().informative, "");

    module.settings.contestCode = "SKSE";
    module.settings.dupeMode = "YES";
    printer.hasPrinter = false;
    EXPECT_EQ(opened(fields, contacts), "11|1|1|2|3|1|3|98|109|bars");
    EXPECT_EQ(shown(page, "Label4") + shown(page, "Label7"),
              "  DXCC Countries:      Regular Members Worked: ");
    EXPECT_EQ(shown(page, "Label13") + shown(page, "Label14"), "DUPES ARE LOGGEDBUT NOT COUNTED");
    EXPECT_EQ(printed(), "\r\n\r\n" + path +
                             "\r\n\r\n            Number of QSOs: 11\r\n"
                             "  Number of DXCC Countries: 1\r\n      Number of Centurions: 1\r\n"
                             "        Number of Tribumes: 2\r\n        Number of Senators: 3\r\n"
                             "  Number of Bonus Stn QSOs: 1\r\n    Regular Members Worked: 3\r\n"
                             "        Total Bonus Points: 98\r\n\r\n"
                             "               TOTAL SCORE: 109\r\n");
    EXPECT_EQ(folder.read("SKS-SCORE.PDF"), "a PDF");
    EXPECT_THAT(messages.shown.back().informative, ::testing::HasSubstr("/SKS-SCORE.PDF"));
}

TEST_F(ScorePage, WhatCannotBeReachedStaysEmpty) {
    EXPECT_EQ(opened({}, ""), "0|0|0|0|0|0|0|0|0|");
    std::string contacts;
    for (int i = 0; i < 1310; ++i)
        contacts += "K9SKC NONE;";
    messages.expect("Run-time error 6: Overflow");
    EXPECT_EQ(opened({&Fields::hisCall, &Fields::hisNumber}, contacts),
              "1310|1|0|0|0|0|1310|32750||bars");
    std::filesystem::remove(folder.path() / "SKS.CBR");
    messages.expect("Run-time error 53: File not found");
    screens.open(Screen::score);
    EXPECT_EQ(boxes(), "|||||||||");
}

TEST_F(ScorePage, TheBonusPageCountsTheLogAsItIsOnTheDisk) {
    folder.write("SKS.CBR", logOf({&Fields::hisName}, "JOHN/25"));
    screens.open(Screen::bonus);
    EXPECT_EQ(shown("frmCountBonus", "Label1"), "Total: 25");
}

} // namespace
} // namespace vantrel::test
