// SPDX-License-Identifier: MIT
#include "k3y/k3ylines.h"
#include "k3y/standings.h"
#include "shared/qsotable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <random>

namespace vantrel::test {
namespace {

// A filled cell as the operator sees it: "K3Y/3 40M" and its text.
using Shown = std::map<std::string, std::string>;

Shown shown(const Standings& page) {
    Shown result;
    for (int row = 1; row <= static_cast<int>(page.rows().size()); ++row)
        for (int column = 1; column <= static_cast<int>(bands.size()); ++column) {
            const StandingsCell& cell = page.cell(row, column);
            if (cell.filled)
                result[std::string(page.rows()[static_cast<std::size_t>(row - 1)].label) + ' ' +
                       std::string(bands.at(static_cast<std::size_t>(column - 1)).label)] =
                    cell.text;
        }
    return result;
}

Standings standingsOf(Standings (*page)(const QsoTable&), const std::vector<std::string>& lines) {
    QsoTable table;
    table.refill(k3yLog(lines));
    return page(table);
}

struct Case {
    const char* name;
    Standings (*page)(const QsoTable&);
    std::vector<std::string> lines;
    Shown expected;
    std::string total;
};

void PrintTo(const Case& row, std::ostream* out) {
    *out << row.name;
}

class StandingsCases : public ::testing::TestWithParam<Case> {};

TEST_P(StandingsCases, FillTheGridAsWorked) {
    const Standings page = standingsOf(GetParam().page, GetParam().lines);
    EXPECT_EQ(shown(page), GetParam().expected);
    EXPECT_EQ(page.totalText(), GetParam().total);
}

INSTANTIATE_TEST_SUITE_P(
    Areas, StandingsCases,
    ::testing::Values(
        Case{"AnEmptyLog_IsAnEmptyGrid", areaStandings, {}, {}, "TOTAL:  0"},
        Case{"TheFirstContactOnABand_StaysInItsCell",
             areaStandings,
             {k3yLine("K3Y/3", "7030", "111T"), k3yLine("K3Y/3", "7045", "222S")},
             {{"K3Y/3 40M", "111T  "}},
             "TOTAL:  1"},
        Case{"TheCornersAndTheEventsOwnBands",
             areaStandings,
             {k3yLine("K3Y/1", "1820"), k3yLine("K3Y/0", "28050", "NONE"),
              k3yLine("K3Y/9", "10120"), k3yLine("K3Y/2", "18080"), k3yLine("K3Y/2", "24910")},
             {{"K3Y/1 160M", "1234T "},
              {"K3Y/0 10M", "NONE  "},
              {"K3Y/9 30M", "1234T "},
              {"K3Y/2 17M", "1234T "},
              {"K3Y/2 12M", "1234T "}},
             "TOTAL:  5"},
        Case{"OtherBands_FillNothing",
             areaStandings,
             {k3yLine("K3Y/1", "50100"), k3yLine("K3Y/1", "5332"), k3yLine("K3Y/1", "")},
             {},
             "TOTAL:  0"},
        Case{"OtherCalls_FillNothing",
             areaStandings,
             {k3yLine("K3Y/EU", "14050"), k3yLine("K3Y", "14050"), k3yLine("K3Y/1/P", "14050"),
              k3yLine("W1ABC", "14050"), k3yLine("K3Y/X", "14050"), k3yLine("k3y/1", "14050")},
             {},
             "TOTAL:  0"},
        Case{"ADupe_FillsAnEmptyCell",
             areaStandings,
             {k3yLine("K3Y/4", "14050", "55C", "DUPE")},
             {{"K3Y/4 20M", "55C   "}},
             "TOTAL:  1"},
        Case{"AShortLine_ShowsWhatItHas",
             areaStandings,
             {k3yLine("K3Y/4", "14050", "5517T").substr(0, 98), "QSO: 7030"},
             {{"K3Y/4 20M", "551"}},
             "TOTAL:  1"},
        Case{"Area5On15M_CountsEachTimeUntil20MIsWorked",
             areaStandings,
             {k3yLine("K3Y/5", "21050", "1T"), k3yLine("K3Y/5", "21051", "2T"),
              k3yLine("K3Y/5", "14050", "3T"), k3yLine("K3Y/5", "21052", "4T"),
              k3yLine("K3Y/5", "14051", "5T")},
             {{"K3Y/5 15M", "2T    "}, {"K3Y/5 20M", "3T    "}},
             "TOTAL:  3"},
        Case{"Area5On15M_NeverFillsAfter20M",
             areaStandings,
             {k3yLine("K3Y/5", "14050", "1T"), k3yLine("K3Y/5", "21050", "2T")},
             {{"K3Y/5 20M", "1T    "}},
             "TOTAL:  1"}),
    [](const auto& tested) { return tested.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Regions, StandingsCases,
    ::testing::Values(
        Case{"OutlyingAreas_AreToldByTheirCalls",
             regionStandings,
             {k3yLine("K3Y/KH6", "7025", "1T"), k3yLine("K3Y/KL7", "14050", "2T"),
              k3yLine("K3Y/KP4", "21040", "3T"), k3yLine("K3Y/KH", "28040", "4T"),
              k3yLine("K3Y/1", "14050"), k3yLine("K3Y/K", "14050"), k3yLine("K3Y/KX", "14050"),
              k3yLine("W1ABC/KH", "14050")},
             {{"K3Y/KH 40M", "1T    "},
              {"K3Y/KL 20M", "2T    "},
              {"K3Y/KP 15M", "3T    "},
              {"K3Y/KH 10M", "4T    "}},
             "TOTAL:  4"},
        Case{"Continents_AreToldByTheTag",
             regionStandings,
             {k3yLine("VK2SKC", "28040", "1T", "K3Y/OC"), k3yLine("GB0SKC", "7030", "2T", "K3Y/EU"),
              k3yLine("K3Y/SA", "14050", "3T", "K3Y/SA"), k3yLine("K3Y/AF", "1820", "4T", "K3Y/AS"),
              k3yLine("EA8ABC", "3550", "5T", "K3Y/AF"),
              k3yLine("VE3SKC", "10110", "6T", "K3Y/NA")},
             {{"K3Y/OC 10M", "VK2SKC"},
              {"K3Y/EU 40M", "GB0SKC"},
              {"K3Y/SA 20M", "K3Y/SA"},
              {"K3Y/AS 160M", "K3Y/AF"},
              {"K3Y/AF 80M", "EA8ABC"},
              {"K3Y/NA 30M", "VE3SKC"}},
             "TOTAL:  6"},
        Case{"ARegionsCallWithoutATag_FillsNothing",
             regionStandings,
             {k3yLine("K3Y/EU", "14050"), k3yLine("K3Y/EU", "14050", "1T", "DUPE"),
              k3yLine("GB0SKC", "14050", "1T", "DUPE"), "EU", "QSOEU"},
             {},
             "TOTAL:  0"},
        Case{"ACallEndingInARegion_TakesTheLinesLastTwoLetters",
             regionStandings,
             {k3yLine("G3ABC/EU", "14050", "1T", "XXXXSA"),
              k3yLine("G3ABC", "7030", "1T", "XXXXSA")},
             {{"K3Y/SA 20M", "G3ABC/EU"}},
             "TOTAL:  1"},
        Case{"AnOutlyingCallWithATag_CountsOnceAndThenForItsContinent",
             regionStandings,
             {k3yLine("K3Y/KH6", "14050", "1T", "K3Y/OC"),
              k3yLine("K3Y/KH6", "14051", "2T", "K3Y/OC"),
              k3yLine("K3Y/KH6", "14052", "3T", "K3Y/OC")},
             {{"K3Y/KH 20M", "1T    "}, {"K3Y/OC 20M", "K3Y/KH6"}},
             "TOTAL:  2"},
        Case{"AlaskaOn160M_CountsEachTimeUntil80MIsWorked",
             regionStandings,
             {k3yLine("K3Y/KL7", "1820", "1T"), k3yLine("K3Y/KL7", "1821", "2T"),
              k3yLine("K3Y/KL7", "3550", "3T"), k3yLine("K3Y/KL7", "1822", "4T")},
             {{"K3Y/KL 160M", "2T    "}, {"K3Y/KL 80M", "3T    "}},
             "TOTAL:  3"},
        Case{"AlaskaOn160M_NeverFillsAfter80M",
             regionStandings,
             {k3yLine("K3Y/KL7", "3550", "1T"), k3yLine("K3Y/KL7", "1820", "2T")},
             {{"K3Y/KL 80M", "1T    "}},
             "TOTAL:  1"}),
    [](const auto& tested) { return tested.param.name; });

// The rules told a second time, cell by cell as an umpire with pencil and paper would keep
// them: a map of coloured cells, each question asked in words of its own.
struct Umpire {
    std::map<std::string, std::string> cells;
    int total = 0;

    bool mark(const std::string& station, const std::string& khz, const std::string& text) {
        static const std::map<std::string, std::string> prefixes{
            {" 1", "160M"}, {" 3", "80M"}, {" 7", "40M"}, {"10", "30M"}, {"14", "20M"},
            {"18", "17M"},  {"21", "15M"}, {"24", "12M"}, {"28", "10M"}};
        const auto band = prefixes.find(khz.substr(0, 2));
        if (band == prefixes.end())
            return false;
        const std::string cell = station + ' ' + band->second;
        std::string asked = cell;
        if (cell == "K3Y/5 15M")
            asked = "K3Y/5 20M";
        if (cell == "K3Y/KL 160M")
            asked = "K3Y/KL 80M";
        if (cells.count(asked) != 0)
            return false;
        cells[cell] = text;
        ++total;
        return true;
    }

    static std::string call(const std::string& line) {
        const std::string field = line.substr(65, 10);
        return field.substr(0, field.find(' '));
    }

    void areas(const std::string& line) {
        const std::string station = call(line);
        if (station.size() == 5 && station.starts_with("K3Y/") && station[4] >= '0' &&
            station[4] <= '9')
            mark(station, line.substr(5, 5), line.substr(95, 6));
    }

    void regions(const std::string& line) {
        const std::string station = call(line);
        const std::string khz = line.substr(5, 5);
        const std::string last2 = line.substr(line.size() - 2);
        const std::string last6 = line.substr(line.size() - 6);
        for (const char* area : {"KH", "KL", "KP"})
            if (station.starts_with(std::string("K3Y/") + area) &&
                mark(std::string("K3Y/") + area, khz, line.substr(95, 6)))
                return;
        for (const std::string asks : {"NA", "SA", "EU", "AF", "AS", "OC"}) {
            const bool byCall =
                station.size() >= 3 && station.substr(station.size() - 3) == '/' + asks;
            if (!byCall && last6 != "K3Y/" + asks)
                continue;
            for (const std::string continent : {"NA", "SA", "EU", "AF", "AS", "OC"})
                if (last2 == continent && mark("K3Y/" + continent, khz, station))
                    return;
        }
    }
};

TEST(Standings, AgreeWithAnIndependentTallyOfRandomLogs) {
    const std::vector<std::string> calls{
        "K3Y/0",   "K3Y/1",    "K3Y/5",  "K3Y/5",  "K3Y/9",   "K3Y/KH6", "K3Y/KL7",
        "K3Y/KL7", "K3Y/KP",   "K3Y/EU", "K3Y/AS", "GB0SKC",  "VK2SKC",  "K3Y",
        "K3Y/12",  "G3ABC/NA", "W1ABC",  "K3Y/KX", "K3Y/1/P", "JA1X/OC", "K3Y/KHEU"};
    const std::vector<std::string> khz{"1820",  "3550",  "7030",  "10110", "14050", "18080",
                                       "21050", "24910", "28050", "5332",  "50100", "144"};
    const std::vector<std::string> markers{"      ", "DUPE",   "K3Y/EU", "K3Y/NA", "K3Y/SA",
                                           "K3Y/AF", "K3Y/AS", "K3Y/OC", "XXXXOC", "k3y/eu"};
    for (unsigned seed = 1; seed <= 200; ++seed) {
        std::mt19937 random(seed);
        const auto pick = [&](const auto& from) { return from[random() % from.size()]; };
        std::vector<std::string> lines(1 + random() % 200);
        Umpire areas;
        Umpire regions;
        for (std::string& line : lines) {
            line = k3yLine(pick(calls), pick(khz), std::to_string(random() % 30000) + 'T',
                           pick(markers));
            areas.areas(line);
            regions.regions(line);
        }
        const Standings first = standingsOf(areaStandings, lines);
        const Standings second = standingsOf(regionStandings, lines);
        ASSERT_EQ(shown(first), areas.cells) << "seed " << seed;
        ASSERT_EQ(first.total().value(), areas.total) << "seed " << seed;
        ASSERT_EQ(shown(second), regions.cells) << "seed " << seed;
        ASSERT_EQ(second.total().value(), regions.total) << "seed " << seed;
    }
}

TEST(Standings, AFullLogOfOneRepeatedCellStillCounts) {
    const Standings page = standingsOf(
        areaStandings, std::vector<std::string>(QsoTable::capacity, k3yLine("K3Y/5", "21050")));
    EXPECT_EQ(page.totalText(), "TOTAL:  12000");
}

} // namespace
} // namespace vantrel::test
