// SPDX-License-Identifier: MIT
// Finding a contact's band from a kHz field or from a frequency in MHz.
#include "log/bands.h"

#include <gtest/gtest.h>
#include <string>

namespace vantrel::test {
namespace {

std::string_view labelOf(const Band* band) {
    return band == nullptr ? "none" : band->label;
}

TEST(Bands, EachHasItsLabelAndTheSixOfTheSprintsTheirTextOfTenCharacters) {
    const struct {
        const char* khz;
        const char* mhz;
        const char* label;
        const char* text;
    } rows[] = {{" 1820", "1.820", "160M", "160 Meters"},
                {" 3550", "3.550", "80M", "80 Meters "},
                {" 7040", "7.040", "40M", "40 Meters "},
                {"10120", "10.120", "30M", "before"},
                {"14050", "14.", "20M", "20 Meters "},
                {"18080", "18.080", "17M", "before"},
                {"21050", "21", "15M", "15 Meters "},
                {"24910", "24.910", "12M", "before"},
                {"28050", "28.050", "10M", "10 Meters "},
                {"50100", "50.1", "none", "before"},
                {" 5330", " 7.040", "none", "before"},
                {"1", "7", "none", "before"},
                {"", "", "none", "before"}};
    for (const auto& row : rows) {
        EXPECT_EQ(labelOf(bandOfKhz(row.khz)), row.label) << row.khz;
        EXPECT_EQ(labelOf(bandOfMhz(row.mhz)), row.label) << row.mhz;
        EXPECT_EQ(bandTextOf(row.mhz, "before"), row.text) << row.mhz;
    }
}

} // namespace
} // namespace vantrel::test
