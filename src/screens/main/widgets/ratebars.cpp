// SPDX-License-Identifier: MIT
#include "screens/main/widgets/ratebars.h"

#include "forms/accessible.h"
#include "forms/colours.h"
#include "platform/qt/latin1.h"

#include <QPainter>

#include <algorithm>

namespace vantrel {

namespace {
constexpr int linesHigh = 3;
constexpr int charactersWide = 26;
constexpr int gap = 3; // pixels between bars
} // namespace

RateBars::RateBars(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setRole(this, QAccessible::Graphic);
}

void RateBars::setRate(const Rate& rate) {
    setAccessibleName(toQt(hourText(rate)));
    if (m_rate.perFiveMinutes == rate.perFiveMinutes)
        return;
    m_rate = rate;
    update();
}

QSize RateBars::sizeHint() const {
    return {fontMetrics().averageCharWidth() * charactersWide, fontMetrics().height() * linesHigh};
}

// The five minutes that run now stand out.
void RateBars::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto& bars = m_rate.perFiveMinutes;
    const int highest = std::max(1, *std::max_element(bars.begin(), bars.end()));
    const int ground = height() - 1;
    const QColor past = frameColour(palette());
    painter.setPen(past);
    painter.drawLine(0, ground, width(), ground);
    const int count = static_cast<int>(bars.size());
    for (int i = 0; i < count; ++i) {
        const int left = width() * i / count;
        const int right = width() * (i + 1) / count - gap;
        const int high = bars[static_cast<std::size_t>(i)] * ground / highest;
        const QColor colour = i + 1 == count ? accentColour(palette()) : past;
        painter.fillRect(QRect(left, ground - high, right - left, high), colour);
    }
}

} // namespace vantrel
