// SPDX-License-Identifier: MIT
// The PC's clock.
#pragma once

namespace vantrel {

struct LocalTime {
    int year = 0;   // four digits
    int month = 0;  // 1-12
    int day = 0;    // 1-31
    int hour = 0;   // 0-23
    int minute = 0; // 0-59
    int second = 0;
};

struct TimeOfDay {
    int hour = 0;   // 0-23
    int minute = 0; // 0-59
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual LocalTime now() const = 0;
    // What the machine takes for UTC, by the time zone that it is set to.
    virtual TimeOfDay utc() const = 0;
};

// The machine's clock in the machine's time zone.
class SystemClock : public Clock {
public:
    LocalTime now() const override;
    TimeOfDay utc() const override;
};

} // namespace vantrel
