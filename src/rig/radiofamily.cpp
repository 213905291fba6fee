// SPDX-License-Identifier: MIT
#include "rig/radiofamily.h"

#include "base/fixedtext.h"

#include <algorithm>

namespace vantrel {

std::optional<std::int64_t> hertzOfAnswer(std::string_view reply, std::string_view letters,
                                          int digits, char end) {
    const std::string_view hertz = mid(reply, length(letters) + 1, digits);
    const std::string_view closing = mid(reply, length(letters) + digits + 1, 1);
    const bool form = reply.starts_with(letters) && length(hertz) == digits &&
                      std::all_of(hertz.begin(), hertz.end(), isDigit) && closing.starts_with(end);
    if (!form)
        return std::nullopt;
    return numericValue(hertz);
}

std::int64_t bigEndian(std::string_view bytes, std::size_t first) {
    std::int64_t value = 0;
    for (std::size_t i = first; i < first + 4; ++i)
        value = value * 256 + static_cast<unsigned char>(bytes[i]);
    return value;
}

} // namespace vantrel
