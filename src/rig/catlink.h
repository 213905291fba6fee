// SPDX-License-Identifier: MIT
// Reading the operating frequency from the radio that the settings name.
#pragma once

#include "platform/messages.h"

#include <string_view>

namespace vantrel {

class SerialPort;
struct Module1;

enum class ReadOutcome {
    noRadio,   // rig or port is "None": nothing was sent
    noReader,  // a rig is set that no radio family knows: nothing was sent
    read,      // Module1 has the new frequency and band text
    failed,    // show `message` and go on with the frequency in the box
    cancelled, // the program is being closed: leave the handler at once, show nothing
};

struct ReadResult {
    ReadOutcome outcome;
    Message message{}; // of a failed read; the port is closed already
};

// Reads the radio over the port of the settings, at most 2 s. Sets `frequency` ("14.020",
// always three decimals) and `bandText` (as it was outside the six sprint bands) of `module`
// on success and nothing otherwise. Throws nothing of its own.
ReadResult readFrequency(Module1& module, SerialPort& port);

// What the auto-read label shows after a read with this outcome.
std::string_view autoReadText(ReadOutcome outcome);

} // namespace vantrel
