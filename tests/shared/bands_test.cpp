// SPDX-License-Identifier: MIT
// Finding a contact's band from a kHz field or from a frequency in MHz.
#include "shared/bands.h"

#include <gtest/gtest.h>
#include <string>

namespace vantrel::test {
namespace {

std::string_view labelOf(const Band* band) {
    return band == nullptr ? "none" : band->label;
}

TEST(Bands, KhzFieldAndMhzTextAgree) {
    const struct {
        const char* khz;
        const char* mhz;
        const char* label;
    } rows[] = {{" 1820", "1.820", "160M"}, {" 3550", "3.550", "80M"},  {" 7040", "7.040", "40M"},
                {"10120", "10.120", "30M"}, {"14050", "14.", "20M"},    {"18080", "18.080", "17M"},
                {"21050", "21", "15M"},     {"24910", "24.910", "12M"}, {"28050", "28.050", "10M"}};
    for (const auto& row : rows) {
        EXPECT_EQ(labelOf(bandOfKhz(row.khz)), row.label) << row.khz;
        EXPECT_EQ(labelOf(bandOfMhz(row.mhz)), row.label) << row.mhz;
    }
}

TEST(Bands, OtherFrequenciesHaveNone) {
    for (const char* khz : {"", "1", " ", "50100", " 5330"})
        EXPECT_EQ(bandOfKhz(khz), nullptr) << khz;
    for (const char* mhz : {"", "1", "7", "50.1", "5.330", " 7.040"})
        EXPECT_EQ(bandOfMhz(mhz), nullptr) << mhz;
}

TEST(Bands, TextIsTenCharactersInTheSixSprintBandsAlone) {
    EXPECT_EQ(bandTextOf("1.820", "?"), "160 Meters");
    EXPECT_EQ(bandTextOf("7.040", "?"), "40 Meters ");
    for (const char* mhz : {"10.120", "18.080", "24.910", "50.1", ""})
        EXPECT_EQ(bandTextOf(mhz, "?"), "?") << mhz;
}

} // namespace
} // namespace vantrel::test
