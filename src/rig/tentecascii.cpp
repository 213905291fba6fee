// SPDX-License-Identifier: MIT
// Ten-Tec Orion: "?AF" and CR is answered "@AF14025000" and CR. It is asked five times.
#include "rig/radiofamily.h"
#include "rig/reply.h"
#include "shared/settings.h"

namespace vantrel {

const RadioFamily tenTecAscii{
    .settings = "57600,n,8,1",
    .takesBaud = false,
    .query = [](const OperatingSettings&) -> std::string { return "?AF\r"; },
    .attempts = 5,
    .polls = 15'000,
    .milliseconds = 360, // the five together stay below two seconds
    .complete = [](std::string_view reply) { return reply.size() >= 12; },
    .parse = [](std::string_view reply) { return mhzOfAnswer(reply, "@AF", 8, '\r'); },
    .message = "A File Error has Occured - The freq was not read",
};

} // namespace vantrel
