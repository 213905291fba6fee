// SPDX-License-Identifier: MIT
// The K3Y event's stations: the tag that closes a contact's line, and the call areas.
#pragma once

#include "log/qsoline.h"

#include <array>
#include <string_view>

namespace vantrel {

struct K3yStation {
    std::string_view marker; // 6 columns, closes the lines logged from now on
    std::string_view label;  // 12 characters, the main page's tag label
    std::string_view letter; // chooses it in the K3Y box
};

// What the main page shows while no tag is in force.
inline constexpr std::string_view noStationLabel = "   None     ";

// The seven choices of the K3Y box, in its order.
inline constexpr std::array<K3yStation, 7> k3yStations{{
    {"K3Y/EU", "-- K3Y/EU --", "E"},
    {"K3Y/AF", "-- K3Y/AF --", "F"},
    {"K3Y/AS", "-- K3Y/AS --", "A"},
    {"K3Y/OC", "-- K3Y/OC --", "O"},
    {"K3Y/NA", "-- K3Y/NA --", "N"},
    {"K3Y/SA", "-- K3Y/SA --", "S"},
    {noMarker, noStationLabel, "X"},
}};

struct CallArea {
    std::string_view item; // as listed
    std::string_view code;
};

// In the list's order: area zero stands last of the numbered ones.
inline constexpr std::array<CallArea, 19> callAreas{{
    {"USA         01", "01"},   {"USA         02", "02"},    {"USA         03", "03"},
    {"USA         04", "04"},   {"USA         05", "05"},    {"USA         06", "06"},
    {"USA         07", "07"},   {"USA         08", "08"},    {"USA         09", "09"},
    {"USA         00", "00"},   {"KH6          KH", "KH"},   {"KL7           KL", "KL"},
    {"KP4           KP", "KP"}, {"N. AM (Not W)  NA", "NA"}, {"South AM   SA", "SA"},
    {"Europe       EU", "EU"},  {"Africa         AF", "AF"}, {"Asia            AS", "AS"},
    {"Oceania\t   OC", "OC"},
}};

} // namespace vantrel
