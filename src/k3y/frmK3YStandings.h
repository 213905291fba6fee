// SPDX-License-Identifier: MIT
// The K3Y standings: a grid of stations by bands, the total, and the way to the other page.
// frmK3YStandings shows the call areas, frmK3YStandings2 the outlying areas and continents.
#pragma once

#include "forms/page.h"
#include "k3y/standings.h"

#include <span>

class QGridLayout;

namespace vantrel {

// What makes one page differ from the other.
struct StandingsPage {
    Screen screen;
    const char* name;
    std::span<const std::string_view> rows;
    Standings (*tally)(const Contacts& contacts);
    std::string (*cellName)(int row, int column); // row and column from 1
    Screen other;                                 // the other page
    const char* otherCaption;                     // of the button that leads there
};

extern const StandingsPage areaPage;
extern const StandingsPage regionPage;

class frmK3YStandings : public Form {
public:
    frmK3YStandings(const FormContext& context, const StandingsPage& edition);

    // Asked for while it shows it reads the log again.
    bool loadsAgain() const override { return true; }

protected:
    void load() override;

private:
    QGridLayout* createGrid();

    void showStandings(const Contacts& contacts);

    StandingsPage m_page;
    std::vector<QLineEdit*> m_cells; // row by row
    std::vector<QLabel*> m_stationTotals;
    std::vector<QLabel*> m_bandTotals;
    QLabel* m_total;
    QLabel* m_wholeTotal; // of both pages

    Log::Watch m_logWatch; // each contact logged shows at once
};

} // namespace vantrel
