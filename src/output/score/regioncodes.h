// SPDX-License-Identifier: MIT
// The codes of the states and provinces that operators send in the exchange.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace vantrel {

// The 48 adjoining states; Alaska and Hawaii are countries of their own on the air.
inline constexpr std::array<std::string_view, 48> adjoiningStateCodes{
    "AL", "AR", "AZ", "CA", "CO", "CT", "DE", "FL", "GA", "IA", "ID", "IL", "IN", "KS", "KY", "LA",
    "MA", "MD", "ME", "MI", "MN", "MO", "MS", "MT", "NC", "ND", "NE", "NH", "NJ", "NM", "NV", "NY",
    "OH", "OK", "OR", "PA", "RI", "SC", "SD", "TN", "TX", "UT", "VA", "VT", "WA", "WI", "WV", "WY"};

// Canada's provinces and territories, but for the Yukon: the score's country table has always
// gone without it.
inline constexpr std::array<std::string_view, 12> canadianProvinceCodes{
    "AB", "BC", "MB", "NB", "NL", "NS", "NT", "NU", "ON", "PE", "QC", "SK"};

// A set of two-letter codes that answers at once.
class CodeSet {
public:
    template <typename Codes>
    constexpr explicit CodeSet(const Codes& codes) {
        for (const std::string_view code : codes)
            m_held[indexOf(code)] = true;
    }
    constexpr bool holds(std::string_view code) const {
        return code.size() == 2 && isLetter(code[0]) && isLetter(code[1]) && m_held[indexOf(code)];
    }

private:
    static constexpr std::size_t letters = 26;
    static constexpr bool isLetter(char character) { return character >= 'A' && character <= 'Z'; }
    static constexpr std::size_t indexOf(std::string_view code) {
        return static_cast<std::size_t>(code[0] - 'A') * letters +
               static_cast<std::size_t>(code[1] - 'A');
    }

    std::array<bool, letters * letters> m_held{};
};

inline constexpr CodeSet adjoiningStates{adjoiningStateCodes};
inline constexpr CodeSet canadianProvinces{canadianProvinceCodes};

} // namespace vantrel
