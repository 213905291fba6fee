// SPDX-License-Identifier: MIT
#include "output/score/contacts.h"
#include "output/score/score.h"
#include "output/score/scorereport.h"
#include "shared/settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

Score scoreOf(const std::vector<std::string>& lines, const std::string& contest,
              const std::string& bonusStation = "") {
    OperatingSettings settings;
    settings.contestCode = contest;
    settings.bonusStation = bonusStation;
    return computeScore(views(lines), settings);
}

// QSOs, S/P/Cs or countries, C, T, S, bonus station, K9SKC or regular members, bonus, total;
// "-" for a figure that was not reached.
std::string figures(const Score& score) {
    std::string result;
    for (const Score::Figure& figure :
         {score.qsos, score.multipliers, score.centurions, score.tribunes, score.senators,
          score.bonusStationQsos, score.european ? score.regularMembersWorked : score.k9skcQsos,
          score.bonusPoints, score.total})
        result += ' ' + (figure ? figureText(figure) : "-");
    return result.substr(1);
}

struct Case {
    const char* rule;
    std::string contest;
    std::vector<std::string> lines;
    std::string figures;
};
void PrintTo(const Case& row, std::ostream* out) {
    *out << row.rule;
}

class ScoreRule : public ::testing::TestWithParam<Case> {};

TEST_P(ScoreRule, GivesTheFigures) {
    EXPECT_EQ(figures(scoreOf(GetParam().lines, GetParam().contest, "W4BON")), GetParam().figures);
}

const std::string k9skcDupe =
    line({.call = "K9SKC", .number = "5S", .state = "IL", .marker = "DUPE"});

INSTANTIATE_TEST_SUITE_P(
    Score, ScoreRule,
    ::testing::Values(
        Case{"AnEmptyLogGivesZeros", "SKS", {}, "0 0 0 0 0 0 0 0 0"},
        Case{"K9SKCCountsOnEveryBandButNotAsDuplicate",
             "WES",
             {line({.call = "K9SKC", .number = "5S", .state = "IL"}),
              line({.call = "K9SKC", .number = "5S", .state = "IL", .frequency = "7050"}),
              line({.call = "K9SKC/9", .number = "5S", .state = "IL", .frequency = "3550"}),
              k9skcDupe},
             "3 1 0 0 1 0 3 90 93"},
        Case{"TheBonusStationCountsByItsWholeCallButNotAsDuplicate",
             "SKS",
             {line({.call = "W4BON", .number = "NONE"}), line({.call = "W4BONX", .number = "NONE"}),
              line({.call = "W4BON", .number = "NONE", .marker = "DUPE  "})},
             "2 1 0 0 0 1 0 25 27"},
        Case{"AwardNumbersCountOnceEachDuplicatesIncluded",
             "K3Y",
             {line({.number = "1C"}), line({.number = "1C", .frequency = "7050"}),
              line({.number = "1T"}), line({.number = "2S", .marker = "DUPE"}),
              line({.number = "3S"}), line({.number = "1C  X"})},
             "5 1 1 1 2 0 0 45 50"},
        Case{"ADuplicateAddsNoRegionUnlessTheLogBeginsWithIt",
             "SKS",
             {line({.state = "NY", .marker = "DUPE"}), line({.state = "CT", .marker = "DUPE"}),
              line({.state = "MA"}), line({.state = "MA"}), line({.state = " MA"})},
             "3 3 0 0 0 0 0 0 9"},
        Case{"EuropeMapsStatesAndProvincesToCountries",
             "SKSE",
             {line({.state = "MA"}), line({.state = "NY"}), line({.state = "AK"}),
              line({.state = "HI"}), line({.state = "ON"}), line({.state = "QC"}),
              line({.state = "DL"}), line({.state = "DC"}), line({.state = "YT"}),
              line({.state = "USA"}), line({.state = " MA"}),
              line({.state = "F", .marker = "DUPE"})},
             // USA ALK HAW CAN DL DC YT " MA"; all the same regular member
             "11 8 0 0 0 0 11 1 89"},
        Case{"EuropeASenatorIsARegularMemberAsWell",
             "SKSE",
             {line({.number = "89S"}), line({.call = "W4BON", .number = "89S"})},
             "2 1 0 0 1 1 2 41 43"},
        Case{"EuropeRegularMembersShownMayFallBelowZero",
             "SKSE",
             {line({.number = "1C", .marker = "DUPE"}), line({.number = "100W", .marker = "DUPE"}),
              line({.number = "NONE", .marker = "DUPE"}), line({.number = "2T"})},
             "1 1 1 1 0 0 -3 15 16"},
        Case{"EuropeAMissingNumberCountsAsOneMember",
             "SKSE",
             {line({.number = ""}), line({.number = ""}), line({.number = "NONEX"})},
             // "NONEX" is nobody's number and a member's all the same
             "3 1 0 0 0 0 2 2 5"},
        Case{"LinesCutShortYieldEmptyFields",
             "SKSE",
             {"QSO", "QSO: 14050 CW"},
             "2 1 0 0 0 0 2 1 3"}),
    [](const auto& row) { return std::string(row.param.rule); });

TEST(Score, TenBlanksOfBonusStationMatchNothing) {
    const std::vector<std::string> lines{line({.call = ""})};
    EXPECT_EQ(scoreOf(lines, "SKS", "          ").bonusStationQsos->value(), 0);
    EXPECT_EQ(scoreOf(lines, "SKSE", "").bonusStationQsos->value(), 0);
}

TEST(Score, EuropeKnowsEveryStateAndProvince) {
    const std::string usa =
        "USAAL AR AZ CA CO CT DE FL GA IA ID IL IN KS KY LA MA MD ME MI MN MO MS MT NC ND NE NH "
        "NJ NM NV NY OH OK OR PA RI SC SD TN TX UT VA VT WA WI WV WY ";
    const std::string canada = "CANNL NS QC PE ON MB AB SK BC NB NT NU ";
    for (const std::string& country : {usa, canada}) {
        std::vector<std::string> lines;
        for (std::size_t i = 0; i < country.size(); i += 3)
            lines.push_back(line({.state = country.substr(i, 3)}));
        EXPECT_EQ(scoreOf(lines, "SKSE").multipliers->value(), 1);
    }
}

// --- Limits ---------------------------------------------------------------------------------

std::vector<std::string> numbered(int count, const std::string& suffix) {
    std::vector<std::string> lines;
    for (int i = 1; i <= count; ++i)
        lines.push_back(line({.number = std::to_string(i) + suffix}));
    return lines;
}

TEST(Score, FourHundredValuesFitAndTheNextStopsBehindWhatWasReached) {
    for (const std::string suffix : {"C", "T", "S"}) {
        EXPECT_FALSE(scoreOf(numbered(400, suffix), "SKS").stoppedBy);
        const Score score = scoreOf(numbered(401, suffix), "SKS");
        ASSERT_TRUE(score.stoppedBy);
        EXPECT_EQ(score.stoppedBy->number(), 9);
        EXPECT_THAT(score.stoppedBy->detail(), HasSubstr("at most 400"));
        EXPECT_EQ(figures(score), "401 1 - - - - - - -");
    }
    std::vector<std::string> regions;
    for (int i = 1; i <= 401; ++i)
        regions.push_back(line({.state = std::to_string(i)}));
    EXPECT_EQ(figures(scoreOf(regions, "SKS")), "401 - - - - - - - -");
}

TEST(Score, FiguresBeyondSixteenBitsStayEmptyWithAllAfterThem) {
    std::vector<std::string> lines(1310, line({.call = "K9SKC", .number = "NONE"}));
    const Score most = scoreOf(lines, "SKS"); // 32,750 bonus points, the total is too much
    EXPECT_EQ(figures(most), "1310 1 0 0 0 0 1310 32750 -");
    ASSERT_TRUE(most.stoppedBy);
    EXPECT_EQ(most.stoppedBy->number(), 6);

    lines.push_back(lines.front());
    EXPECT_EQ(figures(scoreOf(lines, "SKS")), "1311 1 0 0 0 0 1311 - -");
}

// --- The report -----------------------------------------------------------------------------

TEST(ScoreReport, HasItsLinesInTheirOrderAndNothingWhereAFigureIsMissing) {
    const Score score =
        scoreOf({line({.call = "K9SKC", .number = "5S"}), line({.number = "7C"})}, "WES", "W4BON");
    EXPECT_THAT(scoreReport(score, "/logs/WES.CBR"),
                ElementsAre("", "", "/logs/WES.CBR", "", "       Number of QSOs: 2",
                            "     Number of S/P/Cs: 1", " Number of Centurions: 1",
                            "   Number of Tribumes: 0", "   Number of Senators: 1",
                            "Number Bonus Stn QSOs: 0", " Number of K9SKC QSOs: 1",
                            "   Total Bonus Points: 45", "", "         TOTAL SCORE: 47"));
    // More than 400 regular members.
    EXPECT_THAT(scoreReport(scoreOf(numbered(401, ""), "SKSE"), "/logs/E.CBR"),
                ElementsAre("", "", "/logs/E.CBR", "", "            Number of QSOs: 401",
                            "  Number of DXCC Countries: ", "      Number of Centurions: 0",
                            "        Number of Tribumes: 0", "        Number of Senators: 0",
                            "  Number of Bonus Stn QSOs: ", "    Regular Members Worked: ",
                            "        Total Bonus Points: ", "", "               TOTAL SCORE: "));
}

} // namespace
} // namespace vantrel::test
