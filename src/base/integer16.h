// SPDX-License-Identifier: MIT
// The checked 16-bit number that counters, scores and indexes are made of.
#pragma once

#include "base/runtimeerror.h"

#include <compare>
#include <cstdint>
#include <limits>
#include <string>

namespace vantrel {

// A signed 16-bit integer; any value beyond -32,768 .. 32,767 throws RuntimeError 6.
class Integer16 {
public:
    constexpr Integer16() = default;
    // Implicit on purpose: literals and sizes are assigned to counters everywhere.
    constexpr Integer16(long long value) : m_value(checked(value)) {}

    constexpr int value() const { return m_value; }
    std::string text() const { return std::to_string(m_value); }

    constexpr Integer16& operator+=(Integer16 other) { return *this = *this + other; }
    constexpr Integer16& operator-=(Integer16 other) { return *this = *this - other; }
    constexpr Integer16& operator++() { return *this += 1; }

    friend constexpr Integer16 operator+(Integer16 a, Integer16 b) { return wide(a) + wide(b); }
    friend constexpr Integer16 operator-(Integer16 a, Integer16 b) { return wide(a) - wide(b); }
    friend constexpr auto operator<=>(Integer16, Integer16) = default;

private:
    static constexpr long long wide(Integer16 number) { return number.m_value; }

    static constexpr std::int16_t checked(long long value) {
        if (value < std::numeric_limits<std::int16_t>::min() ||
            value > std::numeric_limits<std::int16_t>::max())
            throw RuntimeError(ErrorCode::overflow,
                               std::to_string(value) + " is beyond 16 bits (-32768 to 32767)");
        return static_cast<std::int16_t>(value);
    }

    std::int16_t m_value = 0;
};

} // namespace vantrel
