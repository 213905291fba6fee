// SPDX-License-Identifier: MIT
#include "rig/reply.h"

#include "base/fixedtext.h"

#include <algorithm>

namespace vantrel {

std::optional<std::string> mhzText(std::int64_t hertz) {
    const std::int64_t kilohertz = hertz / 1000;
    if (kilohertz < 1 || kilohertz >= 100'000)
        return std::nullopt;
    return std::to_string(kilohertz / 1000) + "." +
           zeroPadded(static_cast<int>(kilohertz % 1000), 3);
}

std::optional<std::string> mhzOfAnswer(std::string_view reply, std::string_view letters, int digits,
                                       char end) {
    const std::string_view hertz = mid(reply, length(letters) + 1, digits);
    const std::string_view closing = mid(reply, length(letters) + digits + 1, 1);
    const bool form = reply.starts_with(letters) && length(hertz) == digits &&
                      std::all_of(hertz.begin(), hertz.end(), isDigit) && closing.starts_with(end);
    return form ? mhzText(numericValue(hertz)) : std::nullopt;
}

std::int64_t bigEndian(std::string_view bytes, std::size_t first) {
    std::int64_t value = 0;
    for (std::size_t i = first; i < first + 4; ++i)
        value = value * 256 + static_cast<unsigned char>(bytes[i]);
    return value;
}

std::string_view fromAnswer(std::string_view bytes, std::string_view letters) {
    for (auto end = bytes.find(';'); end != std::string_view::npos;
         end = bytes.find(';', end + 1)) {
        // The last before the end: one in front of it was cut off.
        const auto begin = bytes.rfind(letters, end);
        if (begin != std::string_view::npos && isDigit(bytes[begin + letters.size()]))
            return bytes.substr(begin);
    }
    return {};
}

Heard heardFrequency(std::string_view bytes, std::string_view letters, int digits) {
    const std::string_view answer = fromAnswer(bytes, letters);
    if (answer.empty())
        return {};
    return {true, mhzOfAnswer(answer, letters, digits, ';')};
}

} // namespace vantrel
