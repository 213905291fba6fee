// SPDX-License-Identifier: MIT
#include "k3y/callarea.h"
#include "k3y/standings.h"
#include "log/shortlog.h"

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

// The filled cells as the operator sees them, row by row, and the total.
std::string grid(Standings (*page)(const Contacts&), const std::string& contacts) {
    const std::string log = logOf(
        {&Fields::hisCall, &Fields::frequency, &Fields::hisNumber, &Fields::marker}, contacts);
    const Standings standings = page(contactsIn(log));
    std::string result;
    for (int row = 1; const StandingsRow& station : standings.rows()) {
        for (int column = 1; const Band& band : bands)
            if (const StandingsCell& cell = standings.cell(row, column++); cell.filled)
                result += std::string(station.label) + ' ' + std::string(band.label) + ' ' +
                          cell.text + "; ";
        ++row;
    }
    return result + standings.totalText();
}

// The first contact stays in its cell, be it a dupe; other bands and other calls fill nothing.
// Area 5 on 15M counts until 20M is worked, and never afterwards.
TEST(Standings, AreasHaveACellOnEachBand) {
    EXPECT_EQ(grid(areaStandings, ""), "TOTAL:  0");
    EXPECT_EQ(grid(areaStandings,
                   "K3Y/1 1820; K3Y/2 3550; K3Y/3 7030 3T; K3Y/3 7045 33T; K3Y/4 10120 44 DUPE;"
                   "K3Y/5 21050 1T; K3Y/5 21051 2T; K3Y/5 14050 3T; K3Y/5 21052 4T; K3Y/6 18080;"
                   "K3Y/7 21050; K3Y/8 24910; K3Y/9 28050; K3Y/0 28050 NONE; QSO: 7030;"
                   "K3Y/1 50100; K3Y/1 5332; K3Y/1 -; K3Y/EU; K3Y; K3Y/1/P; W1AB1; K3Y/X; k3y/1"),
              "K3Y/1 160M 1234  ; K3Y/2 80M 1234  ; K3Y/3 40M 3T    ; K3Y/4 30M 44    ; "
              "K3Y/5 20M 3T    ; K3Y/5 15M 2T    ; K3Y/6 17M 1234  ; K3Y/7 15M 1234  ; "
              "K3Y/8 12M 1234  ; K3Y/9 10M 1234  ; K3Y/0 10M NONE  ; TOTAL:  12");
}

// Outlying areas are told by their calls and count once, then for a continent; continents are
// told by the tag, and a call that ends in one takes the line's end for it. Alaska on 160M counts
// until 80M is worked.
TEST(Standings, RegionsAreOutlyingAreasAndContinents) {
    EXPECT_EQ(grid(regionStandings,
                   "K3Y/KH6 14050 1T K3Y/OC; K3Y/KH6 14051 2T K3Y/OC; K3Y/KH6 14052 3T K3Y/OC;"
                   "K3Y/KL7 1820 1T; K3Y/KL7 1821 2T; K3Y/KL7 3550 3T; K3Y/KL7 1822 4T;"
                   "K3Y/KP4 21040 4T; K3Y/KH 28040 5T; K3Y/1; K3Y/K; K3Y/KX; W1ABC/KH; W1A/KH;"
                   "K3Y/KH 50100; VK2SKC 28040 1T K3Y/OC; GB0SKC 7030 1T K3Y/EU;"
                   "K3Y/SA 14050 1T K3Y/SA; K3Y/AF 1820 1T K3Y/AS; EA8ABC 3550 1T K3Y/AF;"
                   "VE3SKC 10110 1T K3Y/NA; G3ABC/EU 21050 1T XXXXSA; G3ABC 7030 1T XXXXSA;"
                   "K3Y/EU; K3Y/EU 14050 1T DUPE; GB0SKC 14050 1T DUPE; QSOEU"),
              "K3Y/KH 20M 1T    ; K3Y/KH 10M 5T    ; K3Y/KL 160M 2T    ; K3Y/KL 80M 3T    ; "
              "K3Y/KP 15M 4T    ; K3Y/NA 30M VE3SKC; K3Y/SA 20M K3Y/SA; K3Y/SA 15M G3ABC/EU; "
              "K3Y/EU 40M GB0SKC; K3Y/AF 80M EA8ABC; K3Y/AS 160M K3Y/AF; K3Y/OC 20M K3Y/KH6; "
              "K3Y/OC 10M VK2SKC; TOTAL:  14");
}

TEST(CallArea, IsPartOfTheLogsName) {
    EXPECT_EQ(k3yLogName("02-01-2010", "KH", " kh6/w1abc/4 "), "02-01-2010-K3Y-KH-KH6-W1ABC-4.CBR");
}

} // namespace
} // namespace vantrel::test
