// SPDX-License-Identifier: MIT
// The desktop's own style with frames that can be seen: rings of options, frames of boxes and
// sections, and the box that has the focus, in light and in dark palettes.
#pragma once

#include <QProxyStyle>

namespace vantrel {

class VisibleStyle : public QProxyStyle {
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

} // namespace vantrel
