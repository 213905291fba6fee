// SPDX-License-Identifier: MIT
#include "forms/visiblestyle.h"

#include "forms/colours.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOption>
#include <QToolTip>

namespace vantrel {

namespace {

constexpr double corner = 2; // pixels of rounding
constexpr const char* requiredProperty = "required";
constexpr int flatMargin = 4;
constexpr int buttonMargin = 8;
constexpr int fewestCharacters = 9; // of a button, that one sees it as one

bool isFlat(const QStyleOption* option) {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::Flat);
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

bool isMissing(const QWidget* widget) {
    const auto* box = qobject_cast<const QLineEdit*>(widget);
    return box != nullptr && box->property(requiredProperty).isValid() &&
           box->text().trimmed().isEmpty();
}

// The tool tip of a label whose text has no room.
class WholeText : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* label = static_cast<const QLabel*>(watched);
        if (event->type() != QEvent::ToolTip || label->wordWrap() ||
            label->fontMetrics().size(0, label->text()).width() <= label->contentsRect().width())
            return QObject::eventFilter(watched, event);
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), label->text());
        return true;
    }
};

} // namespace

QLineEdit* required(QLineEdit* box) {
    box->setProperty(requiredProperty, true);
    QObject::connect(box, &QLineEdit::textChanged, box, [box] { box->update(); });
    return box;
}

void VisibleStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (qobject_cast<QLabel*>(widget) != nullptr)
        widget->installEventFilter(new WholeText(widget));
}

void VisibleStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                                const QPalette& palette, bool enabled, const QString& text,
                                QPalette::ColorRole role) const {
    // Blanks at the end need no room.
    QString seen = text;
    while (seen.endsWith(QLatin1Char(' ')))
        seen.chop(1);
    const bool hasLines = (flags & Qt::TextWordWrap) != 0 || text.contains(QLatin1Char('\n'));
    const QFontMetrics metrics = painter->fontMetrics();
    const bool fits = hasLines || metrics.size(flags, seen).width() <= rect.width();
    const QString shown =
        fits ? text : metrics.elidedText(seen, Qt::ElideRight, rect.width(), flags);
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, shown, role);
}

void VisibleStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    const QColor text = palette.color(QPalette::HighlightedText);
    palette.setColor(QPalette::HighlightedText, text); // in pages without the keyboard too
    palette.setColor(QPalette::Highlight,
                     standingOut(palette.color(QPalette::Highlight), text, textContrast));
}

QSize VisibleStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                     const QSize& contents, const QWidget* widget) const {
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type != CT_PushButton)
        return size;
    if (isFlat(option))
        return {contents.width() + 2 * flatMargin, size.height()};
    const int least = option->fontMetrics.averageCharWidth() * fewestCharacters;
    return {std::max(contents.width() + 2 * buttonMargin, least), size.height()};
}

// The ring of an option is as large as the letters beside it.
int VisibleStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    if (metric != PM_ExclusiveIndicatorWidth && metric != PM_ExclusiveIndicatorHeight)
        return usual;
    return std::max(usual, widget == nullptr ? 0 : widget->fontMetrics().ascent());
}

void VisibleStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_IndicatorRadioButton) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        // A dimmed option's ring stays as strong as the others.
        painter->setPen(QPen(frameColour(QApplication::palette()), 1));
        painter->setBrush(Qt::NoBrush);
        painter->drawEllipse(QRectF(option->rect).adjusted(1.5, 1.5, -1.5, -1.5));
        painter->restore();
    }
    const bool button = element == PE_PanelButtonCommand && option->state.testFlag(State_Enabled);
    if (element == PE_FrameLineEdit || button) {
        const bool focus = option->state.testFlag(State_HasFocus);
        drawFrame(*painter, option->rect,
                  focus ? accentColour(option->palette) : frameColour(option->palette),
                  focus ? 2 : 1);
        if (isMissing(widget)) // inside the frame that shows where the focus is
            drawFrame(*painter, option->rect.adjusted(2, 2, -2, -2), cautionColour(option->palette),
                      2);
    }
}

void VisibleStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar != nullptr && bar->maximum > bar->minimum)
        drawFrame(*painter, subControlRect(control, option, SC_ScrollBarSlider, widget),
                  frameColour(option->palette), 1);
}

void VisibleStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    if (element == CE_HeaderSection) // no frame around headings
        return;
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButtonBevel && isFlat(option) && option->state.testFlag(State_HasFocus))
        drawFrame(*painter, option->rect, accentColour(option->palette), 2);
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (element == CE_ShapedFrame && frame != nullptr && frame->frameShape == QFrame::StyledPanel)
        drawFrame(*painter, option->rect, frameColour(option->palette), 1);
}

} // namespace vantrel
