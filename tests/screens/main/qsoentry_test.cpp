// SPDX-License-Identifier: MIT
// What the contact being entered is made with: frequencies, bands, who was worked before, the rate.
#include "screens/main/frequency.h"
#include "screens/main/qsoentry.h"
#include "screens/main/rate.h"
#include "screens/main/workedcalls.h"
#include "support/testing.h"

namespace vantrel::test {
namespace {

std::string each(std::string (*rule)(std::string_view), std::initializer_list<const char*> texts) {
    std::string all;
    for (const char* typed : texts)
        all += rule(typed) + '|';
    return all;
}

TEST(Frequency, BoxCompletionAndKhzField) {
    EXPECT_EQ(
        each(frequencyAsEntered,
             {"1820",  "1999",  "3550", "7040",   "10120", "14050",   "18080",  "21050", "24900",
              "28050", "7.0",   "14.",  "3.5605", "705",   "181",     "14,05",  "K,3",   " 7040 ",
              "1700",  "50125", "14",   "",       ".",     "14.05.0", "14.O50", "O.5"}),
        "1.820|1.999|3.550|7.040|10.120|14.050|18.080|21.050|24.900|28.050|7.000|14.000|3.560|"
        "7.050|1.810|14.050|K,3|7.040|1700|50125|14||.|14.05.0|14.O50|O.5|");
    // "7.0400" has one zero too many; the log takes it.
    EXPECT_EQ(each(completedFrequency, {"7", "7.", "14", "14.", "7.04", "7.040", ""}),
              "7.000|7.000|14.000|14.00|7.0400|7.040||");
    EXPECT_EQ(each(khzField, {"7.040", "14.050", "7.0400", "50125", "145.500"}),
              " 7040|14050| 7040|50125|145.5|");
    EXPECT_EQ(each(bandTagOf, {"1.820", "3.550", "7.040", "28.050"}), " 1| 3| 7|28|");
    for (const char* field : {"145.5", "     ", "QRL  ", "", "7040", "14 50", " 4050", "13999"})
        EXPECT_NE(khzFault(field, field), "") << field; // "7040" would shift every column behind it
    for (const char* field : {" 7040", "14050", " 5355", "29050", "50125", "53999"})
        EXPECT_EQ(khzFault(field, field), "") << field;
    for (const char* mhz : {"10.120", "18.080", "24.900", "101205"})
        EXPECT_TRUE(isOutsideSprintBands(mhz, khzField(mhz))) << mhz;
}

TEST(BandRing, WalksTheSixBandsBothWays) {
    std::string up = "160 Meters", down = "160 Meters", walked;
    for (int i = 0; i < 7; ++i)
        walked += (up = bandUp(up).text) + (down = bandDown(down).text) + '|';
    EXPECT_EQ(walked, "80 Meters 10 Meters |40 Meters 15 Meters |20 Meters 20 Meters |15 Meters 40 "
                      "Meters |10 Meters 80 Meters |160 Meters160 Meters|80 Meters 10 Meters |");
    EXPECT_EQ(bandUp("").defaultFrequency, "1.820");
    EXPECT_EQ(bandDown("").text, "160 Meters");
}

// While a call is typed: who was worked where, and on which bands.
TEST(WorkedCalls, AreThoseThatBeginSoWithTheirBands) {
    const std::string on20 = contactLine({.frequency = "14050", .hisCall = "K1ABC"});
    const std::string on40 = contactLine({.frequency = " 7040", .hisCall = "W1AW/4"});
    const std::string away = contactLine({.frequency = "50125", .hisCall = "K1ABD"});
    const Contacts contacts{on20, on40, on20, away};
    const auto worked = [&](const char* typed, int columns) {
        std::string text;
        for (const WorkedCall& call : workedBefore(contacts, typed, "14", columns))
            text += call.text + (call.dupe ? "! " : " ");
        return text;
    };
    EXPECT_EQ(worked("K1", 80), "K1ABC 20! K1ABD 50125 ");
    EXPECT_EQ(worked("K1", 20), "K1ABC 20! ... ");
    // A band that is none of the contest's has a row when there is a contact.
    std::string table;
    for (const BandRow& row : bandTable(contacts, "K1ABC", " 7", false).rows)
        table += row.name + ' ' + std::to_string(row.contacts) + (row.present ? "< " : " ") +
                 (row.onBand == CallOnBand::worked ? "worked " : "");
    EXPECT_EQ(table, "160 0 80 0 40 1< 20 2 worked 15 0 10 0 6 1 ");
    EXPECT_EQ(bandTable(contacts, "K1AB", " 7", false).call, "") << "two begin so";
}

// The last hour of a log whose date was not rolled back where its hour was.
TEST(Rate, TakesAContactUpToADayAheadForOneOfTheDayBefore) {
    std::vector<std::string> lines;
    for (const auto& [date, time] : {std::pair{"2012-02-29", "2359"},
                                     {"03-01-2012", "0004"},
                                     {"2012-02-28", "2356"},
                                     {"2012-02-28", "2300"},
                                     {"2012-03-01", "0006"},
                                     {"no date", "0001"}})
        lines.push_back(contactLine({.date = padded(date, 10), .time = time}));
    const Rate rate =
        rateAt(contactMinutes({lines.begin(), lines.end()}), *readMinute("2012-02-29", "0005"));
    EXPECT_EQ(rateText(rate), "3 (18/h)");
    EXPECT_EQ(lastText(rate), "LAST 1 MIN AGO");
    EXPECT_EQ(lastText(rateAt(contactMinutes({lines.begin(), lines.end()}),
                              *readMinute("2012-02-29", "1206"))),
              "LAST 12 H AGO");
    EXPECT_EQ(hourText(rate), "3 contacts in the last hour, most at 2356");
    EXPECT_EQ(lastText(rateAt({}, {})) + hourText(rateAt({}, {})), "0 contacts in the last hour");
}

// Unlike the ordinary check, the start of a call is not the call.
TEST(K3yDupe, IsTheSameCallNumberAndBand) {
    const std::string logged =
        contactLine({.hisCall = "K3Y/1", .hisNumber = "123456", .marker = "K3Y/EU"});
    EXPECT_TRUE(isK3yDupe({logged}, "K3Y/1", "1234567", "14")) << "cut to its columns";
    EXPECT_FALSE(isK3yDupe({logged}, "K3Y/1", "123456", " 7"));
    EXPECT_FALSE(isK3yDupe({logged}, "K3Y/1", "12345", "14"));
    EXPECT_FALSE(isK3yDupe({logged}, "K3Y/1/P", "123456", "14"));
    EXPECT_FALSE(isK3yDupe({logged}, "K3Y/", "123456", "14"));
    const std::string cut = contactLine({.hisCall = "K3Y/1", .hisNumber = "55"}).substr(0, 97);
    EXPECT_TRUE(isK3yDupe({cut}, "K3Y/1", "55    ", "14")); // lost its last blanks
    EXPECT_EQ(asDupe(logged), logged.substr(0, 101) + "DUPE");
}

} // namespace
} // namespace vantrel::test
