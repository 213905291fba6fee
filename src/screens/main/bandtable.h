// SPDX-License-Identifier: MIT
// What was worked on which band, for the panel of the main page.
#pragma once

#include "log/log.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

enum class CallOnBand { notWorked, worked, dupe };

struct BandRow {
    std::string name;  // "160"
    int contacts;      // without duplicates
    bool present;      // the frequency box is on it
    CallOnBand onBand; // of the call being entered
};

struct BandTable {
    std::string call; // the one worked call that begins with what is typed; empty when not one
    std::vector<BandRow> rows;
};

// A row for each band that can be worked in this contest (allBands: those of the event) or was.
// bandTag: of the frequency in its box.
BandTable bandTable(const Contacts& contacts, std::string_view typed, std::string_view bandTag,
                    bool allBands);

} // namespace vantrel
