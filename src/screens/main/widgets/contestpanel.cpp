// SPDX-License-Identifier: MIT
#include "screens/main/widgets/contestpanel.h"

#include "forms/accessible.h"
#include "forms/colours.h"
#include "forms/formbuilder.h"
#include "forms/readtable.h"
#include "k3y/standings.h"
#include "output/score/scoretext.h"
#include "shared/settings.h"
#include "shared/utctime.h"

#include <QHeaderView>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace vantrel {

namespace {

constexpr double totalPoints = 26;
constexpr const char* longestSum = "12000 QSOs x 150 S/P/C + 32000";
constexpr int barLines = 3;    // the bars are as high as so many lines of text
constexpr int betweenBars = 3; // pixels

// Of CallOnBand, in its order.
constexpr const char* onBandTexts[] = {"", "worked", "DUPE"};

} // namespace

void RateBars::setRate(const Rate& rate) {
    setAccessibleName(toQt(hourText(rate)));
    if (std::exchange(m_contacts, rate.perFiveMinutes) != rate.perFiveMinutes)
        update();
}

void RateBars::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const int highest = std::max(1, *std::ranges::max_element(m_contacts));
    const int ground = height() - 1;
    const QColor past = frameColour(palette());
    painter.setPen(past);
    painter.drawLine(0, ground, width(), ground);
    const int count = static_cast<int>(m_contacts.size());
    for (int i = 0; i < count; ++i) {
        const int left = width() * i / count;
        const int right = width() * (i + 1) / count - betweenBars;
        const int high = m_contacts[static_cast<std::size_t>(i)] * ground / highest;
        const QColor colour = i + 1 == count ? accentColour(palette()) : past;
        painter.fillRect(QRect(left, ground - high, right - left, high), colour);
    }
}

ContestPanel::ContestPanel(QWidget* parent) : QWidget(parent) {
    FormBuilder build(this);
    m_totalLabel = build.label("Label29");
    m_totalLabel->setFont(glanceFont(this, totalPoints, true));
    m_sumLabel = build.label("Label30");
    m_rateLabel = build.label("Label31");
    m_lastLabel = build.label("Label32");
    m_bars = FormBuilder::named(new RateBars(this), "Picture1");
    m_bars->setFixedHeight(fontMetrics().height() * barLines);
    setRole(m_bars, QAccessible::Graphic);
    m_bandTable = build.table("Table1", "BANDS");
    m_bandTable->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_bandTable->horizontalHeader()->setStretchLastSection(true);
    m_bandTable->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QLabel* fiveMinutes = build.caption("BY 5 MINUTES");
    for (QLabel* label : {fiveMinutes, m_lastLabel})
        setTextColour(label, dimmedColour);
    const Item gap = Item::gap(fontMetrics().height() / 2);
    page(this, {build.caption("TOTAL SCORE", m_totalLabel),
                m_totalLabel,
                m_sumLabel,
                gap,
                row({build.caption("LAST 10 MIN", m_rateLabel), Item::room(), m_rateLabel}),
                m_bars,
                row({fiveMinutes, Item::room(), m_lastLabel}),
                gap,
                {m_bandTable, 1}})
        ->setContentsMargins(0, 0, 0, 0);
    layout()->setSpacing(2);
    setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1String(longestSum)));
}

void ContestPanel::showScore(std::string_view total, std::string_view sum) {
    put(m_totalLabel, total);
    put(m_sumLabel, sum);
}

void ContestPanel::followLog(const Log& log, const OperatingSettings& settings,
                             const LogTally& score) {
    m_contactMinutes = contactMinutes(log.contacts());
    m_shownAt.reset();
    if (settings.isK3y() && !log.tooLong()) {
        const StandingsTotals totals = standingsTotals(log.contacts());
        showScore(totals.whole().text(), totals.text());
        return;
    }
    const Score now = score.tally().score();
    showScore(figureText(now.total), scoreSum(now));
}

void ContestPanel::followClock(const UtcTime& utc) {
    const std::optional<UtcMinute> now = readMinute(utc.date, utc.time);
    if (!now || m_shownAt == now)
        return;
    m_shownAt = now;
    const Rate rate = rateAt(m_contactMinutes, *now);
    put(m_rateLabel, rateText(rate));
    put(m_lastLabel, lastText(rate));
    m_bars->setRate(rate);
}

void ContestPanel::showBands(const BandTable& table) {
    m_bandTable->setHeadings(
        {{"BAND", "", Qt::AlignLeft}, {"QSOs"}, {table.call, "CALL " + table.call}});
    std::vector<std::vector<ReadTable::Cell>> rows;
    for (const BandRow& band : table.rows) {
        const std::string count = std::to_string(band.contacts);
        const std::string text(onBandTexts[static_cast<std::size_t>(band.onBand)]);
        const Colour colour = band.onBand == CallOnBand::dupe ? warningColour : nullptr;
        rows.push_back({{band.name, band.name, Qt::AlignLeft, band.present},
                        {band.contacts == 0 ? "-" : count, band.name + ' ' + count + " QSOs",
                         Qt::AlignRight, band.present},
                        {text, band.name + ' ' + (text.empty() ? "not worked" : text),
                         Qt::AlignRight, band.present, colour}});
    }
    m_bandTable->setRows(rows);
    const auto present = std::ranges::find(table.rows, true, &BandRow::present);
    if (present != table.rows.end()) // there may be no room for all
        m_bandTable->scrollToItem(
            m_bandTable->item(static_cast<int>(present - table.rows.begin()), 0));
}

} // namespace vantrel
