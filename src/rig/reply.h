// SPDX-License-Identifier: MIT
// Taking replies apart: what several radio families have in common.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

// What has been heard since the query went out.
struct Heard {
    bool answered = false;            // the answer is in: nothing more is waited for
    std::optional<std::string> mhz{}; // with three decimals; nothing when the answer is no good
};

// "14.020": MHz with three decimals, cut (not rounded) below a kilohertz. Nothing below 1 kHz
// or from 100 MHz up: no frequency that belongs into this log.
std::optional<std::string> mhzText(std::int64_t hertz);

// The frequency of an answer that begins with `letters`, then so many digits of hertz, then
// `end`; nothing when it has another form.
std::optional<std::string> mhzOfAnswer(std::string_view reply, std::string_view letters, int digits,
                                       char end);

// Four bytes as a number, most significant first. `first`: index of the first, which must
// have three more behind it.
std::int64_t bigEndian(std::string_view bytes, std::size_t first);

// From the first answer that begins with `letters` and a digit and ends in a semicolon; empty
// while it is not in. What a radio, its cable or the last read leave in front of it is passed
// over: the query echoed, "?;", reports nobody asked for, the tail of an answer.
std::string_view fromAnswer(std::string_view bytes, std::string_view letters);

// That answer when it is a frequency of so many digits.
Heard heardFrequency(std::string_view bytes, std::string_view letters, int digits);

} // namespace vantrel
