// SPDX-License-Identifier: MIT
// One style for all desktops, with frames that can be seen: rings of options, frames of boxes,
// buttons and sections, handles of scroll bars, and what has the focus, in light and in dark
// palettes. A text without room ends in "...", and the whole is its tool tip.
#pragma once

#include <QProxyStyle>

class QLineEdit;

namespace vantrel {

// An amber frame shows in the box while it holds nothing but blanks. Returns the box.
QLineEdit* required(QLineEdit* box);

class VisibleStyle : public QProxyStyle {
public:
    // Windows' own style puts a pale bar below a selected line's white text.
    VisibleStyle() : QProxyStyle(QStringLiteral("Fusion")) {}
    // The selected text of some desktops can hardly be read.
    void polish(QPalette& palette) override;
    void polish(QWidget* widget) override;
    using QProxyStyle::polish;
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text, QPalette::ColorRole role) const override;
    // A button is as wide as its text.
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

} // namespace vantrel
