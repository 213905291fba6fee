// SPDX-License-Identifier: MIT
// Yaesu FT-1000MP: asked for its status, it sends a block of 16 bytes without head or tail;
// bytes 1 to 4 (from 0) are the frequency in units of 0.625 Hz.
#include "rig/radiofamily.h"
#include "rig/reply.h"
#include "shared/settings.h"

namespace vantrel {

namespace {

constexpr std::size_t blockSize = 16;

std::optional<std::string> parse(std::string_view reply) {
    if (reply.size() < blockSize)
        return std::nullopt;
    return mhzText(bigEndian(reply, 1) * 10 / 16);
}

} // namespace

const RadioFamily yaesuBinary{
    .settings = ",n,8,2",
    .takesBaud = true,
    .query = [](const OperatingSettings&) { return std::string("\x00\x00\x00\x02\x10", 5); },
    .polls = 16'000,
    .milliseconds = 1500,
    .complete = [](std::string_view reply) { return reply.size() >= blockSize; },
    .parse = parse,
    .message = " THE COM PORT HAS NOT BEEN READ  ",
};

} // namespace vantrel
