// SPDX-License-Identifier: MIT
// The K3Y standings: which event stations were worked on which band, as two grids.
#pragma once

#include "base/integer16.h"
#include "log/bands.h"
#include "log/log.h"

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

// A row of a grid. Its columns are the bands of the one band table, from 160M to 10M.
struct StandingsRow {
    std::string_view label; // "K3Y/5"
    std::string_view code;  // what picks the row: the area digit or the two region letters
    // For each column: the column (from 1) whose cell must be empty for a contact to count in it.
    std::array<int, bands.size()> guards;
};

namespace standings {
inline constexpr std::array<int, bands.size()> ownCells{1, 2, 3, 4, 5, 6, 7, 8, 9};
// Deliberate, so that totals agree with those of the other stations in the event: K3Y/5 on
// 15M counts again and again until K3Y/5 is worked on 20M, and never after that.
inline constexpr std::array<int, bands.size()> area5Cells{1, 2, 3, 4, 5, 6, 5, 8, 9};
// Deliberate likewise: K3Y/KL on 160M looks at 80M.
inline constexpr std::array<int, bands.size()> alaskaCells{2, 2, 3, 4, 5, 6, 7, 8, 9};
} // namespace standings

// First page: the call areas, zero last.
inline constexpr std::array<StandingsRow, 10> areaRows{{
    {"K3Y/1", "1", standings::ownCells},
    {"K3Y/2", "2", standings::ownCells},
    {"K3Y/3", "3", standings::ownCells},
    {"K3Y/4", "4", standings::ownCells},
    {"K3Y/5", "5", standings::area5Cells},
    {"K3Y/6", "6", standings::ownCells},
    {"K3Y/7", "7", standings::ownCells},
    {"K3Y/8", "8", standings::ownCells},
    {"K3Y/9", "9", standings::ownCells},
    {"K3Y/0", "0", standings::ownCells},
}};

// Second page: the outlying areas, by the call, then the continents, by the tag.
inline constexpr std::size_t outlyingRows = 3;
inline constexpr std::array<StandingsRow, 9> regionRows{{
    {"K3Y/KH", "KH", standings::ownCells},
    {"K3Y/KL", "KL", standings::alaskaCells},
    {"K3Y/KP", "KP", standings::ownCells},
    {"K3Y/NA", "NA", standings::ownCells},
    {"K3Y/SA", "SA", standings::ownCells},
    {"K3Y/EU", "EU", standings::ownCells},
    {"K3Y/AF", "AF", standings::ownCells},
    {"K3Y/AS", "AS", standings::ownCells},
    {"K3Y/OC", "OC", standings::ownCells},
}};

struct StandingsCell {
    Integer16 fillings;
    std::string text;

    bool filled() const { return fillings != 0; }
};

class Standings {
public:
    // rows: one of the two row tables above, which outlives this.
    explicit Standings(std::span<const StandingsRow> rows) : m_rows(rows), m_cells(rows.size()) {}

    // Row and column from 1, as in the row table and the band table.
    const StandingsCell& cell(int row, int column) const;
    // Of all fillings; a cell can be filled more than once, see area5Cells.
    Integer16 total() const { return m_total; }
    Integer16 stationTotal(int row) const;
    Integer16 bandTotal(int column) const;
    // "TOTAL:  12": the second blank stands where a minus sign would.
    std::string totalText() const { return "TOTAL:  " + m_total.text(); }

    // Fills the cell of the row (from 1) on the band of a kHz field when the cell that guards
    // it is empty; false when nothing changed (row 0: no row has that station). Throws
    // RuntimeError 6 beyond a total of 32,767.
    bool fill(int row, std::string_view khzField, std::string_view text);

private:
    std::span<const StandingsRow> m_rows;
    std::vector<std::array<StandingsCell, bands.size()>> m_cells;
    Integer16 m_total;
};

// The first page: stations signing K3Y/0 to K3Y/9; a cell shows the number (6 columns) of the
// first contact, untrimmed.
Standings areaStandings(const Contacts& contacts);

// The second page: K3Y/KH.., /KL.., /KP.. by their calls (the cell shows the number), and the
// continents by the tag that closes the line (the cell shows the call). A contact counts at
// most once.
Standings regionStandings(const Contacts& contacts);

// The totals of the two pages.
struct StandingsTotals {
    Integer16 areas;
    Integer16 regions;

    Integer16 whole() const { return areas + regions; }
    // "AREAS 12, REGIONS 3"
    std::string text() const { return "AREAS " + areas.text() + ", REGIONS " + regions.text(); }
};
StandingsTotals standingsTotals(const Contacts& contacts);

} // namespace vantrel
