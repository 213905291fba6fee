// SPDX-License-Identifier: MIT
// Ten-Tec, as its programmer's references tell. Orion: "?AF" and CR is answered "@AF14025000" and
// CR. Omni VII and Jupiter: "?A" and CR is answered "A", four bytes of hertz, CR.
#include "rig/radiofamily.h"
#include "shared/settings.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr std::size_t asciiSize = 12;
constexpr std::size_t binarySize = 6;

Reply asciiReply(std::string_view bytes, std::string_view) {
    bytes.remove_prefix(std::min(bytes.find_first_not_of("\r\n"), bytes.size()));
    if (bytes.size() < asciiSize)
        return {};
    return {true, hertzOfAnswer(bytes, "@AF", 8, '\r')};
}

// Any of the four bytes may be a CR too, so the answer is told by its length.
Reply binaryReply(std::string_view bytes, std::string_view query) {
    if (bytes.starts_with(query)) // echoed; it holds an A, too
        bytes.remove_prefix(query.size());
    bytes.remove_prefix(std::min(bytes.find('A'), bytes.size()));
    if (bytes.size() < binarySize)
        return {};
    if (bytes[binarySize - 1] != '\r')
        return {true};
    return {true, bigEndian(bytes, 1)};
}

} // namespace

const RadioFamily tenTecAscii{
    .settings = "57600,n,8,1",
    .query = [](const OperatingSettings&) -> std::string { return "?AF\r"; },
    .attempts = 5,
    .polls = 15'000,
    .milliseconds = 360, // the five together stay below two seconds
    .parseReply = asciiReply,
    .message = "A File Error has Occured - The freq was not read",
};

const RadioFamily tenTecBinary{
    .settings = "57600,n,8,1",
    .query = [](const OperatingSettings&) -> std::string { return "?A\r"; },
    .polls = 80'000,
    .parseReply = binaryReply,
    .message = "COM Port not read",
};

} // namespace vantrel
