// SPDX-License-Identifier: MIT
#include "forms/stackedbars.h"

#include "forms/accessible.h"
#include "forms/colours.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <numeric>

namespace vantrel {

namespace {

// Of equal luminance: at least 3:1 against light and dark windows, and black text is readable on
// each.
constexpr std::array<QRgb, 10> seriesColors{0xFFAA6E61, 0xFF966ABE, 0xFF3A82BE, 0xFF118A96,
                                            0xFF279027, 0xFF818117, 0xFFC95E00, 0xFFD73CA8,
                                            0xFFD84D4D, 0xFF7D7D7D};
constexpr int rowsHigh = 9; // lines of text: title, legend, plot, labels
constexpr int fewestRowsHigh = 6;
constexpr int charactersWide = 60;
constexpr double barShare = 0.8; // of a bar's place; the rest parts it from the next
constexpr double gapShare = 0.6; // of a bar's place
constexpr int seam = 1;          // pixels of the window's colour between a bar's parts

int totalOf(const StackedBar& bar) {
    return std::accumulate(bar.parts.begin(), bar.parts.end(), 0);
}

} // namespace

StackedBars::StackedBars(QWidget* parent) : QWidget(parent) {
    setRole(this, QAccessible::Graphic);
}

void StackedBars::setBars(const QString& title, const std::vector<QString>& series,
                          const std::vector<StackedBar>& bars) {
    m_title = title;
    m_series = series;
    m_bars = bars;
    setAccessibleName(words());
    update();
}

// "CONTACTS PER HOUR (UTC): 00Z 12, 01Z 9".
QString StackedBars::words() const {
    QStringList bars;
    for (const StackedBar& bar : m_bars)
        bars += bar.label + QLatin1Char(' ') + QString::number(totalOf(bar));
    return m_title + QStringLiteral(": ") + bars.join(QStringLiteral(", "));
}

QSize StackedBars::sizeHint() const {
    return {fontMetrics().averageCharWidth() * charactersWide, fontMetrics().height() * rowsHigh};
}

QSize StackedBars::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * charactersWide / 2,
            fontMetrics().height() * fewestRowsHigh};
}

int StackedBars::highest() const {
    int highest = 1;
    for (const StackedBar& bar : m_bars)
        highest = std::max(highest, totalOf(bar));
    return highest;
}

int StackedBars::countOf(std::size_t series) const {
    int count = 0;
    for (const StackedBar& bar : m_bars)
        count += bar.parts.at(series);
    return count;
}

QColor StackedBars::colorOf(std::size_t series) {
    return QColor(seriesColors[series % seriesColors.size()]);
}

void StackedBars::paintEvent(QPaintEvent*) {
    if (m_bars.empty())
        return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const int row = fontMetrics().height();
    painter.drawText(QRect(0, 0, width(), row), Qt::AlignLeft, m_title);
    paintLegend(painter, row);
    const int scale = fontMetrics().horizontalAdvance(QString::number(highest())) + row / 2;
    const QRect plot(scale, row * 3, width() - scale, height() - row * 4 - row / 4);
    paintScale(painter, plot);
    paintBars(painter, plot);
}

// The series that have counts, each behind a square of its colour.
void StackedBars::paintLegend(QPainter& painter, int top) const {
    const int square = fontMetrics().ascent() * 3 / 4;
    int x = 0;
    for (std::size_t i = 0; i < m_series.size(); ++i) {
        if (countOf(i) == 0)
            continue;
        const int baseline = top + fontMetrics().ascent();
        painter.fillRect(x, baseline - square, square, square, colorOf(i));
        painter.drawText(x + square * 3 / 2, baseline, m_series[i]);
        x += square * 3 + fontMetrics().horizontalAdvance(m_series[i]);
    }
}

// The base line, and a line at the height of the highest bar with its count.
void StackedBars::paintScale(QPainter& painter, const QRect& plot) const {
    painter.save();
    painter.setPen(frameColour(palette()));
    painter.drawLine(plot.left(), plot.top(), plot.right(), plot.top());
    painter.drawLine(plot.left(), plot.bottom() + 1, plot.right(), plot.bottom() + 1);
    painter.restore();
    const int row = fontMetrics().height();
    painter.drawText(QRect(0, plot.top() - row / 2, plot.left() - row / 4, row), Qt::AlignRight,
                     QString::number(highest()));
}

void StackedBars::paintBars(QPainter& painter, const QRect& plot) const {
    double places = 0;
    int widestLabel = 1;
    for (const StackedBar& bar : m_bars) {
        places += bar.afterGap ? 1 + gapShare : 1;
        widestLabel = std::max(widestLabel, fontMetrics().horizontalAdvance(bar.label));
    }
    const int space = fontMetrics().averageCharWidth();
    const double place = std::min(plot.width() / places, 4.0 * fontMetrics().height());
    // Where labels would touch, only as many are written as have room.
    const auto everyLabel = static_cast<std::size_t>((widestLabel + space) / place) + 1;
    double x = plot.left() + (plot.width() - place * (places - 1 + barShare)) / 2;
    for (std::size_t i = 0; i < m_bars.size(); ++i) {
        x += m_bars[i].afterGap ? place * gapShare : 0;
        const QRectF column(x, plot.top(), place * barShare, plot.height());
        paintBar(painter, column, m_bars[i]);
        const QRectF label(column.center().x() - widestLabel, plot.bottom() + 2, 2.0 * widestLabel,
                           fontMetrics().height());
        if (i % everyLabel == 0)
            painter.drawText(label, Qt::AlignHCenter, m_bars[i].label);
        x += place;
    }
}

void StackedBars::paintBar(QPainter& painter, const QRectF& column, const StackedBar& bar) const {
    const double unit = column.height() / highest();
    double bottom = column.bottom();
    for (std::size_t i = 0; i < bar.parts.size(); ++i) {
        const double part = unit * bar.parts[i];
        paintPart(painter, QRectF(column.left(), bottom - part, column.width(), part), i);
        bottom -= part;
    }
    const QString total = QString::number(totalOf(bar));
    if (fontMetrics().horizontalAdvance(total) > column.width())
        return;
    const QRectF above(column.left(), bottom - fontMetrics().height(), column.width(),
                       fontMetrics().height());
    painter.drawText(above, Qt::AlignHCenter, total);
}

// With the band's name in it where there is room: not everybody can tell the colours apart.
void StackedBars::paintPart(QPainter& painter, const QRectF& part, std::size_t series) const {
    QRect solid = part.toRect(); // whole pixels: a half covered one would have a paler colour
    solid.setTop(solid.top() + (solid.height() > 2 * seam ? seam : 0));
    painter.fillRect(solid, colorOf(series));
    const QString& name = m_series[series];
    if (part.height() < fontMetrics().height() ||
        part.width() < fontMetrics().horizontalAdvance(name))
        return;
    painter.save();
    painter.setPen(Qt::black);
    painter.drawText(part, Qt::AlignCenter, name);
    painter.restore();
}

} // namespace vantrel
