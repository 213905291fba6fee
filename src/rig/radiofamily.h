// SPDX-License-Identifier: MIT
// What is said of a radio family, and the families there are. How they are spoken to is the
// same for all: catlink.cpp.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

struct OperatingSettings;

struct RadioFamily {
    // The port's settings: complete, or what follows the operator's baud rate.
    std::string_view settings;
    bool takesBaud;

    std::string (*query)(const OperatingSettings& settings);
    int settle = 0;   // milliseconds of quiet before the query; what comes then is discarded
    int attempts = 1; // how often the query is sent at most

    // The reply's polls: so many at most, over so many milliseconds (each attempt).
    int polls;
    int milliseconds;
    // True when all of the reply is in: nothing more is waited for.
    bool (*complete)(std::string_view reply);
    // The frequency in MHz with three decimals; nothing when this is no good reply.
    std::optional<std::string> (*parse)(std::string_view reply);

    std::string_view message;          // no good reply
    std::string_view refusedMessage{}; // the port is not there; empty: as `message`
    std::string_view errorMessage{};   // the port fails otherwise; empty: as `message`
    std::string_view errorLead{};      // stands before an error's text, where there is one
};

extern const RadioFamily tenTecAscii;
extern const RadioFamily tenTecBinary;
extern const RadioFamily elecraftK3;
extern const RadioFamily elecraftK2;
extern const RadioFamily icomCiv;
extern const RadioFamily yaesuAscii;
extern const RadioFamily yaesuBinary;
extern const RadioFamily kenwood;

} // namespace vantrel
