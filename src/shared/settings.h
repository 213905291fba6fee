// SPDX-License-Identifier: MIT
// The operating settings and their file "Vantrel.CFG".
#pragma once

#include "platform/programfolder.h"

#include <string>
#include <string_view>

namespace vantrel {

class Files;

inline constexpr std::string_view contestSks = "SKS";
inline constexpr std::string_view contestSkse = "SKSE";
inline constexpr std::string_view contestWes = "WES";
inline constexpr std::string_view contestK3y = "K3Y";
// What a rig, port, baud or CI-V setting holds when there is none.
inline constexpr std::string_view noneSetting = "None";

// The 14 settings, in the order of the file's lines. Fixed-width values are padded by
// storedSettings() and come back from the file without their padding.
struct OperatingSettings {
    std::string myCall{};
    std::string contestCode{contestSks}; // "SKS", "SKSE", "WES", "K3Y"
    std::string gmtOffset{"0"};          // "-12" .. "12": hours added to local time
    std::string civAddress{noneSetting}; // "None" or "Hex 6A"
    std::string myName{};                // 10
    std::string myState{};               // 3
    std::string myNumber{};              // 6
    std::string rig{noneSetting};
    std::string comPort{noneSetting}; // "None" or "com1" .. "com10"
    std::string baud{noneSetting};
    std::string contestText{contestSks};
    std::string logFileName{};
    std::string bonusStation{}; // 10, ten blanks for none
    std::string dupeMode{"NO"}; // "YES": duplicates are logged and marked

    // Not saved: which device the port was at START, as SerialPort::device says it.
    std::string portDevice{};

    bool logsDupes() const { return dupeMode == "YES"; }
    // True when the contest's code or its text is the event's.
    bool isK3y() const { return contestCode == contestK3y || contestText == contestK3y; }
    bool hasRadio() const { return rig != noneSetting && comPort != noneSetting; }
};

// The settings as START stores them, from what its boxes hold: upper-cased, trimmed, padded
// to their widths; commas, double quotes and control characters become blanks. Throws
// RuntimeError 5 naming the field when a call, name, state, number or bonus station is longer than
// its width.
OperatingSettings storedSettings(const OperatingSettings& typed);

// Writes the 14 lines, each value as it stands, durably. Throws as Files::rewrite.
void saveSettings(Files& files, const OperatingSettings& settings);

// Reads the 14 values; a missing file gives the defaults. Throws RuntimeError 62 naming the
// file and the line where a value is missing, and as Files::read.
OperatingSettings loadSettings(const Files& files);

} // namespace vantrel
