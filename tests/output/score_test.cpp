// SPDX-License-Identifier: MIT
#include "output/contacts.h"
#include "output/score.h"
#include "output/scorereport.h"
#include "shared/settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>

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

std::vector<std::string> texts(const Score& score) {
    std::vector<std::string> result;
    for (const Score::Figure& figure :
         {score.qsos, score.multipliers, score.centurions, score.tribunes, score.senators,
          score.bonusStationQsos, score.european ? score.regularMembersWorked : score.k9skcQsos,
          score.bonusPoints, score.total})
        result.push_back(figureText(figure));
    return result;
}

// QSOs, S/P/Cs or countries, C, T, S, bonus station, K9SKC or regular members, bonus, total.
struct Case {
    const char* rule;
    std::string contest;
    std::vector<std::string> lines;
    std::vector<std::string> figures;
};
void PrintTo(const Case& row, std::ostream* out) {
    *out << row.rule;
}

class ScoreRule : public ::testing::TestWithParam<Case> {};

TEST_P(ScoreRule, GivesTheFigures) {
    EXPECT_EQ(texts(scoreOf(GetParam().lines, GetParam().contest, "W4BON")), GetParam().figures);
}

const std::string k9skcDupe =
    line({.call = "K9SKC", .number = "5S", .state = "IL", .marker = "DUPE"});

INSTANTIATE_TEST_SUITE_P(
    Score, ScoreRule,
    ::testing::Values(
        Case{"AnEmptyLogGivesZeros", "SKS", {}, {"0", "0", "0", "0", "0", "0", "0", "0", "0"}},
        Case{"AnEmptyLogGivesZerosInEuropeToo",
             "SKSE",
             {},
             {"0", "0", "0", "0", "0", "0", "0", "0", "0"}},
        Case{"K9SKCCountsOnEveryBandButNotAsDuplicate",
             "WES",
             {line({.call = "K9SKC", .number = "5S", .state = "IL"}),
              line({.call = "K9SKC", .number = "5S", .state = "IL", .frequency = "7050"}),
              line({.call = "K9SKC/9", .number = "5S", .state = "IL", .frequency = "3550"}),
              k9skcDupe},
             {"3", "1", "0", "0", "1", "0", "3", "90", "93"}},
        Case{"TheBonusStationCountsByItsWholeCallButNotAsDuplicate",
             "SKS",
             {line({.call = "W4BON", .number = "NONE"}), line({.call = "W4BONX", .number = "NONE"}),
              line({.call = "W4BON", .number = "NONE", .marker = "DUPE  "})},
             {"2", "1", "0", "0", "0", "1", "0", "25", "27"}},
        Case{"AwardNumbersCountOnceEachDuplicatesIncluded",
             "K3Y",
             {line({.number = "1C"}), line({.number = "1C", .frequency = "7050"}),
              line({.number = "1T"}), line({.number = "2S", .marker = "DUPE"}),
              line({.number = "3S"}), line({.number = "1C  X"})},
             {"5", "1", "1", "1", "2", "0", "0", "45", "50"}},
        Case{"ADuplicateAddsNoRegionUnlessTheLogBeginsWithIt",
             "SKS",
             {line({.state = "NY", .marker = "DUPE"}), line({.state = "CT", .marker = "DUPE"}),
              line({.state = "MA"}), line({.state = "MA"}), line({.state = " MA"})},
             {"3", "3", "0", "0", "0", "0", "0", "0", "9"}},
        Case{"EuropeMapsStatesAndProvincesToCountries",
             "SKSE",
             {line({.state = "MA"}), line({.state = "NY"}), line({.state = "AK"}),
              line({.state = "HI"}), line({.state = "ON"}), line({.state = "QC"}),
              line({.state = "DL"}), line({.state = "DC"}), line({.state = "YT"}),
              line({.state = "USA"}), line({.state = " MA"}),
              line({.state = "F", .marker = "DUPE"})},
             // USA ALK HAW CAN DL DC YT " MA"; all the same regular member
             {"11", "8", "0", "0", "0", "0", "11", "1", "89"}},
        Case{"EuropeASenatorIsARegularMemberAsWell",
             "SKSE",
             {line({.number = "89S"}), line({.number = "89S", .frequency = "7050"})},
             {"2", "1", "0", "0", "1", "0", "2", "16", "18"}},
        Case{"EuropeRegularMembersShownMayFallBelowZero",
             "SKSE",
             {line({.number = "1C", .marker = "DUPE"}), line({.number = "100W", .marker = "DUPE"}),
              line({.number = "NONE", .marker = "DUPE"}), line({.number = "2T"})},
             {"1", "1", "1", "1", "0", "0", "-3", "15", "16"}},
        Case{"EuropeAMissingNumberCountsAsOneMember",
             "SKSE",
             {line({.number = ""}), line({.number = ""}), line({.number = "NONEX"})},
             // "NONEX" is nobody's number and a member's all the same
             {"3", "1", "0", "0", "0", "0", "2", "2", "5"}},
        Case{"LinesCutShortYieldEmptyFields",
             "SKSE",
             {"QSO", "QSO: 14050 CW"},
             {"2", "1", "0", "0", "0", "0", "2", "1", "3"}}),
    [](const auto& row) { return std::string(row.param.rule); });

TEST(Score, TenBlanksOfBonusStationMatchNothing) {
    const std::vector<std::string> lines{line({.call = ""})};
    EXPECT_EQ(scoreOf(lines, "SKS", "          ").bonusStationQsos->value(), 0);
    EXPECT_EQ(scoreOf(lines, "SKSE", "").bonusStationQsos->value(), 0);
}

// --- An independent computation -----------------------------------------------------------

struct Naive {
    long qsos = 0, multipliers = 0, bonus = 0, fifth = 0, bonusStation = 0, total = 0;
    std::map<char, std::set<std::string>> awards;
};

std::string cut(const std::string& text, std::size_t column, std::size_t width) {
    return text.size() < column ? "" : text.substr(column - 1, width);
}

std::string stripped(std::string text) {
    while (!text.empty() && text.back() == ' ')
        text.pop_back();
    while (!text.empty() && text.front() == ' ')
        text.erase(0, 1);
    return text;
}

Naive naive(const std::vector<std::string>& lines, bool european) {
    const std::string states =
        "AL AR AZ CA CO CT DE FL GA IA ID IL IN KS KY LA MA MD ME MI MN MO MS MT NC ND NE NH NJ NM "
        "NV NY OH OK OR PA RI SC SD TN TX UT VA VT WA WI WV WY ";
    const std::string provinces = "NL NS QC PE ON MB AB SK BC NB NT NU ";
    Naive result;
    std::set<std::string> regions;
    std::set<std::string> members;
    long noMembers = 0;
    for (const std::string& text : lines) {
        const bool dupe = cut(text, 102, 4) == "DUPE";
        const std::string number = stripped(cut(text, 96, 6));
        const char last = number.empty() ? ' ' : number.back();
        std::string region = cut(text, 92, 3);
        result.qsos += dupe ? 0 : 1;
        result.bonusStation += !dupe && cut(text, 66, 10) == "W4BON     " ? 1 : 0;
        if (last == 'C' || last == 'T' || last == 'S')
            result.awards[last].insert(number);
        if (!european) {
            result.fifth += !dupe && cut(text, 66, 5) == "K9SKC" ? 1 : 0;
            if (!dupe || regions.empty())
                regions.insert(region);
            continue;
        }
        noMembers += last == 'W' || cut(text, 96, 4) == "NONE" ? 1 : 0;
        if (last != 'T' && last != 'C' && last != 'W' && number != "NONE")
            members.insert(number);
        if (region == "AK ")
            region = "ALK";
        else if (region == "HI ")
            region = "HAW";
        else if (region.size() == 3 && region[2] == ' ' && region[1] != ' ' && region[0] != ' ') {
            if (states.find(region) != std::string::npos)
                region = "USA";
            else if (provinces.find(region) != std::string::npos)
                region = "CAN";
        }
        if (!dupe)
            regions.insert(region);
    }
    const auto worked = [&](char letter) {
        return static_cast<long>(result.awards[letter].size());
    };
    result.multipliers = static_cast<long>(regions.size());
    if (european)
        result.fifth = result.qsos - worked('C') - worked('T') - noMembers;
    result.bonus = 5 * worked('C') + 10 * worked('T') + 15 * worked('S') +
                   25 * result.bonusStation +
                   (european ? static_cast<long>(members.size()) : 25 * result.fifth);
    result.total = result.qsos * result.multipliers + result.bonus;
    return result;
}

TEST(Score, RandomLogsAgreeWithAnIndependentCount) {
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        const auto lines = randomContacts(seed, static_cast<int>(seed * seed) % 700);
        for (const std::string contest : {"SKS", "SKSE"}) {
            Naive expected = naive(lines, contest == "SKSE");
            const Score score = scoreOf(lines, contest, "W4BON     ");
            ASSERT_FALSE(score.stoppedBy);
            EXPECT_THAT(
                texts(score),
                ElementsAre(std::to_string(expected.qsos), std::to_string(expected.multipliers),
                            std::to_string(expected.awards['C'].size()),
                            std::to_string(expected.awards['T'].size()),
                            std::to_string(expected.awards['S'].size()),
                            std::to_string(expected.bonusStation), std::to_string(expected.fifth),
                            std::to_string(expected.bonus), std::to_string(expected.total)));
        }
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
        SCOPED_TRACE(suffix);
        EXPECT_FALSE(scoreOf(numbered(400, suffix), "SKS").stoppedBy);
        const Score score = scoreOf(numbered(401, suffix), "SKS");
        ASSERT_TRUE(score.stoppedBy);
        EXPECT_EQ(score.stoppedBy->number(), 9);
        EXPECT_THAT(score.stoppedBy->detail(), HasSubstr("at most 400"));
        EXPECT_THAT(texts(score), ElementsAre("401", "1", "", "", "", "", "", "", ""));
    }
    EXPECT_FALSE(scoreOf(numbered(401, ""), "SKS").stoppedBy);
    const Score european = scoreOf(numbered(401, ""), "SKSE");
    ASSERT_TRUE(european.stoppedBy);
    EXPECT_THAT(european.stoppedBy->detail(), HasSubstr("regular members"));
    EXPECT_THAT(texts(european), ElementsAre("401", "", "0", "0", "0", "", "", "", ""));

    std::vector<std::string> regions;
    for (int i = 1; i <= 401; ++i)
        regions.push_back(line({.state = std::to_string(i)}));
    EXPECT_THAT(texts(scoreOf(regions, "SKS")), ElementsAre("401", "", "", "", "", "", "", "", ""));
}

TEST(Score, FiguresBeyondSixteenBitsStayEmptyWithAllAfterThem) {
    std::vector<std::string> lines(1310, line({.call = "K9SKC", .number = "NONE"}));
    const Score most = scoreOf(lines, "SKS"); // 32,750 bonus points, the total is too much
    EXPECT_THAT(texts(most), ElementsAre("1310", "1", "0", "0", "0", "0", "1310", "32750", ""));
    ASSERT_TRUE(most.stoppedBy);
    EXPECT_EQ(most.stoppedBy->number(), 6);

    lines.push_back(lines.front());
    EXPECT_THAT(texts(scoreOf(lines, "SKS")),
                ElementsAre("1311", "1", "0", "0", "0", "0", "1311", "", ""));
}

// --- The report -----------------------------------------------------------------------------

TEST(ScoreReport, SprintLinesInTheirOrder) {
    const Score score =
        scoreOf({line({.call = "K9SKC", .number = "5S"}), line({.number = "7C"})}, "WES", "W4BON");
    EXPECT_THAT(scoreReport(score, "/logs/WES.CBR"),
                ElementsAre("", "", "/logs/WES.CBR", "", "       Number of QSOs: 2",
                            "     Number of S/P/Cs: 1", " Number of Centurions: 1",
                            "   Number of Tribumes: 0", "   Number of Senators: 1",
                            "Number Bonus Stn QSOs: 0", " Number of K9SKC QSOs: 1",
                            "   Total Bonus Points: 45", "", "         TOTAL SCORE: 47"));
}

TEST(ScoreReport, EuropeanLinesInTheirOrderAndNothingWhereAFigureIsMissing) {
    const Score score = scoreOf(numbered(401, ""), "SKSE");
    EXPECT_THAT(scoreReport(score, "/logs/E.CBR"),
                ElementsAre("", "", "/logs/E.CBR", "", "            Number of QSOs: 401",
                            "  Number of DXCC Countries: ", "      Number of Centurions: 0",
                            "        Number of Tribumes: 0", "        Number of Senators: 0",
                            "  Number of Bonus Stn QSOs: ", "    Regular Members Worked: ",
                            "        Total Bonus Points: ", "", "               TOTAL SCORE: "));
}

} // namespace
} // namespace vantrel::test
