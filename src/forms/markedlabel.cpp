// SPDX-License-Identifier: MIT
#include "forms/markedlabel.h"

#include "forms/formbuilder.h"

#include <QPainter>

#include <utility>

namespace vantrel {

void MarkedLabel::setRuns(std::vector<Run> runs) {
    QString whole;
    for (const Run& run : runs)
        whole += run.text;
    m_runs = std::move(runs);
    setText(whole);
    update();
}

void MarkedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QRect rest = contentsRect();
    for (const Run& run : m_runs) {
        QFont shown = font();
        shown.setBold(run.marked);
        painter.setFont(shown);
        painter.setPen(run.marked ? warningColour(palette())
                                  : palette().color(QPalette::WindowText));
        painter.drawText(rest, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, run.text);
        rest.setLeft(rest.left() + QFontMetrics(shown).horizontalAdvance(run.text));
    }
}

} // namespace vantrel
