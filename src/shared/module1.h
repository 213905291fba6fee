// SPDX-License-Identifier: MIT
// The shared state of all screens: one plain struct made in main and handed around.
#pragma once

#include "shared/boundedtable.h"
#include "shared/qsoline.h"
#include "shared/qsotable.h"
#include "shared/settings.h"
#include "shared/utctime.h"

#include <string>
#include <vector>

namespace vantrel {

// Which screen receives the path chosen in the file finder.
enum class FinderMode { none = 0, memberList = 1, backup = 2, start = 3 };

struct Module1 {
    static constexpr int workedCapacity = 1000;

    OperatingSettings settings;

    UtcTime utc;                  // of the contact being logged
    std::string marker{noMarker}; // end-of-line marker of the contact being logged
    std::string currentLine;      // the assembled log line
    bool dupeFlag = false;        // set by the dupe screen, cleared by the check action
    bool audioOn = false;         // duplicates sound the alarm
    QsoTable qsoTable;            // the log's contacts
    BoundedTable<std::string> workedStations{"the worked-stations list", workedCapacity};

    std::string frequency;              // last frequency read from the radio, MHz
    std::string bandText{"20 Meters "}; // ten characters

    std::string callArea;                     // "01".."09", "00", "KH" ... "OC"
    FinderMode finderMode = FinderMode::none; // who opened the finder
    std::string rosterFile;                   // the roster file last looked into
    std::string memberListPath;               // second member list: roster file last used
    std::vector<std::string> rosterLines;     // the roster file being viewed

    bool listShowsAdif = false;      // the list screen shows the ADIF file, not the log
    bool listFromFileScreen = false; // the list screen was opened from the file screen
};

} // namespace vantrel
