// SPDX-License-Identifier: MIT
// Yaesu FTdx-5000, FTdx-3000, FT-2000, FT-950, FT-450: "FA;" is answered "FA14025000;".
#include "rig/radiofamily.h"
#include "rig/reply.h"
#include "shared/settings.h"

namespace vantrel {

const RadioFamily yaesuAscii{
    .settings = ",n,8,2",
    .takesBaud = true,
    .rts = RtsLine::high, // it sends nothing while RTS is low
    .query = [](const OperatingSettings&) -> std::string { return "FA;"; },
    .polls = 500,
    .milliseconds = 1500,
    .hear = [](std::string_view bytes, std::string_view) { return heardFrequency(bytes, "FA", 8); },
    .message = "ERROR READING FREQUENCY FROM THE CAT PORT",
    .errorLead = "                       AN ERROR HAS OCCURED: ",
};

} // namespace vantrel
