// SPDX-License-Identifier: MIT
// Yaesu FT-1000MP, as its CAT manual tells: asked for its status, it sends a block of 16 bytes
// without head or tail; bytes 1 to 4 (from 0) are the frequency in units of 0.625 Hz.
#include "rig/radiofamily.h"
#include "shared/settings.h"

namespace vantrel {

namespace {

constexpr std::size_t blockSize = 16;

Reply statusReply(std::string_view bytes, std::string_view query) {
    if (bytes.starts_with(query)) // echoed: as a block it would be a frequency below 1 kHz
        bytes.remove_prefix(query.size());
    if (bytes.size() < blockSize)
        return {};
    return {true, bigEndian(bytes, 1) * 10 / 16};
}

} // namespace

const RadioFamily yaesuBinary{
    .settings = ",n,8,2",
    .takesBaud = true,
    .rts = RtsLine::high, // it sends nothing while RTS is low
    .query = [](const OperatingSettings&) { return std::string("\x00\x00\x00\x02\x10", 5); },
    .polls = 16'000,
    .parseReply = statusReply,
    .message = " THE COM PORT HAS NOT BEEN READ  ",
    .vfo = "VFO IN USE",
    .rate = "4800 BAUD",
};

} // namespace vantrel
