// SPDX-License-Identifier: MIT
// The contact line: assembled byte for byte, taken apart, and changed in one field.
#include "shared/qsoline.h"

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

Qso exampleQso() {
    return {"14050", "CW",         "2011-06-16", "0012",   "W1ABC     ",
            "599",   "JOHN      ", "MA ",        "1234T ", "K9SKC     ",
            "599",   "CLUB      ", "IL ",        "5000S ", "      "};
}

const std::string exampleLine =
    "QSO: 14050 CW 2011-06-16 0012 W1ABC      599 JOHN       MA 1234T K9SKC      599 CLUB       "
    "IL  5000S       ";

TEST(QsoLine, IsAssembledByteForByte) {
    EXPECT_EQ(assembleLine(exampleQso()), exampleLine);
    EXPECT_EQ(exampleLine.size(), 107U);
}

TEST(QsoLine, FullFieldsRunTogetherOnMySideOnly) {
    Qso qso = exampleQso();
    qso.frequency = " 7040";
    qso.myState = "ONT";
    qso.myNumber = "12345S";
    qso.hisCall = "K1ABCDEF/P";
    qso.hisState = "BRI";
    qso.marker = "K3Y/EU";
    EXPECT_EQ(assembleLine(qso),
              "QSO:  7040 CW 2011-06-16 0012 W1ABC      599 JOHN       ONT12345SK1ABCDEF/P 599 "
              "CLUB       BRI 5000S K3Y/EU");
}

TEST(QsoLine, DupeMarkerIsBare) {
    Qso qso = exampleQso();
    qso.marker = dupeMarker;
    const std::string line = assembleLine(qso);
    EXPECT_EQ(line, exampleLine.substr(0, 101) + "DUPE");
    EXPECT_TRUE(isDupe(line));
    EXPECT_TRUE(isDupe(line + "  "));
    EXPECT_FALSE(isDupe(exampleLine));
    EXPECT_FALSE(isDupe(exampleLine.substr(0, 101) + "DUP"));
    EXPECT_FALSE(isDupe(exampleLine.substr(0, 101) + " DUPE"));
}

TEST(QsoLine, FieldsAreReadWhereTheyAreWritten) {
    EXPECT_EQ(qso::tag.of(exampleLine), "QSO: ");
    EXPECT_EQ(qso::frequency.of(exampleLine), "14050");
    EXPECT_EQ(qso::bandTag.of(exampleLine), "14");
    EXPECT_EQ(qso::mode.of(exampleLine), "CW");
    EXPECT_EQ(qso::date.of(exampleLine), "2011-06-16");
    EXPECT_EQ(qso::time.of(exampleLine), "0012");
    EXPECT_EQ(qso::myCall.of(exampleLine), "W1ABC     ");
    EXPECT_EQ(qso::rstSent.of(exampleLine), "599");
    EXPECT_EQ(qso::myName.of(exampleLine), "JOHN      ");
    EXPECT_EQ(qso::myState.of(exampleLine), "MA ");
    EXPECT_EQ(qso::myNumber.of(exampleLine), "1234T ");
    EXPECT_EQ(qso::hisCall.of(exampleLine), "K9SKC     ");
    EXPECT_EQ(qso::rstReceived.of(exampleLine), "599");
    EXPECT_EQ(qso::hisName.of(exampleLine), "CLUB      ");
    EXPECT_EQ(qso::hisState.of(exampleLine), "IL ");
    EXPECT_EQ(qso::hisNumber.of(exampleLine), "5000S ");
    EXPECT_EQ(qso::marker.of(exampleLine), "      ");
}

TEST(QsoLine, ContactIsWhatBeginsWithTheTag) {
    EXPECT_TRUE(isContact("QSO"));
    EXPECT_TRUE(isContact("QSO:"));
    EXPECT_FALSE(isContact("QS"));
    EXPECT_FALSE(isContact(" QSO:"));
    EXPECT_FALSE(isContact("qso: 14050"));
}

TEST(QsoLine, ChangingOneFieldLeavesAllOtherColumns) {
    std::string expected = exampleLine;
    expected.replace(65, 10, "W9XYZ     ");
    EXPECT_EQ(withField(exampleLine, qso::hisCall, "W9XYZ"), expected);
    expected.replace(65, 10, "K1ABCDEFGH");
    EXPECT_EQ(withField(exampleLine, qso::hisCall, "K1ABCDEFGHIJ"), expected);

    const std::string longer = exampleLine + "what somebody noted";
    EXPECT_EQ(withField(longer, qso::marker, "DUPE"),
              exampleLine.substr(0, 101) + "DUPE  what somebody noted");
}

TEST(QsoLine, ChangingAFieldOfAShortLineFillsUpToItOnly) {
    EXPECT_EQ(withField("QSO: 14050", qso::date, "2011-06-16"), "QSO: 14050    2011-06-16");
    EXPECT_EQ(withField("QSO: 14050 CW 2011", qso::date, "2012"), "QSO: 14050 CW 2012      ");
    EXPECT_EQ(withField("", qso::tag, "QSO:"), "QSO: ");
}

} // namespace
} // namespace vantrel::test
