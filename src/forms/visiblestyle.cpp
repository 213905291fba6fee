// SPDX-License-Identifier: MIT
#include "forms/visiblestyle.h"

#include "forms/formbuilder.h"

#include <QPainter>
#include <QStyleOption>

namespace vantrel {

namespace {

constexpr double corner = 2; // pixels of rounding

// Three times as light or as dark as the window at least.
QColor frameColour(const QPalette& palette) {
    const QColor text = palette.color(QPalette::WindowText);
    const QColor ground = palette.color(QPalette::Window);
    const auto between = [](int a, int b) { return (a + b) / 2; };
    return QColor(between(text.red(), ground.red()), between(text.green(), ground.green()),
                  between(text.blue(), ground.blue()));
}

void drawFrame(QPainter& painter, const QRect& rect, const QColor& colour, int width) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, width));
    painter.setBrush(Qt::NoBrush);
    const double inset = width / 2.0;
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), corner, corner);
    painter.restore();
}

} // namespace

void VisibleStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_IndicatorRadioButton) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(frameColour(option->palette), 1));
        painter->setBrush(Qt::NoBrush);
        painter->drawEllipse(QRectF(option->rect).adjusted(1, 1, -1, -1));
        painter->restore();
    }
    if (element == PE_FrameLineEdit) {
        const bool focus = option->state.testFlag(State_HasFocus);
        drawFrame(*painter, option->rect,
                  focus ? accentColour(option->palette) : frameColour(option->palette),
                  focus ? 2 : 1);
    }
}

void VisibleStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawControl(element, option, painter, widget);
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (element == CE_ShapedFrame && frame != nullptr && frame->frameShape == QFrame::StyledPanel)
        drawFrame(*painter, option->rect, frameColour(option->palette), 1);
}

} // namespace vantrel
