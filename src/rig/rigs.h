// SPDX-License-Identifier: MIT
// The table of the radios that can be chosen.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace vantrel {

struct RadioFamily;

struct Rig {
    std::string_view model; // as listed, and as the CAT link knows it
    const RadioFamily* family;
    std::string_view civAddress{}; // of an Icom, as the settings hold it: "Hex 6A"
    std::string_view savedName{};  // what the settings hold; empty: the model

    std::string_view savedAs() const { return savedName.empty() ? model : savedName; }
};

// In the order of the start page's list.
extern const std::array<Rig, 43> rigs;

// The family of a rig as the settings name it; nullptr for none.
const RadioFamily* familyOf(std::string_view rig);

// The start page's note about a rig as the settings name it: address, rate and the VFO that is read
// ("ADDRESS 6E, ANY BAUD, VFO IN USE"), or that it is not read. Empty for "None".
std::string rigNeeds(std::string_view rig);

// The CI-V address that the maker gives such a rig ("Hex 6E"); empty for none.
std::string_view usualCivAddress(std::string_view rig);

} // namespace vantrel
