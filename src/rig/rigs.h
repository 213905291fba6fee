// SPDX-License-Identifier: MIT
// The radios one can choose: one table for the start page's lists, the CAT link and CI-V.
#pragma once

#include <array>
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

} // namespace vantrel
