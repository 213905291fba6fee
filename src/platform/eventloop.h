// SPDX-License-Identifier: MIT
// Keeping the window alive during long work and waits.
#pragma once

namespace vantrel {

class EventLoop {
public:
    virtual ~EventLoop() = default;
    // Lets the window paint and react; called more than once per display frame it costs next
    // to nothing.
    virtual void yield() = 0;
};

} // namespace vantrel
