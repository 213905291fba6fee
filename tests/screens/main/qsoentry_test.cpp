// SPDX-License-Identifier: MIT
// From the boxes to the line: what is cut, padded, refused, and whom the dupe checks find.
#include "screens/main/bandring.h"
#include "screens/main/dupecheck.h"
#include "screens/main/frequency.h"
#include "screens/main/qsoentry.h"
#include "screens/main/workedbefore.h"
#include "shared/settings.h"
#include "shared/utctime.h"
#include "support/contacts.h"

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

TEST(QsoEntry, LineIsCutAndPaddedToItsColumnsAndOtherBandsAreForTheEvent) {
    OperatingSettings settings{
        .myCall = "W1ABC", .myName = "JOHN", .myState = "MA", .myNumber = "1234T"};
    const auto lineFor = [&](const Entry& entry) {
        auto contact = contactFrom(entry, settings, noMarker, {"0012", "2011-06-16"});
        std::string mhz = entry.frequency;
        EXPECT_EQ(enterFrequency(contact, mhz, settings), FrequencyCheck::good);
        return assembleLine(contact);
    };
    EXPECT_EQ(lineFor({"k9skc", "CLUB", "IL", "5000S", "599", "599", "14.050"}), contactLine({}));
    EXPECT_EQ(lineFor({" vk2/g4abcde ", "BARTHOLOMEW", "N,WX", "12345678", "59", "5999", "7"}),
              "QSO:  7000 CW 2011-06-16 0012 W1ABC      59  JOHN       MA 1234T VK2/G4ABCD 599 "
              "BARTHOLOME N W 123456      ");
    auto contact = contactFrom({}, settings, noMarker, {});
    std::string mhz = "10";
    EXPECT_EQ(enterFrequency(contact, mhz, settings), FrequencyCheck::outsideSprintBands);
    settings.contestText = "K3Y";
    EXPECT_EQ(enterFrequency(contact, mhz, settings), FrequencyCheck::good);
    EXPECT_EQ(contact.frequency, "10000");
}

TEST(QsoEntry, ShortCallsAreNeitherLookedUpNorLogged) {
    for (const char* call : {"", "K1", "\xC5"})
        EXPECT_FALSE(canLookUp(call)) << call;
    for (const char* call : {"7", "K1A"})
        EXPECT_TRUE(canLookUp(call)) << call;
    EXPECT_FALSE(canBeLogged({.call = "  K1  "}));
    EXPECT_TRUE(isComplete({.number = "99"}));
    EXPECT_FALSE(isComplete({.number = " "}));
}

struct Row {
    const char* typed;
    const char* expected;
};

template <std::size_t size>
void expectEach(std::string (*rule)(std::string_view), const Row (&rows)[size]) {
    for (const Row& row : rows)
        EXPECT_EQ(rule(row.typed), row.expected) << '"' << row.typed << '"';
}

TEST(Frequency, BoxCompletionAndKhzField) {
    expectEach(frequencyAsEntered, {{"1820", "1.820"},    {"1999", "1.999"},
                                    {"3550", "3.550"},    {"7040", "7.040"},
                                    {"10120", "10.120"},  {"14050", "14.050"},
                                    {"18080", "18.080"},  {"21050", "21.050"},
                                    {"24900", "24.900"},  {"28050", "28.050"},
                                    {"7.0", "7.000"},     {"14.", "14.000"},
                                    {"3.5605", "3.560"},  {"705", "7.050"},
                                    {"181", "1.810"},     {"14,05", "14.050"},
                                    {"K,3", "K,3"},       {" 7040 ", "7.040"},
                                    {"1700", "1700"},     {"50125", "50125"},
                                    {"14", "14"},         {"", ""},
                                    {".", "."},           {"14.05.0", "14.05.0"},
                                    {"14.O50", "14.O50"}, {"O.5", "O.5"}});
    // "7.0400" has one zero too many; the log takes it.
    expectEach(completedFrequency, {{"7", "7.000"},
                                    {"7.", "7.000"},
                                    {"14", "14.000"},
                                    {"14.", "14.00"},
                                    {"7.04", "7.0400"},
                                    {"7.040", "7.040"},
                                    {"", ""}});
    expectEach(khzField, {{"7.040", " 7040"},
                          {"14.050", "14050"},
                          {"7.0400", " 7040"},
                          {"50125", "50125"},
                          {"145.500", "145.5"}});
    for (const char* field : {"145.5", "     ", "QRL  ", "", "7040", "14 50", " 4050", "13999"})
        EXPECT_NE(khzFault(field), "") << field; // "7040" would shift every column behind it
    for (const char* field : {" 7040", "14050", " 5355", "29050", "50125", "53999"})
        EXPECT_EQ(khzFault(field), "") << field;
    for (const char* mhz : {"10.120", "18.080", "24.900", "101205"})
        EXPECT_TRUE(isOutsideSprintBands(mhz, khzField(mhz))) << mhz;
    expectEach(bandTagOf, {{"1.820", " 1"}, {"3.550", " 3"}, {"7.040", " 7"}, {"28.050", "28"}});
}

TEST(BandRing, WalksTheSixBandsBothWays) {
    const char* const ring[] = {"160 Meters", "80 Meters ", "40 Meters ",
                                "20 Meters ", "15 Meters ", "10 Meters "};
    for (std::size_t i = 0; i < std::size(ring); ++i) {
        const char* const next = ring[(i + 1) % std::size(ring)];
        EXPECT_EQ(bandUp(ring[i]).text, next);
        EXPECT_EQ(bandDown(next).text, ring[i]);
    }
    EXPECT_EQ(bandUp("").defaultFrequency, "1.820");
    EXPECT_EQ(bandDown("").text, "160 Meters");
}

// A prefix of a logged call is a duplicate, and so are the padded calls that numbers yield.
TEST(Duplicate, IsSameBandAndCallBeginningWithWhatIsTyped) {
    const std::string on20 = contactLine({.frequency = "14050", .hisCall = "K1ABC"});
    const std::string on40 = contactLine({.frequency = " 7040", .hisCall = "W1AW/4"});
    const std::string away = contactLine({.frequency = "50125", .hisCall = "K1ABD"});
    const Contacts contacts{on20, on40, on20, away};
    const struct {
        const char* call;
        const char* band;
        bool dupe;
    } rows[] = {{"K1AB", "14", true},    {"K1ABC     ", "14", true}, {"W1AW", " 7", true},
                {"K1ABCD", "14", false}, {"K1ABC", " 7", false},     {"k1abc", "14", false}};
    for (const auto& row : rows)
        EXPECT_EQ(!duplicateOf(contacts, row.call, row.band).empty(), row.dupe)
            << row.call << row.band;
    const auto worked = [&](const char* typed, int columns) {
        std::string text;
        for (const WorkedCall& call : workedBefore(contacts, typed, "14", columns))
            text += call.text + (call.dupe ? "! " : " ");
        return text;
    };
    EXPECT_EQ(worked("K", 80), "");
    EXPECT_EQ(worked("K1", 80), "K1ABC 20! K1ABD 50125 ");
    EXPECT_EQ(worked("K1ABCD", 80), "");
    EXPECT_EQ(worked("K1", 20), "K1ABC 20! ... ");
}

// Unlike the ordinary check, the start of a call is not the call.
TEST(K3yDupe, IsTheSameCallNumberAndBand) {
    const auto k3yLine = [](const char* call, const char* khz, const char* number,
                            const char* marker = "      ") {
        return contactLine(
            {.frequency = khz, .hisCall = call, .hisNumber = number, .marker = marker});
    };
    const std::string logged = k3yLine("K3Y/1", "14050", "123456", "K3Y/EU");
    const struct {
        const char* name;
        std::string logged;
        std::string assembled;
        bool dupe;
    } rows[] = {
        {"same, another tag", logged, k3yLine("K3Y/1", "14062", "123456", "DUPE"), true},
        {"another band", logged, k3yLine("K3Y/1", " 7050", "123456"), false},
        {"another operator", logged, k3yLine("K3Y/1", "14050", "12345"), false},
        {"a longer call", logged, k3yLine("K3Y/1/P", "14050", "123456"), false},
        {"a shorter call", logged, k3yLine("K3Y/", "14050", "123456"), false},
        {"the logged line lost its last blanks", k3yLine("K3Y/1", "14050", "55").substr(0, 97),
         k3yLine("K3Y/1", "14050", "55"), true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(isK3yDupe({row.logged}, row.assembled), row.dupe);
        // What SEARCH holds in its boxes at that time: a number may exceed its columns.
        EXPECT_EQ(isK3yDupe({row.logged}, trim(qso::hisCall.of(row.assembled)),
                            std::string(qso::hisNumber.of(row.assembled)) + "7",
                            qso::bandTag.of(row.assembled)),
                  row.dupe);
    }
    EXPECT_EQ(asDupe(logged), logged.substr(0, 101) + "DUPE");
}

} // namespace
} // namespace vantrel::test
