// SPDX-License-Identifier: MIT
// The codes of the states and provinces that operators send in the exchange.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace vantrel {

// The 48 adjoining states; Alaska and Hawaii are countries of their own on the air.
inline constexpr std::array<std::string_view, 48> adjoiningStateCodes{
    "AL", "AR", "AZ", "CA", "CO", "CT", "DE", "FL", "GA", "IA", "ID", "IL", "IN", "KS", "KY", "LA",
    "MA", "MD", "ME", "MI", "MN", "MO", "MS", "MT", "NC", "ND", "NE", "NH", "NJ", "NM", "NV", "NY",
    "OH", "OK", "OR", "PA", "RI", "SC", "SD", "TN", "TX", "UT", "VA", "VT", "WA", "WI", "WV", "WY"};

// Canada's provinces and territories, but for the Yukon: the European sprint counts it as a
// country of its own.
inline constexpr std::array<std::string_view, 12> canadianProvinceCodes{
    "AB", "BC", "MB", "NB", "NL", "NS", "NT", "NU", "ON", "PE", "QC", "SK"};

// Both lists are in alphabetical order.
inline bool isAdjoiningState(std::string_view code) {
    return std::ranges::binary_search(adjoiningStateCodes, code);
}
inline bool isCanadianProvince(std::string_view code) {
    return std::ranges::binary_search(canadianProvinceCodes, code);
}

} // namespace vantrel
