// SPDX-License-Identifier: MIT
// A small picture of stacked bars with a legend, drawn in the palette's colours.
#pragma once

#include <QWidget>

#include <vector>

namespace vantrel {

// One bar: its parts from the bottom up, as many as the picture has series.
struct StackedBar {
    QString label;
    std::vector<int> parts;
    bool afterGap; // a gap before it: time without contacts was left out
};

class StackedBars : public QWidget {
    Q_OBJECT

public:
    explicit StackedBars(QWidget* parent);

    // series: the parts' names, in the order of the bars' parts. Series without any count are
    // not in the legend.
    void setBars(const QString& title, const std::vector<QString>& series,
                 const std::vector<StackedBar>& bars);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString words() const;
    int highest() const;
    int countOf(std::size_t series) const;
    static QColor colorOf(std::size_t series);
    void paintLegend(QPainter& painter, int top) const;
    void paintScale(QPainter& painter, const QRect& plot) const;
    void paintBars(QPainter& painter, const QRect& plot) const;
    void paintBar(QPainter& painter, const QRectF& column, const StackedBar& bar) const;
    void paintPart(QPainter& painter, const QRectF& part, std::size_t series) const;

    QString m_title;
    std::vector<QString> m_series;
    std::vector<StackedBar> m_bars;
};

} // namespace vantrel
