// SPDX-License-Identifier: MIT
// The event station a contact is with: the tags that close its line and how the main page
// shows them.
#pragma once

#include "log/qsoline.h"

#include <array>
#include <string_view>

namespace vantrel {

struct K3yStation {
    std::string_view marker; // 6 columns, closes the lines logged from now on
    std::string_view label;  // 12 characters, the main page's tag label
    char letter;             // chooses it in the K3Y box
};

// What the main page shows while no tag is in force.
inline constexpr std::string_view noStationLabel = "   None     ";

// The seven choices of the K3Y box, in its order.
inline constexpr std::array<K3yStation, 7> k3yStations{{
    {"K3Y/EU", "-- K3Y/EU --", 'E'},
    {"K3Y/AF", "-- K3Y/AF --", 'F'},
    {"K3Y/AS", "-- K3Y/AS --", 'A'},
    {"K3Y/OC", "-- K3Y/OC --", 'O'},
    {"K3Y/NA", "-- K3Y/NA --", 'N'},
    {"K3Y/SA", "-- K3Y/SA --", 'S'},
    {noMarker, noStationLabel, 'X'},
}};

} // namespace vantrel
