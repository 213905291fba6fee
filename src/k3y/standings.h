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

// The rows of the two grids, whose columns are the bands of the one band table, from 160M to 10M.
// First page: the call areas, zero last.
inline constexpr std::array<std::string_view, 10> areaStations{
    "K3Y/1", "K3Y/2", "K3Y/3", "K3Y/4", "K3Y/5", "K3Y/6", "K3Y/7", "K3Y/8", "K3Y/9", "K3Y/0"};
// Second page: the outlying areas, by the call, then the continents, by the tag.
inline constexpr std::array<std::string_view, 9> regionStations{
    "K3Y/KH", "K3Y/KL", "K3Y/KP", "K3Y/NA", "K3Y/SA", "K3Y/EU", "K3Y/AF", "K3Y/AS", "K3Y/OC"};

struct StandingsCell {
    Integer16 fillings;
    std::string text;

    bool filled() const { return fillings != 0; }
};

class Standings {
public:
    // rows: one of the two above, which outlive this.
    explicit Standings(std::span<const std::string_view> rows)
        : m_rows(rows), m_cells(rows.size()) {}

    // Row and column from 1, as in the rows and the band table.
    const StandingsCell& cell(int row, int column) const;
    // Of all fillings; a cell can be filled more than once, see guardOf() in the source.
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
    std::span<const std::string_view> m_rows;
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
