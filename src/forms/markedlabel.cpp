// SPDX-License-Identifier: MIT
#include "forms/markedlabel.h"

#include "forms/colours.h"

#include <QPainter>

#include <utility>

namespace vantrel {

void MarkedLabel::setRuns(std::vector<Run> runs) {
    QString whole;
    for (const Run& run : runs)
        whole += run.text;
    m_runs = std::move(runs);
    setText(whole);
    updateGeometry();
    update();
}

QSize MarkedLabel::sizeHint() const {
    int width = 0;
    for (const Run& run : m_runs)
        width += widthOf(run);
    return {width, QLabel::sizeHint().height()};
}

QFont MarkedLabel::fontOf(const Run& run) const {
    QFont shown = font();
    shown.setBold(run.marked);
    return shown;
}

// One pixel more than the advance, which may have been rounded down.
int MarkedLabel::widthOf(const Run& run) const {
    return QFontMetrics(fontOf(run)).horizontalAdvance(run.text) + 1;
}

void MarkedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QRect rest = contentsRect();
    for (const Run& run : m_runs) {
        const QFont shown = fontOf(run);
        painter.setFont(shown);
        painter.setPen(run.marked ? warningColour(palette())
                                  : palette().color(QPalette::WindowText));
        const QFontMetrics metrics(shown);
        const QString text = metrics.elidedText(run.text, Qt::ElideRight, rest.width());
        painter.drawText(rest, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
        if (text != run.text)
            return;
        rest.setLeft(rest.left() + widthOf(run));
    }
}

} // namespace vantrel
