// SPDX-License-Identifier: MIT
// Yields to the window's event loop, at most once per display frame.
#pragma once

#include "platform/eventloop.h"

#include <QElapsedTimer>

namespace vantrel {

class QtEventLoop : public EventLoop {
public:
    void yield() override;

private:
    QElapsedTimer m_sinceLast;
};

} // namespace vantrel
