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
    std::string marker{noMarker}; // end-of-line marker of the contact being logged
    bool audioOn = false;         // duplicates sound the alarm
    std::string backupFolder{};   // of SEND BACKUP TO, for the run
    bool importRuns = false;      // of members, on either page
};

} // namespace vantrel
