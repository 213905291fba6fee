// SPDX-License-Identifier: MIT
#include "k3y/standings.h"

#include "log/qsoline.h"

namespace vantrel {

namespace {

constexpr std::string_view eventPrefix = "K3Y/";
constexpr Column areaOfCall{5, 1};     // of a call: "K3Y/5"
constexpr Column outlyingOfCall{5, 2}; // of a call: "K3Y/KH6"
constexpr std::size_t outlyingRows = 3;

// The number (from 1) of the station among rows `first` to `last` that has this behind the prefix;
// 0 for none.
int rowOf(std::span<const std::string_view> rows, std::size_t first, std::size_t last,
          std::string_view code) {
    for (std::size_t row = first; row <= last; ++row)
        if (rows[row - 1].substr(eventPrefix.size()) == code)
            return static_cast<int>(row);
    return 0;
}

int continentRow(std::string_view code) {
    return rowOf(regionStations, outlyingRows + 1, regionStations.size(), code);
}

// The column (from 1) whose cell must be empty for a contact to count in this one: its own.
// Deliberate, so that totals agree with those of the other stations in the event: K3Y/5 on 15M
// looks at 20M, so it counts again and again until K3Y/5 is worked there, and never after that;
// K3Y/KL on 160M looks at 80M.
int guardOf(std::string_view station, int column) {
    constexpr int on160m = 1, on80m = 2, on20m = 5, on15m = 7;
    if (station == "K3Y/5" && column == on15m)
        return on20m;
    return station == "K3Y/KL" && column == on160m ? on80m : column;
}

// "/EU" at the end of the call or "K3Y/EU" at the end of the line.
bool mayCountForContinent(std::string_view call, std::string_view line) {
    const std::string_view callEnd = right(call, 3);
    const std::string_view tag = right(line, qso::marker.width);
    return (callEnd.starts_with('/') && continentRow(midToEnd(callEnd, 2)) != 0) ||
           (tag.starts_with(eventPrefix) && continentRow(midToEnd(tag, 5)) != 0);
}

} // namespace

const StandingsCell& Standings::cell(int row, int column) const {
    return m_cells.at(static_cast<std::size_t>(row - 1)).at(static_cast<std::size_t>(column - 1));
}

Integer16 Standings::stationTotal(int row) const {
    Integer16 total;
    for (int column = 1; column <= static_cast<int>(bands.size()); ++column)
        total += cell(row, column).fillings;
    return total;
}

Integer16 Standings::bandTotal(int column) const {
    Integer16 total;
    for (int row = 1; row <= static_cast<int>(m_rows.size()); ++row)
        total += cell(row, column).fillings;
    return total;
}

bool Standings::fill(int row, std::string_view khzField, std::string_view text) {
    const std::size_t band = bandIndexOf(khzField);
    if (row == 0 || band == bands.size())
        return false;
    const auto index = static_cast<std::size_t>(row - 1);
    if (cell(row, guardOf(m_rows[index], static_cast<int>(band) + 1)).filled())
        return false;
    StandingsCell& filled = m_cells[index].at(band);
    ++m_total;
    ++filled.fillings;
    filled.text = text;
    return true;
}

Standings areaStandings(const Contacts& contacts) {
    Standings result(areaStations);
    for (const std::string_view line : contacts) {
        const std::string_view call = trim(qso::hisCall.of(line));
        if (length(call) == areaOfCall.last() && call.starts_with(eventPrefix))
            result.fill(rowOf(areaStations, 1, areaStations.size(), areaOfCall.of(call)),
                        qso::frequency.of(line), qso::hisNumber.of(line));
    }
    return result;
}

Standings regionStandings(const Contacts& contacts) {
    Standings result(regionStations);
    for (const std::string_view line : contacts) {
        const std::string_view call = trim(qso::hisCall.of(line));
        const std::string_view khz = qso::frequency.of(line);
        const bool isOutlying =
            length(call) >= outlyingOfCall.last() && call.starts_with(eventPrefix);
        const int row =
            isOutlying ? rowOf(regionStations, 1, outlyingRows, outlyingOfCall.of(call)) : 0;
        const bool counted = result.fill(row, khz, qso::hisNumber.of(line));
        // The closing tag picks the continent, never the call: a DX station without a tag
        // counts for none.
        if (!counted && mayCountForContinent(call, line))
            result.fill(continentRow(right(line, 2)), khz, call);
    }
    return result;
}

StandingsTotals standingsTotals(const Contacts& contacts) {
    return {areaStandings(contacts).total(), regionStandings(contacts).total()};
}

} // namespace vantrel
