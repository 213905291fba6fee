// SPDX-License-Identifier: MIT
// Ten-Tec Orion: "?AF" and CR is answered "@AF14025000" and CR. It is asked five times.
#include "rig/radiofamily.h"
#include "rig/reply.h"
#include "shared/settings.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr std::size_t answerSize = 12;

Heard hear(std::string_view bytes, std::string_view) {
    bytes.remove_prefix(std::min(bytes.find_first_not_of("\r\n"), bytes.size()));
    if (bytes.size() < answerSize)
        return {};
    return {true, mhzOfAnswer(bytes, "@AF", 8, '\r')};
}

} // namespace

const RadioFamily tenTecAscii{
    .settings = "57600,n,8,1",
    .takesBaud = false,
    .query = [](const OperatingSettings&) -> std::string { return "?AF\r"; },
    .attempts = 5,
    .polls = 15'000,
    .milliseconds = 360, // the five together stay below two seconds
    .hear = hear,
    .message = "A File Error has Occured - The freq was not read",
};

} // namespace vantrel
