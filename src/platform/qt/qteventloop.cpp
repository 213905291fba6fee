// SPDX-License-Identifier: MIT
#include "platform/qt/qteventloop.h"

#include <QCoreApplication>

namespace vantrel {

namespace {
constexpr qint64 frameMilliseconds = 16;
} // namespace

void QtEventLoop::yield() {
    if (m_sinceLast.isValid() && m_sinceLast.elapsed() < frameMilliseconds)
        return;
    QCoreApplication::processEvents();
    m_sinceLast.start();
}

} // namespace vantrel
