// SPDX-License-Identifier: MIT
// Any bytes as a log of the event: both standings fill cells from its contacts and count what
// they fill.
#include "fuzz/fuzztarget.h"
#include "k3y/standings.h"
#include "log/log.h"

#include <algorithm>

namespace vantrel::test {
namespace {

void cellsAreFromTheLog(const Standings& standings, const Contacts& contacts) {
    int filled = 0;
    for (int row = 1; row <= static_cast<int>(standings.rows().size()); ++row)
        for (int column = 1; column <= static_cast<int>(bands.size()); ++column) {
            const StandingsCell& cell = standings.cell(row, column);
            filled += cell.filled ? 1 : 0;
            require(cell.filled || cell.text.empty(), "an empty cell shows nothing");
            const auto stands = [&](std::string_view line) {
                return line.find(cell.text) != line.npos;
            };
            require(!cell.filled || std::any_of(contacts.begin(), contacts.end(), stands),
                    "a filled cell shows what stands in the log");
        }
    require(standings.total() >= filled, "every filled cell was counted");
    require(standings.total() <= static_cast<int>(contacts.size()),
            "a contact counts once at most");
    require((filled == 0) == (standings.total() == 0), "what was counted is filled");
}

} // namespace

void fuzz(Input& input) {
    const Contacts contacts = contactsIn(input.rest());
    cellsAreFromTheLog(areaStandings(contacts), contacts);
    cellsAreFromTheLog(regionStandings(contacts), contacts);
}

} // namespace vantrel::test
