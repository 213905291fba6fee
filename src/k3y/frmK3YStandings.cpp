// SPDX-License-Identifier: MIT
#include "k3y/frmK3YStandings.h"

#include "forms/controltext.h"
#include "forms/formbuilder.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPalette>
#include <QScreen>
#include <QVBoxLayout>

namespace vantrel {

namespace {

constexpr int bandCount = static_cast<int>(bands.size());
constexpr int firstBandLabel = 4; // Label4 "160M" to Label12 "10M"
// Row labels in the order of the rows; the zero area's stands last, under the others.
constexpr const char* rowLabels[] = {"Label3",  "Label13", "Label14", "Label15", "Label16",
                                     "Label17", "Label18", "Label19", "Label20", "Label21"};
constexpr double headlineEnlargement = 1.5;
// At least a member number; the window opens wider, for a call of ten.
constexpr int cellColumns = 5;

// Worked is blue: the text is white in light and dark palettes alike.
void paintFilled(QLineEdit* box, const std::string& text) {
    QPalette blue(box->palette());
    blue.setColor(QPalette::Base, Qt::blue);
    blue.setColor(QPalette::Text, Qt::white);
    box->setPalette(blue);
    put(box, text);
    box->setToolTip(box->text());
    box->setCursorPosition(0);
}

} // namespace

std::string areaCellName(int row, int column) {
    return "Text" + std::to_string((row - 1) * bandCount + column);
}

std::string regionCellName(int row, int column) {
    return "Text" + std::to_string(row) + std::to_string(row) + std::to_string(column);
}

frmK3YStandings::frmK3YStandings(const FormContext& context, const StandingsPage& page)
    : Form(context, page.name, "K3Y Standings"), m_page(page) {
    createControls();
    resize(sizeHint().boundedTo(screen()->availableSize()));
    connectHandler(m_otherPageButton, &QPushButton::clicked, this,
                   &frmK3YStandings::otherPageClicked);
}

void frmK3YStandings::createControls() {
    setFont(familyFont(this, "Arial Rounded MT Bold"));
    FormBuilder build(this);
    QLabel* headline = build.label("Label1", "K3Y  Regions/Continents Worked");
    headline->setFont(enlargedFont(this, headlineEnlargement));
    headline->setAlignment(Qt::AlignCenter);
    m_total = build.label("Label2");
    m_total->setFont(enlargedFont(this, headlineEnlargement));
    m_otherPageButton = build.command("Command2", m_page.otherCaption);
    QPushButton* exit = build.command("Command1", "E&XIT");
    connect(exit, &QPushButton::clicked, this, &QWidget::close);

    auto* page = new QVBoxLayout(this);
    page->addWidget(headline);
    page->addLayout(createGrid(), 1);
    auto* commands = new QHBoxLayout;
    commands->addWidget(m_total, 1);
    commands->addWidget(m_otherPageButton);
    commands->addWidget(exit);
    page->addLayout(commands);
}

QGridLayout* frmK3YStandings::createGrid() {
    FormBuilder build(this);
    auto* grid = new QGridLayout;
    for (int column = 1; column <= bandCount; ++column) {
        const std::string name = "Label" + std::to_string(firstBandLabel + column - 1);
        const std::string band(bands.at(static_cast<std::size_t>(column - 1)).label);
        QLabel* label = build.label(name.c_str(), band.c_str());
        label->setAlignment(Qt::AlignCenter);
        grid->addWidget(label, 0, column);
        grid->setColumnStretch(column, 1);
    }
    for (int row = 1; row <= static_cast<int>(m_page.rows.size()); ++row) {
        const std::string station(m_page.rows[static_cast<std::size_t>(row - 1)].label);
        grid->addWidget(build.label(rowLabels[row - 1], station.c_str()), row, 0);
        for (int column = 1; column <= bandCount; ++column) {
            QLineEdit* box = build.output(m_page.cellName(row, column).c_str());
            setColumns(box, cellColumns);
            grid->addWidget(box, row, column);
            m_cells.push_back(box);
        }
    }
    return grid;
}

QWidget* frmK3YStandings::firstFocus() {
    return m_otherPageButton;
}

void frmK3YStandings::load() {
    shared().log.reread();
    const Standings standings = m_page.tally(shared().log.contacts());
    auto box = m_cells.begin();
    for (int row = 1; row <= static_cast<int>(m_page.rows.size()); ++row)
        for (int column = 1; column <= bandCount; ++column, ++box)
            if (const StandingsCell& worked = standings.cell(row, column); worked.filled)
                paintFilled(*box, worked.text);
    put(m_total, standings.totalText());
}

// The other page takes this one's place: leaving it leads back to where this one came from.
void frmK3YStandings::otherPageClicked() {
    screens().replace(m_page.screen, m_page.other);
}

} // namespace vantrel
