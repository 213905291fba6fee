// SPDX-License-Identifier: MIT
// Radio families: radios that take the same query and answer in the same form. catlink.cpp speaks
// to all of them by these descriptions.
#pragma once

#include "platform/platform.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

struct OperatingSettings;

struct Reply {
    bool complete = false;               // no further bytes are waited for
    std::optional<std::int64_t> hertz{}; // nothing for a reply that is not in the family's form
};

// The bytes received since the query was sent.
struct Received {
    std::string_view bytes;
    int sinceQuery; // milliseconds
    int quiet;      // milliseconds since the last byte
};

struct RadioFamily {
    PortSettings port; // baud 0: the rate that the operator chose

    std::string (*query)(const OperatingSettings& settings);
    int quietMs = 0;  // waited before the query; what is received then is discarded
    int attempts = 1; // how often the query is sent at most

    // How often the port is asked for the reply at most, and in how many milliseconds (an attempt).
    int polls;
    int milliseconds = 1500;
    // Finds the answer to `query` in all bytes received since.
    Reply (*parseReply)(std::string_view bytes, std::string_view query);
    // True when another sender has spoilt the query and it can be sent again now.
    bool (*queryLost)(std::string_view query, const Received& received) = nullptr;
    // Why there was no frequency, in plain words; empty: the general words are used.
    std::string (*reason)(const OperatingSettings& settings, std::string_view bytes) = nullptr;

    std::string_view message;          // box text when there was no good reply
    std::string_view refusedMessage{}; // the port is not there; empty: as `message`
    std::string_view errorMessage{};   // the port fails otherwise; empty: as `message`
    std::string_view errorLead{};      // put before the reason

    // For the start page: which VFO is read, and which rate the radio takes.
    std::string_view vfo = "VFO A";
    std::string_view rate = "ANY BAUD";
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
