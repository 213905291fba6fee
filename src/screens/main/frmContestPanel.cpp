// SPDX-License-Identifier: MIT
#include "screens/main/frmContestPanel.h"

#include "forms/colours.h"
#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "k3y/standings.h"
#include "output/score/scoregain.h"
#include "output/score/scorereport.h"
#include "screens/main/frmPaceBars.h"
#include "shared/settings.h"

#include <QFrame>
#include <QGridLayout>
#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

namespace vantrel {

namespace {

constexpr double totalEnlargement = 2.2;
constexpr int bandColumns = 3; // band, contacts, the call being entered

QFrame* card(QWidget* panel, QLayout* content) {
    auto* frame = new QFrame(panel);
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setLayout(content);
    return frame;
}

// words: what a screen reader reads there.
QTableWidgetItem* cell(std::string_view text, std::string_view words, bool bold,
                       Qt::Alignment alignment) {
    auto* item = new QTableWidgetItem(toQt(text));
    item->setData(Qt::AccessibleTextRole, toQt(words));
    QFont font = item->font();
    font.setBold(bold);
    item->setFont(font);
    item->setTextAlignment(alignment | Qt::AlignVCenter);
    return item;
}

std::string_view onBandText(CallOnBand onBand) {
    switch (onBand) {
    case CallOnBand::dupe:
        return "DUPE";
    case CallOnBand::worked:
        return "worked";
    case CallOnBand::notWorked:
        break;
    }
    return "";
}

} // namespace

ContestPanel::ContestPanel(QWidget* page) : QWidget(page) {
    FormBuilder build(this);
    m_totalLabel = build.label("Label29");
    m_totalLabel->setFont(enlargedFont(this, totalEnlargement));
    m_sumLabel = build.label("Label30");
    auto* score = new QGridLayout;
    score->addWidget(build.caption("TOTAL SCORE", m_totalLabel), 0, 0);
    score->addWidget(m_sumLabel, 1, 0);
    score->addWidget(m_totalLabel, 0, 1, 2, 1, Qt::AlignRight | Qt::AlignVCenter);

    m_rateLabel = build.label("Label31");
    m_rateLabel->setFont(enlargedFont(this, 1));
    m_lastLabel = build.label("Label32");
    m_bars = FormBuilder::named(new PaceBars(this), "Picture1");
    auto* pace = new QGridLayout;
    pace->addWidget(build.caption("LAST 10 MIN", m_rateLabel), 0, 0);
    pace->addWidget(m_rateLabel, 0, 1, Qt::AlignRight);
    pace->addWidget(m_bars, 1, 0, 1, 2);
    pace->addWidget(build.caption("BY 5 MINUTES"), 2, 0);
    pace->addWidget(m_lastLabel, 2, 1, Qt::AlignRight);

    m_bandTable = FormBuilder::named(new QTableWidget(0, bandColumns, this), "Table1");
    m_bandTable->setAccessibleName(QStringLiteral("BANDS"));
    m_bandTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_bandTable->setSelectionMode(QAbstractItemView::NoSelection);
    m_bandTable->setFocusPolicy(Qt::NoFocus);
    m_bandTable->setShowGrid(false);
    m_bandTable->setFrameShape(QFrame::NoFrame);
    QPalette flat(m_bandTable->palette());
    flat.setColor(QPalette::Base, flat.color(QPalette::Window));
    m_bandTable->setPalette(flat);
    m_bandTable->verticalHeader()->hide();
    // The least height first: it bounds the other.
    m_bandTable->verticalHeader()->setMinimumSectionSize(fontMetrics().height());
    m_bandTable->verticalHeader()->setDefaultSectionSize(fontMetrics().height());
    m_bandTable->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_bandTable->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_bandTable->setHorizontalHeaderLabels(
        {QStringLiteral("BAND"), QStringLiteral("QSOs"), QString()});
    m_bandTable->horizontalHeaderItem(0)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (int column = 1; column < bandColumns; ++column)
        m_bandTable->horizontalHeaderItem(column)->setTextAlignment(Qt::AlignRight |
                                                                    Qt::AlignVCenter);
    auto* worked = new QVBoxLayout;
    worked->setContentsMargins(0, 0, 0, 0);
    worked->addWidget(m_bandTable);

    auto* cards = new QVBoxLayout(this);
    cards->setContentsMargins(0, 0, 0, 0);
    cards->addWidget(card(this, score));
    cards->addWidget(card(this, pace));
    cards->addWidget(card(this, worked), 1);
    setFixedWidth(fontMetrics().averageCharWidth() * 40);
}

void ContestPanel::showScore(std::string_view total, std::string_view sum) {
    put(m_totalLabel, total);
    put(m_sumLabel, sum);
}

void ContestPanel::followLog(const Contacts& contacts, const OperatingSettings& settings) {
    m_moments = momentsOf(contacts);
    m_shownAt.reset();
    if (settings.isK3y()) {
        const Integer16 areas = areaStandings(contacts).total();
        const Integer16 regions = regionStandings(contacts).total();
        showScore((areas + regions).text(),
                  "AREAS " + areas.text() + ", REGIONS " + regions.text());
        return;
    }
    m_score = computeScore(contacts, settings);
    showScore(figureText(m_score.total), scoreSum(m_score));
}

void ContestPanel::followClock(const UtcTime& utc) {
    const std::optional<Moment> now = momentOf(utc);
    if (!now || m_shownAt == now)
        return;
    m_shownAt = now;
    const Pace pace = paceOf(m_moments, *now);
    put(m_rateLabel, rateText(pace));
    put(m_lastLabel, lastText(pace));
    m_bars->setPace(pace);
}

void ContestPanel::showBands(const BandTable& table) {
    QTableWidgetItem* heading = m_bandTable->horizontalHeaderItem(bandColumns - 1);
    heading->setText(toQt(table.call));
    heading->setData(Qt::AccessibleTextRole, toQt("CALL " + std::string(table.call)));
    m_bandTable->setRowCount(static_cast<int>(table.rows.size()));
    for (int row = 0; row < m_bandTable->rowCount(); ++row)
        showBand(row, table.rows[static_cast<std::size_t>(row)]);
}

void ContestPanel::showBand(int row, const BandRow& band) {
    const std::string name(band.name);
    const std::string count = std::to_string(band.contacts);
    const std::string_view text = onBandText(band.onBand);
    const std::string words = text.empty() ? "not worked" : std::string(text);
    QTableWidgetItem* onBand = cell(text, name + ' ' + words, band.present, Qt::AlignRight);
    if (band.onBand == CallOnBand::dupe)
        onBand->setForeground(warningColour(palette()));
    m_bandTable->setItem(row, 0, cell(name, name, band.present, Qt::AlignLeft));
    m_bandTable->setItem(row, 1,
                         cell(band.contacts == 0 ? "-" : count, name + ' ' + count + " QSOs",
                              band.present, Qt::AlignRight));
    m_bandTable->setItem(row, 2, onBand);
    if (band.present) // there may be no room for all
        m_bandTable->scrollToItem(onBand);
}

} // namespace vantrel
