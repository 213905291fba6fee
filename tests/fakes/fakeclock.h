// SPDX-License-Identifier: MIT
#pragma once

#include "platform/platform.h"

#include <optional>

namespace vantrel::test {

class FakeClock : public Clock {
public:
    LocalTime now() const override { return time; }
    TimeOfDay utc() const override { return ownUtc.value_or(TimeOfDay{time.hour, time.minute}); }
    LocalTime time{2011, 6, 16, 0, 12, 30};
    std::optional<TimeOfDay> ownUtc; // without one the machine's zone is UTC
};

} // namespace vantrel::test
