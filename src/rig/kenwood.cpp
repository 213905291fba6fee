// SPDX-License-Identifier: MIT
// Kenwood TS-990S, TS-590S, TS-480S, TS-2000: "FA;" is answered "FA00014025000;".
#include "rig/radiofamily.h"
#include "rig/reply.h"
#include "shared/settings.h"

namespace vantrel {

const RadioFamily kenwood{
    .settings = ",n,8,1",
    .takesBaud = true,
    .query = [](const OperatingSettings&) -> std::string { return "FA;"; },
    .polls = 500,
    .milliseconds = 1500,
    .complete = hasSemicolon,
    .parse = [](std::string_view reply) { return mhzOfAnswer(reply, "FA", 11, ';'); },
    .message = "ERROR READING FREQUENCY FROM THE CAT PORT",
    .errorLead = "                       AN ERROR HAS OCCURED: ",
};

} // namespace vantrel
