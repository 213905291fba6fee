// SPDX-License-Identifier: MIT
// The state that all screens share: made in main and handed on by reference.
#pragma once

#include "log/log.h"
#include "log/qsoline.h"
#include "shared/settings.h"

#include <string>

namespace vantrel {

struct Module1 {
    explicit Module1(Files& files) : log(files) {}

    OperatingSettings settings;
    Log log;
    std::string marker{noMarker}; // the K3Y tag chosen; six blanks without one
    bool audioOn = false;         // a duplicate sounds the alarm
    std::string backupFolder{};   // last one typed at SEND BACKUP TO; not saved
    bool importRuns = false;      // one of the two member imports is running
};

} // namespace vantrel
