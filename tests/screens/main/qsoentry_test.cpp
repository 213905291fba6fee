// SPDX-License-Identifier: MIT
#include "fakes/failingcalls.h"
#include "fakes/fakeclock.h"
#include "platform/files.h"
#include "screens/main/qsoentry.h"
#include "shared/module1.h"
#include "support/contacts.h"
#include "support/errors.h"
#include "support/tempfolder.h"

namespace vantrel::test {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

class QsoEntry : public ::testing::Test {
protected:
    QsoEntry() {
        module.settings.myCall = "W1ABC";
        module.settings.myName = "JOHN";
        module.settings.myState = "MA";
        module.settings.myNumber = "1234T";
        module.settings.logFileName = "SKS061611.CBR";
        folder.write("SKS061611.CBR", logHeaderLines);
    }

    std::string lineFor(const Entry& entry) {
        ContactFields contact = contactFrom(entry, module, clock);
        std::string mhz = entry.frequency;
        EXPECT_EQ(enterFrequency(contact, mhz, module), FrequencyCheck::good);
        return assembleLine(contact);
    }

    TempFolder folder;
    FailingCalls calls;
    Files files{folder.string(), calls};
    FakeClock clock;
    Module1 module;
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
    EXPECT_EQ(enterFrequency(contact, mhz, module), FrequencyCheck::outsideSprintBands);
    EXPECT_EQ(mhz, "10.000");
    module.settings.contestText = "K3Y";
    mhz = "10.120";
    EXPECT_EQ(enterFrequency(contact, mhz, module), FrequencyCheck::good);
    EXPECT_EQ(contact.frequency, "10120");
    for (const char* unloggable : {"", "QRL", "145.500", "14.O5"}) {
        mhz = unloggable;
        EXPECT_EQ(enterFrequency(contact, mhz, module), FrequencyCheck::missing) << unloggable;
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

TEST_F(QsoEntry, LogBeyondTheTableIsReportedAndStillShown) {
    std::string log = logHeaderLines;
    for (int i = 0; i < QsoTable::capacity + 1; ++i)
        log += contactLine({}) + "\r\n";
    folder.write("SKS061611.CBR", log);
    EXPECT_RUNTIME_ERROR(openLog(module, files), ErrorCode::subscriptOutOfRange,
                         AllOf(HasSubstr("SKS061611.CBR"), HasSubstr("12000")));
    EXPECT_EQ(countText(module), "12000");
    EXPECT_EQ(module.workedStations.size(), Module1::workedCapacity);
    EXPECT_EQ(folder.read("SKS061611.CBR"), log);
}

TEST_F(QsoEntry, LogThatVanishedLeavesAnEmptyTable) {
    folder.write("SKS061611.CBR", logHeaderLines + contactLine({}) + "\r\n");
    openLog(module, files);
    EXPECT_EQ(countText(module), "01");
    module.settings.logFileName = "GONE.CBR";
    EXPECT_RUNTIME_ERROR(openLog(module, files), ErrorCode::fileNotFound, HasSubstr("GONE.CBR"));
    EXPECT_EQ(countText(module), "00");
}

} // namespace
} // namespace vantrel::test
