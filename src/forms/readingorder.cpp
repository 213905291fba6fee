// SPDX-License-Identifier: MIT
#include "forms/readingorder.h"

#include <QGridLayout>
#include <QWidget>

namespace vantrel {

namespace {

void addWidgetsOf(QLayoutItem* item, QList<QWidget*>& order);

// itemAt() of a grid counts items in the order in which they were added, not by place.
void addWidgetsOf(const QGridLayout& grid, QList<QWidget*>& order) {
    for (int row = 0; row < grid.rowCount(); ++row)
        for (int column = 0; column < grid.columnCount(); ++column)
            addWidgetsOf(grid.itemAtPosition(row, column), order);
}

void addWidgetsOf(QLayoutItem* item, QList<QWidget*>& order) {
    if (item == nullptr)
        return;
    if (QWidget* widget = item->widget(); widget != nullptr && !order.contains(widget))
        order.append(widget); // once, however many cells it fills
    QLayout* layout = item->layout();
    if (layout == nullptr)
        return;
    if (const auto* grid = qobject_cast<QGridLayout*>(layout))
        return addWidgetsOf(*grid, order);
    for (int i = 0; i < layout->count(); ++i)
        addWidgetsOf(layout->itemAt(i), order);
}

QWidget* chainedBehind(QWidget* last, const QWidget* container) {
    for (QWidget* widget : readingOrder(container)) {
        if (widget->focusPolicy() != Qt::NoFocus) {
            if (last != nullptr)
                QWidget::setTabOrder(last, widget);
            last = widget;
        } else {
            last = chainedBehind(last, widget);
        }
    }
    return last;
}

} // namespace

QList<QWidget*> readingOrder(const QWidget* widget) {
    QList<QWidget*> order;
    addWidgetsOf(widget->layout(), order);
    for (QObject* child : widget->children()) {
        auto* other = qobject_cast<QWidget*>(child);
        if (other != nullptr && !other->isWindow() && !order.contains(other))
            order.append(other);
    }
    return order;
}

void tabInReadingOrder(QWidget* window) {
    chainedBehind(nullptr, window);
}

} // namespace vantrel
