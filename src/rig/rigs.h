// SPDX-License-Identifier: MIT
// The radios one can choose: one table for the start page's lists, the CAT link and CI-V.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace vantrel {

struct RadioFamily;

struct Rig {
    std::string_view model;        // as listed, and as the CAT link knows it
    const RadioFamily* family;     // says whether the baud rate is fixed or chosen
    std::string_view civAddress{}; // of an Icom, as the settings hold it: "Hex 6A"
    std::string_view storedAs{};   // what the settings hold; empty: the model

    std::string_view stored() const { return storedAs.empty() ? model : storedAs; }
};

// In the order of the start page's list.
extern const std::array<Rig, 43> rigs;

// The family of a rig as the settings name it; nullptr for none.
const RadioFamily* familyOf(std::string_view rig);

// What the start page says of a rig as the settings name it: the rate and address it needs and
// which VFO is read ("ADDRESS 6E, ANY BAUD, VFO IN USE"), or that it is not read; "" for "None".
std::string rigNeeds(std::string_view rig);

// The address such a rig usually has ("Hex 6E"); "" for none.
std::string_view usualCivAddress(std::string_view rig);

} // namespace vantrel
