// SPDX-License-Identifier: MIT
#include "fakes/fakeclock.h"
#include "screens/main/qsoentry.h"
#include "shared/settings.h"
#include "shared/utctime.h"
#include "support/contacts.h"

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

class QsoEntry : public ::testing::Test {
protected:
    QsoEntry() {
        settings.myCall = "W1ABC";
        settings.myName = "JOHN";
        settings.myState = "MA";
        settings.myNumber = "1234T";
    }

    std::string lineFor(const Entry& entry) {
        ContactFields contact = contactFrom(entry, settings, noMarker, utcTime(clock.now(), "0"));
        std::string mhz = entry.frequency;
        EXPECT_EQ(enterFrequency(contact, mhz, settings), FrequencyCheck::good);
        return assembleLine(contact);
    }

    FakeClock clock;
    OperatingSettings settings;
};

TEST_F(QsoEntry, LineIsCutAndPaddedToItsColumns) {
    EXPECT_EQ(lineFor({"k9skc", "CLUB", "IL", "5000S", "599", "599", "14.050"}), contactLine({}));
    EXPECT_EQ(lineFor({" vk2/g4abcde ", "BARTHOLOMEW", "NSWX", "12345678", "59", "5999", "7"}),
              "QSO:  7000 CW 2011-06-16 0012 W1ABC      59  JOHN       MA 1234T VK2/G4ABCD 599 "
              "BARTHOLOME NSW 123456      ");
}

TEST_F(QsoEntry, SeparatorsNeverReachTheLine) {
    const std::string line = lineFor({"K1,A", "A,B\tC", "M,A", "1,2", "5,9", "", "14.050"});
    EXPECT_EQ(line, contactLine({.rstSent = "5 9",
                                 .hisCall = "K1 A",
                                 .rstReceived = "",
                                 .hisName = "A B C",
                                 .hisState = "M A",
                                 .hisNumber = "1 2"}));
}

TEST_F(QsoEntry, OtherBandsAreLoggedInTheEventOnly) {
    ContactFields contact;
    std::string mhz = "10";
    EXPECT_EQ(enterFrequency(contact, mhz, settings), FrequencyCheck::outsideSprintBands);
    EXPECT_EQ(mhz, "10.000");
    settings.contestText = "K3Y";
    mhz = "10.120";
    EXPECT_EQ(enterFrequency(contact, mhz, settings), FrequencyCheck::good);
    EXPECT_EQ(contact.frequency, "10120");
    for (const char* unloggable : {"", "QRL", "145.500", "14.O5"}) {
        mhz = unloggable;
        EXPECT_EQ(enterFrequency(contact, mhz, settings), FrequencyCheck::unloggable) << unloggable;
    }
}

TEST_F(QsoEntry, ShortCallsAreNotLookedUp) {
    EXPECT_FALSE(canLookUp(""));
    EXPECT_FALSE(canLookUp("K1"));
    EXPECT_FALSE(canLookUp("\xC5"));
    EXPECT_TRUE(canLookUp("7"));
    EXPECT_TRUE(canLookUp("K1A"));
    EXPECT_FALSE(canBeLogged({.call = "  K1  "}));
    EXPECT_TRUE(isComplete({.number = "99"}));
    EXPECT_FALSE(isComplete({.number = " "}));
}

} // namespace
} // namespace vantrel::test
