// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"

namespace vantrel::test {

class FakeClock : public Clock {
public:
    LocalTime now() const override { return time; }
    LocalTime time{2011, 6, 16, 0, 12, 30};
};

} // namespace vantrel::test
