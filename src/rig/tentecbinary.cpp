// SPDX-License-Identifier: MIT
// Ten-Tec Omni VII and Jupiter: "?A" and CR is answered "A", four bytes of hertz, CR. Any of
// the four may be a CR too, so the answer is told by its length.
#include "rig/radiofamily.h"
#include "rig/reply.h"
#include "shared/settings.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr std::size_t answerSize = 6;

Heard hear(std::string_view bytes, std::string_view query) {
    if (bytes.starts_with(query)) // echoed; it holds an A, too
        bytes.remove_prefix(query.size());
    bytes.remove_prefix(std::min(bytes.find('A'), bytes.size()));
    if (bytes.size() < answerSize)
        return {};
    if (bytes[answerSize - 1] != '\r')
        return {true};
    return {true, mhzText(bigEndian(bytes, 1))};
}

} // namespace

const RadioFamily tenTecBinary{
    .settings = "57600,n,8,1",
    .takesBaud = false,
    .query = [](const OperatingSettings&) -> std::string { return "?A\r"; },
    .polls = 80'000,
    .milliseconds = 1500,
    .hear = hear,
    .message = "COM Port not read",
};

} // namespace vantrel
