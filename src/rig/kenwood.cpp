// SPDX-License-Identifier: MIT
// Kenwood TS-990S, TS-590S, TS-480S, TS-2000: "FA;" is answered "FA00014025000;".
#include "rig/radiofamily.h"
#include "rig/reply.h"
#include "shared/settings.h"

namespace vantrel {

const RadioFamily kenwood{
    .settings = ",n,8,1",
    .takesBaud = true,
    .rts = RtsLine::high, // it sends nothing while RTS is low
    .query = [](const OperatingSettings&) -> std::string { return "FA;"; },
    .polls = 500,
    .milliseconds = 1500,
    .hear = [](std::string_view bytes,
               std::string_view) { return heardFrequency(bytes, "FA", 11); },
    .message = "ERROR READING FREQUENCY FROM THE CAT PORT",
    .errorLead = "                       AN ERROR HAS OCCURED: ",
};

} // namespace vantrel
