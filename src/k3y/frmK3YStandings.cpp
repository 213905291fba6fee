// SPDX-License-Identifier: MIT
#include "k3y/frmK3YStandings.h"

#include <QGridLayout>
#include <QPalette>

#include <algorithm>

namespace vantrel {

namespace {

constexpr int bandCount = static_cast<int>(bands.size());
constexpr int firstBandLabel = 4;      // Label4 "160M" to Label12 "10M"
constexpr int firstStationTotal = 101; // Label101 to Label110
constexpr int firstBandTotal = 201;    // Label201 to Label209
// Row labels in the order of the rows; the zero area's stands last, under the others.
constexpr const char* rowLabels[] = {"Label3",  "Label13", "Label14", "Label15", "Label16",
                                     "Label17", "Label18", "Label19", "Label20", "Label21"};
constexpr double headlineEnlargement = 1.5;
// At least a member number; a longer call makes its column wider.
constexpr int cellColumns = 5;

QLineEdit* makeCell(FormBuilder& build, const std::string& name) {
    QLineEdit* box = build.text(name.c_str());
    box->setReadOnly(true);
    box->setFrame(false);
    box->setFocusPolicy(Qt::NoFocus);
    box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return box;
}

// A worked cell is blue, with white text in every palette. A screen reader says its row and column.
void showCell(QLineEdit* box, const StandingsCell& cell, std::string_view row,
              std::string_view column) {
    QPalette colours;
    if (cell.filled()) {
        colours.setColor(QPalette::Base, Qt::blue);
        colours.setColor(QPalette::Text, Qt::white);
    }
    box->setPalette(colours);
    put(box, cell.text);
    const std::string who = cell.filled() ? std::string(trim(cell.text)) : "not worked";
    box->setAccessibleName(toQt(std::string(row) + ' ' + std::string(column) + ' ' + who));
    box->setCursorPosition(0);
    const QFontMetrics metrics(box->font());
    box->setMinimumWidth(std::max(widthOfColumns(metrics, cellColumns),
                                  metrics.horizontalAdvance(toQt(trimRight(cell.text)))) +
                         widthOfColumns(metrics, 2)); // for its margins
}

void showCount(QLabel* label, Integer16 count) {
    put(label, count == 0 ? "-" : count.text());
}

QLabel* makeCount(FormBuilder& build, int number, const std::string& of) {
    QLabel* label = build.label(("Label" + std::to_string(number)).c_str());
    label->setAccessibleName(toQt(of + " TOTAL"));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

} // namespace

// Its cells: "Text1" (K3Y/1 on 160M) to "Text90" (K3Y/0 on 10M).
const StandingsPage areaPage{
    Screen::standings,
    "frmK3YStandings",
    areaStations,
    areaStandings,
    [](int row, int column) { return "Text" + std::to_string((row - 1) * bandCount + column); },
    Screen::standings2,
    "Next Page"};
// "Text111" (K3Y/KH on 160M) to "Text999" (K3Y/OC on 10M): the row twice, then the column.
const StandingsPage regionPage{
    Screen::standings2,
    "frmK3YStandings2",
    regionStations,
    regionStandings,
    [](int row, int column) { return "Text" + std::to_string(row * 110 + column); },
    Screen::standings,
    "PREV PAGE"};

frmK3YStandings::frmK3YStandings(const FormContext& context, const StandingsPage& edition)
    : Form(context, edition.name, "K3Y Standings"), m_page(edition) {
    setFont(familyFont(this, "Arial Rounded MT Bold"));
    FormBuilder build(this);
    m_total = build.label("Label2");
    m_total->setFont(enlargedFont(this, headlineEnlargement));
    const Item gap = Item::gap(fontMetrics().height());
    page(
        this,
        {build.heading("Label1", "K3Y  Regions/Continents Worked", headlineEnlargement),
         {createGrid(), 1},
         row({m_total, gap, m_wholeTotal = build.label("Label22"), Item::room(),
              focusFirst(build.command("Command2", m_page.otherCaption, "",
                                       [this] { screens().replace(m_page.screen, m_page.other); })),
              gap, build.exit()})});
}

QGridLayout* frmK3YStandings::createGrid() {
    FormBuilder build(this);
    auto* grid = new QGridLayout;
    const int rowCount = static_cast<int>(m_page.rows.size());
    for (int column = 1; column <= bandCount; ++column) {
        const std::string name = "Label" + std::to_string(firstBandLabel + column - 1);
        const std::string band(bands.at(static_cast<std::size_t>(column - 1)).label);
        QLabel* label = build.label(name.c_str(), band.c_str());
        label->setAlignment(Qt::AlignCenter);
        grid->addWidget(label, 0, column);
        grid->setColumnStretch(column, 1); // else a long call's box would lie over the next one
        m_bandTotals.push_back(makeCount(build, firstBandTotal + column - 1, band));
        grid->addWidget(m_bandTotals.back(), rowCount + 1, column);
    }
    for (int row = 1; row <= rowCount; ++row) {
        const std::string station(m_page.rows[static_cast<std::size_t>(row - 1)]);
        grid->addWidget(build.label(rowLabels[row - 1], station.c_str()), row, 0);
        for (int column = 1; column <= bandCount; ++column) {
            m_cells.push_back(makeCell(build, m_page.cellName(row, column)));
            grid->addWidget(m_cells.back(), row, column);
        }
        m_stationTotals.push_back(makeCount(build, firstStationTotal + row - 1, station));
        grid->addWidget(m_stationTotals.back(), row, bandCount + 1);
    }
    grid->setColumnMinimumWidth(bandCount + 1, fontMetrics().averageCharWidth() * cellColumns);
    return grid;
}

// A log that cannot be read leaves the page empty, also one that showed something before.
void frmK3YStandings::load() {
    m_logWatch.reset();
    showStandings({});
    m_total->clear();
    m_wholeTotal->clear();
    shared().log.reread();
    showStandings(shared().log.contacts());
    m_logWatch = shared().log.watch(
        [this] { runHandler([this] { showStandings(shared().log.contacts()); }); });
}

void frmK3YStandings::showStandings(const Contacts& contacts) {
    const Standings standings = m_page.tally(contacts);
    auto box = m_cells.begin();
    for (int row = 1; row <= static_cast<int>(m_page.rows.size()); ++row) {
        const std::string_view station = m_page.rows[static_cast<std::size_t>(row - 1)];
        for (int column = 1; column <= bandCount; ++column, ++box)
            showCell(*box, standings.cell(row, column), station,
                     bands.at(static_cast<std::size_t>(column - 1)).label);
        showCount(m_stationTotals[static_cast<std::size_t>(row - 1)], standings.stationTotal(row));
    }
    for (int column = 1; column <= bandCount; ++column)
        showCount(m_bandTotals[static_cast<std::size_t>(column - 1)], standings.bandTotal(column));
    put(m_total, standings.totalText());
    put(m_wholeTotal, "BOTH PAGES:  " + standingsTotals(contacts).whole().text());
}

} // namespace vantrel
