// SPDX-License-Identifier: MIT
#include "platform/files.h"
#include "platform/systemcalls.h"
#include "roster/rosterlookup.h"
#include "support/tempfolder.h"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

class RosterLookup : public ::testing::Test {
protected:
    TempFolder folder;
    SystemCalls calls;
    Files files{folder.string(), calls};
    Roster roster{files};

    // "call/number/name/state" of the member found, "nobody" otherwise.
    std::string byCall(std::string_view text) {
        const std::optional<Member> found = roster.findByCall(text);
        return found ? found->call + "/" + found->number + "/" + found->name + "/" + found->state
                     : "nobody";
    }
    std::string byNumber(std::string_view text) {
        const NumberMatch match = roster.findByNumber(text);
        if (match.outcome == NumberLookup::notANumber)
            return "not a number";
        return match.outcome == NumberLookup::nobody ? "nobody" : match.call;
    }
};

TEST_F(RosterLookup, CallFindsItsFieldsWithTheirPaddingInTheFileOfItsFirstLetter) {
    folder.write("SKSDB1.TXT", "AA1AA     0001T     ANN       RI \r\n");
    folder.write("SKSDB2.TXT", "K1AB      0100      EARLIER   NH \r\n"
                               "K1ABC     0123T     JOHN      MA \r\n"
                               "K1ABC     9999      LATER     VT \r\n");
    folder.write("SKSDB3.TXT", "N1AA      0003      NED       ME \n");
    folder.write("SKSDB4.TXT",
                 "W1AA      12345C    WILL      CT " + std::string(199, ' ') + "\r\n");
    folder.write("SKSDB5.TXT", "3Z9ABC    0124      ADAM      SP ");
    EXPECT_EQ(byCall("AA1AA"), "AA1AA     /0001T     /ANN       /RI ");
    EXPECT_EQ(byCall("K1ABC"), "K1ABC     /0123T     /JOHN      /MA ");
    EXPECT_EQ(byCall("N1AA"), "N1AA      /0003      /NED       /ME ");
    EXPECT_EQ(byCall("W1AA"), "W1AA      /12345C    /WILL      /CT ");
    EXPECT_EQ(byCall("3Z9ABC"), "3Z9ABC    /0124      /ADAM      /SP ");
    // Compared exactly as typed.
    for (const std::string_view typed : {"K1ABCD", "K1ABC ", " K1ABC", "3Z9ABc", "k1abc"})
        EXPECT_EQ(byCall(typed), "nobody") << typed;
}

TEST_F(RosterLookup, RecordEndsAtACommaAndMayBeShort) {
    folder.write("SKSDB2.TXT", "K1AAA     0001      SMITH, J  MA \r\nK1BBB     02\r\nK1CCC\r\n");
    EXPECT_EQ(byCall("K1AAA"), "K1AAA     /0001      /SMITH/");
    EXPECT_EQ(byCall("K1CCC"), "K1CCC///");
    EXPECT_EQ(byNumber("2"), "nobody");
}

TEST_F(RosterLookup, CallIsLookedForInEightThousandRecordsButANumberInAll) {
    std::string bytes;
    for (int k = 1; k <= 7998; ++k)
        bytes += "K9XXX     9000      FILLER    IL \r\n";
    bytes += "K1HALF    9001      A,B\r\n"; // two records: the second is no. 8,000
    folder.write("SKSDB2.TXT", bytes + "K1OVER    0777      OVER      MA \r\n");
    EXPECT_EQ(byCall("B"), "nobody");
    EXPECT_EQ(byCall("K1HALF"), "K1HALF    /9001      /A/");
    EXPECT_EQ(byCall("K1OVER"), "nobody");
    EXPECT_EQ(byNumber("777"), "K1OVER    ");
    folder.write("SKSDB2.TXT", bytes.substr(35) + "K1OVER    0777      OVER      MA \r\n");
    EXPECT_EQ(byCall("K1OVER"), "K1OVER    /0777      /OVER      /MA ");
}

TEST_F(RosterLookup, NumberFindsTheFirstCallWhoseNumberBeginsWithIt) {
    folder.write("SKSDB2.TXT", "K1LONG    01234     FIVE      MA \r\n"
                               "K1ABC     0123T     JOHN      MA \r\n");
    folder.write("SKSDB5.TXT", "VE3ABC    0123      VERA      ON \r\nVE3SSS    123S      S  ON \r\n"
                               "VE3SEV    0007C     SEVEN     ON \r\n");
    struct Row {
        std::string_view typed, expected;
    };
    for (const Row& row :
         {Row{"123", "K1LONG    "}, Row{"0123c", "K1LONG    "}, Row{" 7t ", "VE3SEV    "},
          Row{"123s", "VE3SSS    "}, Row{"0123S", "nobody"}, Row{"T", "nobody"},
          Row{"AB12", "not a number"}, Row{"3z9ab", "not a number"}})
        EXPECT_EQ(byNumber(row.typed), row.expected) << row.typed;
}

TEST_F(RosterLookup, ChangedFileIsReadAgain) {
    const auto writeLongAgo = [&](std::string_view bytes, int hoursAgo) {
        folder.write("SKSDB2.TXT", bytes);
        std::filesystem::last_write_time(folder.path() / "SKSDB2.TXT",
                                         std::filesystem::file_time_type::clock::now() -
                                             std::chrono::hours(hoursAgo));
    };
    writeLongAgo("K1ABC     0123      JOHN      MA \r\n", 3);
    EXPECT_EQ(byCall("K1ABC"), "K1ABC     /0123      /JOHN      /MA ");
    writeLongAgo("K1ABC     0123T     JOHN      MA \r\n", 2); // the same size
    EXPECT_EQ(byCall("K1ABC"), "K1ABC     /0123T     /JOHN      /MA ");
    folder.write("SKSDB2.TXT", "K1ABC     0123S     JOHN      MA \r\n");
    byCall("K1ABC");
    folder.write("SKSDB2.TXT", "K1ABC     0123X     JOHN      MA \r\n"); // at the same moment
    EXPECT_EQ(byCall("K1ABC"), "K1ABC     /0123X     /JOHN      /MA ");
    std::filesystem::remove(folder.path() / "SKSDB2.TXT");
    EXPECT_EQ(byCall("K1ABC"), "nobody");
}

} // namespace
} // namespace vantrel::test
