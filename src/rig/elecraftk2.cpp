// SPDX-License-Identifier: MIT
// Elecraft K2: four queries in one, which VFO transmits and what each is tuned to:
// "FT0;FA00014025000;FB00007025000;MD3;". Sending and answering take 150 ms at its 4,800 baud.
#include "base/fixedtext.h"
#include "rig/radiofamily.h"
#include "rig/reply.h"
#include "shared/settings.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr int answers = 4;
constexpr int vfoAColumn = 5;
constexpr int vfoBColumn = 19;

bool allAnswered(std::string_view reply) {
    return std::count(reply.begin(), reply.end(), ';') >= answers;
}

// The frequency one transmits on is the one to log: VFO B when the radio transmits on B.
std::optional<std::string> parse(std::string_view reply) {
    if (reply.starts_with("FT0;"))
        return mhzOfAnswer(midToEnd(reply, vfoAColumn), "FA", 11, ';');
    if (reply.starts_with("FT1;"))
        return mhzOfAnswer(midToEnd(reply, vfoBColumn), "FB", 11, ';');
    return std::nullopt;
}

} // namespace

const RadioFamily elecraftK2{
    .settings = "4800,n,8,2",
    .takesBaud = false,
    .query = [](const OperatingSettings&) -> std::string { return "FT;FA;FB;MD;"; },
    .polls = 110'000 + 8'000,
    .milliseconds = 1500,
    .complete = allAnswered,
    .parse = parse,
    .message = " Com Port Not Read ",
};

} // namespace vantrel
