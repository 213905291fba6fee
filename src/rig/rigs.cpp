// SPDX-License-Identifier: MIT
#include "rig/rigs.h"

#include "rig/radiofamily.h"
#include "shared/settings.h"

#include <algorithm>

namespace vantrel {

const std::array<Rig, 43> rigs{{
    {"Orion", &tenTecAscii},
    {"Omni7", &tenTecBinary},
    {"Jupiter", &tenTecBinary},
    {"K-3", &elecraftK3},
    {"K-2", &elecraftK2},
    // Saved without the hyphen, as in all settings files before. No model has that name, so the two
    // are not read: their owners type the frequency.
    {"FTdx-5000", &yaesuAscii, "", "FTdx5000"},
    {"FTdx-3000", &yaesuAscii, "", "FTdx3000"},
    {"FT-2000", &yaesuAscii},
    {"FT-1000MP", &yaesuBinary},
    {"FT-950", &yaesuAscii},
    {"FT-450", &yaesuAscii},
    {"IC-7800", &icomCiv, "Hex 6A"},
    {"IC-7700", &icomCiv, "Hex 74"},
    {"IC-7600", &icomCiv, "Hex 7A"},
    {"IC-7400", &icomCiv, "Hex 66"},
    {"IC-7200", &icomCiv, "Hex 76"},
    {"IC-7000", &icomCiv, "Hex 70"},
    {"IC-790", &icomCiv, "Hex 2E"},
    {"IC-781", &icomCiv, "Hex 26"},
    {"IC-775", &icomCiv, "Hex 46"},
    {"IC-765", &icomCiv, "Hex 2C"},
    {"IC-761", &icomCiv, "Hex 1E"},
    {"IC-756Pro3", &icomCiv, "Hex 6E"},
    {"IC-756Pro2", &icomCiv, "Hex 64"},
    {"IC-756Pro", &icomCiv, "Hex 5C"},
    {"IC-756", &icomCiv, "Hex 50"},
    {"IC-751", &icomCiv, "Hex 1C"},
    {"IC-746Pro", &icomCiv, "Hex 66"},
    {"IC-746", &icomCiv, "Hex 56"},
    {"IC-736", &icomCiv, "Hex 40"},
    {"IC-735", &icomCiv, "Hex 04"},
    {"IC-729", &icomCiv, "Hex 3A"},
    {"IC-728", &icomCiv, "Hex 38"},
    {"IC-726", &icomCiv, "Hex 30"},
    {"IC-725", &icomCiv, "Hex 28"},
    {"IC-718", &icomCiv, "Hex 5E"},
    {"IC-706MKIIG", &icomCiv, "Hex 58"},
    {"IC-706", &icomCiv, "Hex 4E"},
    {"IC-703", &icomCiv, "Hex 68"},
    {"TS-990S", &kenwood},
    {"TS-590S", &kenwood},
    {"TS-480S", &kenwood},
    {"TS-2000", &kenwood},
}};

const RadioFamily* familyOf(std::string_view rig) {
    const auto* const found = std::ranges::find(rigs, rig, &Rig::model);
    if (found != rigs.end())
        return found->family;
    // Any name that begins "IC-7" is taken for an Icom, listed or not.
    return rig.starts_with("IC-7") ? &icomCiv : nullptr;
}

std::string_view usualCivAddress(std::string_view rig) {
    const auto* const found = std::ranges::find(rigs, rig, &Rig::savedAs);
    return found == rigs.end() ? std::string_view() : found->civAddress;
}

std::string rigNeeds(std::string_view rig) {
    if (rig == noneSetting)
        return {};
    const RadioFamily* const family = familyOf(rig);
    if (family == nullptr)
        return "THIS RADIO IS NOT READ: TYPE THE FREQUENCY";
    const std::string_view address = usualCivAddress(rig);
    std::string needs = address.empty() ? "" : "ADDRESS " + std::string(address.substr(4)) + ", ";
    const int fixed = family->port.baud;
    needs += fixed == 0 ? std::string(family->rate) : std::to_string(fixed) + " BAUD, FIXED";
    return needs + ", " + std::string(family->vfo);
}

} // namespace vantrel
