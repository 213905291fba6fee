// SPDX-License-Identifier: MIT
// Radios that answer in plain bytes, the frequency as a number of four. Ten-Tec Omni VII and
// Jupiter, as the maker's programmer's reference tells: "?A" and CR is answered "A", the hertz, CR.
// Yaesu FT-1000MP, as its CAT manual tells: asked for its status, it sends a block of 16 bytes
// without head or tail, whose bytes 1 to 4 (from 0) count 0.625 Hz.
#include "rig/radiofamily.h"
#include "shared/settings.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr std::size_t tenTecSize = 6;
constexpr std::size_t statusSize = 16;

// Bytes 1 to 4, most significant first.
std::int64_t numberIn(std::string_view bytes) {
    std::int64_t value = 0;
    for (const char byte : bytes.substr(1, 4))
        value = value * 256 + static_cast<unsigned char>(byte);
    return value;
}

// Any of the four bytes may be a CR too, so the answer is told by its length.
Reply tenTecReply(std::string_view bytes, std::string_view query) {
    if (bytes.starts_with(query)) // echoed; it holds an A, too
        bytes.remove_prefix(query.size());
    bytes.remove_prefix(std::min(bytes.find('A'), bytes.size()));
    if (bytes.size() < tenTecSize)
        return {};
    if (bytes[tenTecSize - 1] != '\r')
        return {true};
    return {true, numberIn(bytes)};
}

Reply statusReply(std::string_view bytes, std::string_view query) {
    if (bytes.starts_with(query)) // echoed: as a block it would be a frequency below 1 kHz
        bytes.remove_prefix(query.size());
    if (bytes.size() < statusSize)
        return {};
    return {true, numberIn(bytes) * 10 / 16};
}

} // namespace

const RadioFamily tenTecBinary{
    .port = {57600, 1},
    .query = [](const OperatingSettings&) -> std::string { return "?A\r"; },
    .polls = 80'000,
    .parseReply = tenTecReply,
    .message = "COM Port not read",
};

const RadioFamily yaesuBinary{
    .port = {0, 2, RtsLine::high}, // it sends nothing while RTS is low
    .query = [](const OperatingSettings&) { return std::string("\x00\x00\x00\x02\x10", 5); },
    .polls = 16'000,
    .parseReply = statusReply,
    .message = " THE COM PORT HAS NOT BEEN READ  ",
    .vfo = "VFO IN USE",
    .rate = "4800 BAUD",
};

} // namespace vantrel
