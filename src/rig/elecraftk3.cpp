// SPDX-License-Identifier: MIT
// Elecraft K3: "FA;" is answered "FA00014025000;", up to half a second later on a band change.
#include "rig/radiofamily.h"
#include "rig/reply.h"
#include "shared/settings.h"

namespace vantrel {

const RadioFamily elecraftK3{
    .settings = "38400,n,8,2",
    .takesBaud = false,
    .query = [](const OperatingSettings&) -> std::string { return "FA;"; },
    .polls = 500 + 10'000,
    .milliseconds = 1500,
    .hear = [](std::string_view bytes,
               std::string_view) { return heardFrequency(bytes, "FA", 11); },
    .message = " Com Port Not Read ",
};

} // namespace vantrel
