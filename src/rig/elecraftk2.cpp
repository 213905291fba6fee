// SPDX-License-Identifier: MIT
// Elecraft K2: four queries in one, which VFO transmits and what each is tuned to:
// "FT0;FA00014025000;FB00007025000;MD3;". Sending and answering take 150 ms at its 4,800 baud.
#include "rig/radiofamily.h"
#include "rig/reply.h"
#include "shared/settings.h"

namespace vantrel {

namespace {

// The frequency one transmits on is the one to log: VFO B when the radio transmits on B. What
// comes behind it is not waited for.
Heard hear(std::string_view bytes, std::string_view) {
    const std::string_view transmits = fromAnswer(bytes, "FT");
    if (transmits.empty())
        return {};
    if (transmits.starts_with("FT0;"))
        return heardFrequency(transmits, "FA", 11);
    if (transmits.starts_with("FT1;"))
        return heardFrequency(transmits, "FB", 11);
    return {true};
}

} // namespace

const RadioFamily elecraftK2{
    .settings = "4800,n,8,2",
    .takesBaud = false,
    .query = [](const OperatingSettings&) -> std::string { return "FT;FA;FB;MD;"; },
    .polls = 110'000 + 8'000,
    .milliseconds = 1500,
    .hear = hear,
    .message = " Com Port Not Read ",
    .vfo = "VFO IN USE",
};

} // namespace vantrel
