// SPDX-License-Identifier: MIT
// Reading the operating frequency from the radio that the settings name.
#pragma once

#include "platform/platform.h"

#include <string_view>

namespace vantrel {

class SerialPort;
struct OperatingSettings;

enum class ReadOutcome {
    noRadio,   // rig or port is "None": nothing was sent
    noReader,  // a rig is set that no radio family knows: nothing was sent
    read,      // `frequency` has it
    failed,    // show `message` and go on with the frequency in the box
    cancelled, // the program is being closed: leave the handler at once, show nothing
};

struct ReadResult {
    ReadOutcome outcome;
    std::string frequency{}; // MHz with three decimals ("14.020")
    Message message{};       // of a failed read; the port is closed already
};

// Reads the radio over the port of the settings, at most 2 s. Throws nothing of its own.
ReadResult readFrequency(const OperatingSettings& settings, SerialPort& port);

// The message of a failed read at LOG, with the frequency of the box that is logged instead.
Message withFrequencyUsed(Message message, std::string_view mhz);

// What the auto-read label shows after a read with this outcome.
std::string_view autoReadText(ReadOutcome outcome);

} // namespace vantrel
