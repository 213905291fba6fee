// SPDX-License-Identifier: MIT
// Taking replies apart: what several radio families have in common.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

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

// True when the reply holds an answer that ends in a semicolon.
bool hasSemicolon(std::string_view reply);

} // namespace vantrel
