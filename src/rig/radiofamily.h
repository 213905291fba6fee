// SPDX-License-Identifier: MIT
// What is said of a radio family, and the families there are. How they are spoken to is the same
// for all: catlink.cpp.
#pragma once

#include "platform/platform.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

struct OperatingSettings;

struct Reply {
    bool complete = false;               // nothing more is waited for
    std::optional<std::int64_t> hertz{}; // nothing when it is not of the family's form
};

// What has come since the query went out.
struct Heard {
    std::string_view bytes;
    int sinceQuery; // milliseconds
    int quiet;      // milliseconds since the last byte
};

struct RadioFamily {
    // The port's settings: complete, or what follows the operator's baud rate.
    std::string_view settings;
    bool takesBaud = false;
    RtsLine rts = RtsLine::low;

    std::string (*query)(const OperatingSettings& settings);
    int quietMs = 0;  // before the query; what comes then is discarded
    int attempts = 1; // how often the query is sent at most

    // The reply's polls: so many at most, over so many milliseconds (each attempt).
    int polls;
    int milliseconds = 1500;
    // Finds the answer to `query` in all that came since.
    Reply (*parseReply)(std::string_view bytes, std::string_view query);
    // True when the query was lost on its way and now is the moment to send it once more.
    bool (*queryLost)(std::string_view query, const Heard& heard) = nullptr;
    // Why there was no frequency, in plain words, where the family knows more than others.
    std::string (*reason)(const OperatingSettings& settings, std::string_view bytes) = nullptr;

    std::string_view message;          // no good reply
    std::string_view refusedMessage{}; // the port is not there; empty: as `message`
    std::string_view errorMessage{};   // the port fails otherwise; empty: as `message`
    std::string_view errorLead{};      // stands before an error's text, where there is one

    // For the start page: which VFO is read, and the rate where it is the radio's to say.
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
