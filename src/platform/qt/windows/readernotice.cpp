// SPDX-License-Identifier: MIT
#include "platform/qt/qtdevices.h"

#include <QAccessible>
#include <QLabel>

namespace vantrel {

// Of all that Qt could tell, it passes on as a notification only that a value has changed.
void notifyReader(QLabel* alert, QLabel* notification) {
    QAccessibleValueChangeEvent said(alert, notification->text());
    QAccessible::updateAccessibility(&said);
}

} // namespace vantrel
