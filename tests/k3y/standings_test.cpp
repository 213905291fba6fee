// SPDX-License-Identifier: MIT
#include "k3y/k3ylines.h"
#include "k3y/standings.h"
#include "log/log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

using Page = Standings (*)(const Contacts&);
using Lines = std::vector<std::string>;

Standings standingsOf(Page page, const Lines& contacts) {
    const std::string bytes = k3yLog(contacts);
    return page(contactsIn(bytes));
}

// expected: the filled cells as the operator sees them, row by row: "K3Y/3 40M" and its text.
void expectGrid(Page page, const Lines& contacts, const Lines& expected, int total) {
    const Standings standings = standingsOf(page, contacts);
    Lines filled;
    for (std::size_t row = 0; row < standings.rows().size(); ++row)
        for (std::size_t column = 0; column < bands.size(); ++column) {
            const StandingsCell& cell =
                standings.cell(static_cast<int>(row) + 1, static_cast<int>(column) + 1);
            if (cell.filled)
                filled.push_back(std::string(standings.rows()[row].label) + ' ' +
                                 std::string(bands.at(column).label) + ' ' + cell.text);
        }
    EXPECT_EQ(filled, expected);
    EXPECT_EQ(standings.totalText(), "TOTAL:  " + std::to_string(total));
}

TEST(AreaStandings, EachAreaOnEachBandHasItsCell) {
    expectGrid(areaStandings, {}, {}, 0);
    expectGrid(areaStandings,
               {k3yLine("K3Y/1", "1820"), k3yLine("K3Y/2", "3550"), k3yLine("K3Y/3", "7030"),
                k3yLine("K3Y/4", "10120"), k3yLine("K3Y/5", "14050"), k3yLine("K3Y/6", "18080"),
                k3yLine("K3Y/7", "21050"), k3yLine("K3Y/8", "24910"), k3yLine("K3Y/9", "28050"),
                k3yLine("K3Y/0", "28050", "NONE")},
               {"K3Y/1 160M 1234T ", "K3Y/2 80M 1234T ", "K3Y/3 40M 1234T ", "K3Y/4 30M 1234T ",
                "K3Y/5 20M 1234T ", "K3Y/6 17M 1234T ", "K3Y/7 15M 1234T ", "K3Y/8 12M 1234T ",
                "K3Y/9 10M 1234T ", "K3Y/0 10M NONE  "},
               10);
}

TEST(AreaStandings, TheFirstContactStaysInItsCellBeItADupeOrAShortLine) {
    expectGrid(areaStandings,
               {k3yLine("K3Y/3", "7030", "111T"), k3yLine("K3Y/3", "7045", "222S"),
                k3yLine("K3Y/4", "14050", "55C", "DUPE"),
                k3yLine("K3Y/6", "14050", "5517T").substr(0, 98), "QSO: 7030"},
               {"K3Y/3 40M 111T  ", "K3Y/4 20M 55C   ", "K3Y/6 20M 551"}, 3);
}

TEST(AreaStandings, OtherBandsAndOtherCallsFillNothing) {
    expectGrid(areaStandings,
               {k3yLine("K3Y/1", "50100"), k3yLine("K3Y/1", "5332"), k3yLine("K3Y/1", ""),
                k3yLine("K3Y/EU", "14050"), k3yLine("K3Y", "14050"), k3yLine("K3Y/1/P", "14050"),
                k3yLine("W1ABC", "14050"), k3yLine("K3Y/X", "14050"), k3yLine("k3y/1", "14050")},
               {}, 0);
}

TEST(AreaStandings, Area5On15MCountsEachTimeUntil20MIsWorkedAndNeverAfterwards) {
    expectGrid(areaStandings,
               {k3yLine("K3Y/5", "21050", "1T"), k3yLine("K3Y/5", "21051", "2T"),
                k3yLine("K3Y/5", "14050", "3T"), k3yLine("K3Y/5", "21052", "4T"),
                k3yLine("K3Y/5", "14051", "5T")},
               {"K3Y/5 20M 3T    ", "K3Y/5 15M 2T    "}, 3);
}

TEST(RegionStandings, OutlyingAreasAreToldByTheirCalls) {
    expectGrid(regionStandings,
               {k3yLine("K3Y/KH6", "7025", "1T"), k3yLine("K3Y/KL7", "14050", "2T"),
                k3yLine("K3Y/KP4", "21040", "3T"), k3yLine("K3Y/KH", "28040", "4T"),
                k3yLine("K3Y/1", "14050"), k3yLine("K3Y/K", "14050"), k3yLine("K3Y/KX", "14050"),
                k3yLine("W1ABC/KH", "14050"), k3yLine("W1A/KH", "14050")},
               {"K3Y/KH 40M 1T    ", "K3Y/KH 10M 4T    ", "K3Y/KL 20M 2T    ", "K3Y/KP 15M 3T    "},
               4);
}

TEST(RegionStandings, ContinentsAreToldByTheTag) {
    expectGrid(
        regionStandings,
        {k3yLine("VK2SKC", "28040", "1T", "K3Y/OC"), k3yLine("GB0SKC", "7030", "2T", "K3Y/EU"),
         k3yLine("K3Y/SA", "14050", "3T", "K3Y/SA"), k3yLine("K3Y/AF", "1820", "4T", "K3Y/AS"),
         k3yLine("EA8ABC", "3550", "5T", "K3Y/AF"), k3yLine("VE3SKC", "10110", "6T", "K3Y/NA"),
         // a call that ends in a region takes the line's last two letters
         k3yLine("G3ABC/EU", "21050", "1T", "XXXXSA")},
        {"K3Y/NA 30M VE3SKC", "K3Y/SA 20M K3Y/SA", "K3Y/SA 15M G3ABC/EU", "K3Y/EU 40M GB0SKC",
         "K3Y/AF 80M EA8ABC", "K3Y/AS 160M K3Y/AF", "K3Y/OC 10M VK2SKC"},
        7);
}

TEST(RegionStandings, WithoutATagNoContinentIsFilled) {
    expectGrid(regionStandings,
               {k3yLine("K3Y/EU", "14050"), k3yLine("K3Y/EU", "14050", "1T", "DUPE"),
                k3yLine("GB0SKC", "14050", "1T", "DUPE"), k3yLine("G3ABC", "7030", "1T", "XXXXSA"),
                "QSOEU"},
               {}, 0);
}

TEST(RegionStandings, AnOutlyingCallWithATagCountsOnceAndThenForItsContinent) {
    expectGrid(regionStandings,
               {k3yLine("K3Y/KH6", "14050", "1T", "K3Y/OC"),
                k3yLine("K3Y/KH6", "14051", "2T", "K3Y/OC"),
                k3yLine("K3Y/KH6", "14052", "3T", "K3Y/OC")},
               {"K3Y/KH 20M 1T    ", "K3Y/OC 20M K3Y/KH6"}, 2);
}

TEST(RegionStandings, AlaskaOn160MCountsEachTimeUntil80MIsWorkedAndNeverAfterwards) {
    expectGrid(regionStandings,
               {k3yLine("K3Y/KL7", "1820", "1T"), k3yLine("K3Y/KL7", "1821", "2T"),
                k3yLine("K3Y/KL7", "3550", "3T"), k3yLine("K3Y/KL7", "1822", "4T")},
               {"K3Y/KL 160M 2T    ", "K3Y/KL 80M 3T    "}, 3);
}

TEST(Standings, AFullLogOfOneRepeatedCellStillCounts) {
    const Lines lines(Log::capacity, k3yLine("K3Y/5", "21050"));
    EXPECT_EQ(standingsOf(areaStandings, lines).totalText(), "TOTAL:  12000");
}

} // namespace
} // namespace vantrel::test
