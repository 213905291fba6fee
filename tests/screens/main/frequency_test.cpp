// SPDX-License-Identifier: MIT
#include "screens/main/frequency.h"

#include <gtest/gtest.h>
#include <vector>

namespace vantrel::test {
namespace {

struct Row {
    const char* typed;
    const char* expected;
};

void expectEach(std::string (*rule)(std::string_view), const std::vector<Row>& rows) {
    for (const Row& row : rows)
        EXPECT_EQ(rule(row.typed), row.expected) << '"' << row.typed << '"';
}

TEST(FrequencyBox, TypedKilohertzAndShortDecimalsBecomeMegahertz) {
    expectEach(frequencyAsEntered, {{"1820", "1.820"},
                                    {"1999", "1.999"},
                                    {"3550", "3.550"},
                                    {"7040", "7.040"},
                                    {"10120", "10.120"},
                                    {"14050", "14.050"},
                                    {"18080", "18.080"},
                                    {"21050", "21.050"},
                                    {"24900", "24.900"},
                                    {"28050", "28.050"},
                                    {"7.0", "7.000"},
                                    {"14.", "14.000"},
                                    {"3.5605", "3.560"},
                                    {"705", "7.050"},
                                    {"181", "1.810"},
                                    {"14,05", "14.050"},
                                    {" 7040 ", "7.040"}});
}

TEST(FrequencyBox, OtherEntriesStayAsTheyAre) {
    for (const char* typed :
         {"1700", "50125", "14", "", ".", "14.05.0", "QRL", "14.O50", "O.5", "K,3"})
        EXPECT_EQ(frequencyAsEntered(typed), typed);
}

TEST(CompletedFrequency, FillsShortEntriesOnly) {
    expectEach(completedFrequency, {{"7", "7.000"},
                                    {"7.", "7.000"},
                                    {"14", "14.000"},
                                    {"14.", "14.00"},
                                    {"7.0", "7.000"},
                                    {"7.04", "7.0400"}, // one too many; the log takes it
                                    {"7.040", "7.040"},
                                    {"", ""}});
}

TEST(KhzField, IsFiveColumnsRightAligned) {
    expectEach(khzField, {{"7.040", " 7040"},
                          {"14.050", "14050"},
                          {"7.0400", " 7040"},
                          {"50125", "50125"},
                          {"145.500", "145.5"}});
}

TEST(KhzField, IsLoggedOnABandOnly) {
    for (const char* loggable : {" 7040", "14050", " 5355", "29050", "50125", "53999"})
        EXPECT_EQ(khzFault(loggable), "") << loggable;
    // "7040" would shift every column behind it
    for (const char* field :
         {"145.5", "     ", "QRL  ", "", "7040", "14 50", " 4050", "13999", "54000"})
        EXPECT_NE(khzFault(field), "") << field;
    for (const char* mhz : {"10.120", "18.080", "24.900", "101205"})
        EXPECT_TRUE(isOutsideSprintBands(mhz, khzField(mhz))) << mhz;
    for (const char* mhz : {"1.820", "3.550", "7.040", "14.050", "28.050"}) {
        EXPECT_FALSE(isOutsideSprintBands(mhz, khzField(mhz))) << mhz;
        EXPECT_EQ(bandTagOf(mhz), khzField(mhz).substr(0, 2)) << mhz;
    }
}

} // namespace
} // namespace vantrel::test
