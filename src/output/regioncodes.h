// SPDX-License-Identifier: MIT
// The codes of the states and provinces that operators send in the exchange.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace vantrel {

// The 48 adjoining states; Alaska and Hawaii are countries of their own on the air.
inline constexpr std::array<std::string_view, 48> adjoiningStates{
    "AL", "AR", "AZ", "CA", "CO", "CT", "DE", "FL", "GA", "IA", "ID", "IL", "IN", "KS", "KY", "LA",
    "MA", "MD", "ME", "MI", "MN", "MO", "MS", "MT", "NC", "ND", "NE", "NH", "NJ", "NM", "NV", "NY",
    "OH", "OK", "OR", "PA", "RI", "SC", "SD", "TN", "TX", "UT", "VA", "VT", "WA", "WI", "WV", "WY"};

// Canada's provinces and territories, but for the Yukon: the score's country table has always
// gone without it.
inline constexpr std::array<std::string_view, 12> canadianProvinces{
    "AB", "BC", "MB", "NB", "NL", "NS", "NT", "NU", "ON", "PE", "QC", "SK"};

static_assert(std::is_sorted(adjoiningStates.begin(), adjoiningStates.end()));
static_assert(std::is_sorted(canadianProvinces.begin(), canadianProvinces.end()));

// True when the (sorted) codes hold the two letters.
template <typename Codes>
bool holdsCode(const Codes& codes, std::string_view code) {
    return std::binary_search(codes.begin(), codes.end(), code);
}

} // namespace vantrel
