// SPDX-License-Identifier: MIT
// The one band table: tags, labels, texts and default frequencies.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace vantrel {

struct Band {
    std::string_view bandTag;          // first two columns of the kHz field
    std::string_view mhzPrefix;        // first two characters of the frequency in MHz
    std::string_view label;            // "160M": grids, ADIF
    std::string_view text;             // main page, ten characters; empty: no sprint there
    std::string_view defaultFrequency; // MHz, for the band buttons; empty: no sprint there
};

// From the lowest frequency up.
inline constexpr std::array<Band, 9> bands{{
    {" 1", "1.", "160M", "160 Meters", "1.820"},
    {" 3", "3.", "80M", "80 Meters ", "3.550"},
    {" 7", "7.", "40M", "40 Meters ", "7.050"},
    {"10", "10", "30M", "", ""},
    {"14", "14", "20M", "20 Meters ", "14.050"},
    {"18", "18", "17M", "", ""},
    {"21", "21", "15M", "15 Meters ", "21.050"},
    {"24", "24", "12M", "", ""},
    {"28", "28", "10M", "10 Meters ", "28.050"},
}};

// The band of a kHz field (its first two columns decide) or of a frequency in MHz (its
// first two characters decide); nullptr for none.
const Band* bandOfKhz(std::string_view khzField);
const Band* bandOfMhz(std::string_view mhz);

// Whether a kHz field can be logged: on one of `bands`, on 60 m, anywhere in 10 m or 6 m.
bool isOnBand(std::string_view khzField);

// Index in `bands` of a kHz field's band; bands.size() for none.
std::size_t bandIndexOf(std::string_view khzField);
// "20M"; the field itself, trimmed, when it lies in no band.
std::string_view bandLabelOf(std::string_view khzField);

// The band text of a frequency in MHz; `otherwise` outside the six sprint bands.
std::string_view bandTextOf(std::string_view mhz, std::string_view otherwise);

} // namespace vantrel
