// SPDX-License-Identifier: MIT
// The order in which one reads a page: Tab and a screen reader go the same way.
#pragma once

#include <QList>

class QWidget;

namespace vantrel {

// The widget's visible and hidden children as its layout has them: row by row, each from the
// left; those without a place in it come last.
QList<QWidget*> readingOrder(const QWidget* widget);

// Makes it the tab order of the whole window.
void tabInReadingOrder(QWidget* window);

} // namespace vantrel
