// SPDX-License-Identifier: MIT
#pragma once

#include "platform/platform.h"

#include <optional>

namespace vantrel::test {

class FakeClock : public Clock {
public:
    LocalTime now() const override { return time; }
    int utc() const override { return ownUtc.value_or(time.hour * 60 + time.minute); }
    LocalTime time{2011, 6, 16, 0, 12, 30};
    std::optional<int> ownUtc; // without one the machine's zone is UTC
};

} // namespace vantrel::test
