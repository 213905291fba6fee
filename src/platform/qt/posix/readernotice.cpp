// SPDX-License-Identifier: MIT
#include "platform/qt/qtdevices.h"

#include <QLabel>

namespace vantrel {

// Readers speak a notification when it is shown.
void notifyReader(QLabel*, QLabel* notification) {
    notification->show();
}

} // namespace vantrel
