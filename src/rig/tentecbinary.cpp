// SPDX-License-Identifier: MIT
// Ten-Tec Omni VII and Jupiter: "?A" and CR is answered "A", four bytes of hertz, CR. Any of
// the four may be a CR too, so the reply is told by its length.
#include "rig/radiofamily.h"
#include "rig/reply.h"
#include "shared/settings.h"

namespace vantrel {

namespace {

constexpr std::size_t replySize = 6;

std::optional<std::string> parse(std::string_view reply) {
    if (reply.size() < replySize || reply[0] != 'A' || reply[5] != '\r')
        return std::nullopt;
    return mhzText(bigEndian(reply, 1));
}

} // namespace

const RadioFamily tenTecBinary{
    .settings = "57600,n,8,1",
    .takesBaud = false,
    .query = [](const OperatingSettings&) -> std::string { return "?A\r"; },
    .polls = 80'000,
    .milliseconds = 1500,
    .complete = [](std::string_view reply) { return reply.size() >= replySize; },
    .parse = parse,
    .message = "COM Port not read",
};

} // namespace vantrel
