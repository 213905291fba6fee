// SPDX-License-Identifier: MIT
// The contact line: assembled byte for byte, taken apart, and changed in one field.
#include "log/qsoline.h"

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

// Fields as wide as they may be: some touch on my side, none does on his.
const ContactFields fullQso{" 7040", "CW",         "2011-06-16", "0012",   "W1ABCDEF/P",
                            "599",   "JOHNATHANX", "ONT",        "12345S", "K1ABCDEF/P",
                            "579",   "BARTHOLOME", "BRI",        "54321T", "K3Y/EU"};

const std::string fullLine = "QSO:  7040 CW 2011-06-16 0012 W1ABCDEF/P 599 JOHNATHANX "
                             "ONT12345SK1ABCDEF/P 579 BARTHOLOME BRI 54321TK3Y/EU";

TEST(QsoLine, IsAssembledByteForByteAndReadWhereItIsWritten) {
    EXPECT_EQ(assembleLine(fullQso), fullLine);
    std::string fields;
    for (const Column column :
         {qso::head, qso::frequency, qso::bandTag, qso::mode, qso::date, qso::time, qso::myCall,
          qso::rstSent, qso::myName, qso::myState, qso::myNumber, qso::hisCall, qso::rstReceived,
          qso::hisName, qso::hisState, qso::hisNumber, qso::marker})
        fields += std::string(column.of(fullLine)) + '|';
    EXPECT_EQ(fields, "QSO: | 7040| 7|CW|2011-06-16|0012|W1ABCDEF/P|599|JOHNATHANX|ONT|12345S|"
                      "K1ABCDEF/P|579|BARTHOLOME|BRI|54321T|K3Y/EU|");
}

TEST(QsoLine, ContactBeginsWithTheTagAndADupeHasTheBareMarker) {
    for (const char* contact : {"QSO", "QSO: 14050"})
        EXPECT_TRUE(isContact(contact)) << contact;
    for (const char* other : {"QS", " QSO:", "qso: 14050"})
        EXPECT_FALSE(isContact(other)) << other;

    ContactFields dupe = fullQso;
    dupe.marker = dupeMarker;
    EXPECT_EQ(assembleLine(dupe), fullLine.substr(0, 101) + "DUPE");
    EXPECT_TRUE(isDupe(assembleLine(dupe)));
    EXPECT_TRUE(isDupe(assembleLine(dupe) + "  "));
    for (const char* marker : {"", "DUP", " DUPE", "K3Y/EU"})
        EXPECT_FALSE(isDupe(fullLine.substr(0, 101) + marker)) << marker;
}

TEST(QsoLine, ChangingOneFieldLeavesAllOtherColumns) {
    std::string expected = fullLine;
    expected.replace(65, 10, "W9XYZ     ");
    EXPECT_EQ(withField(fullLine, qso::hisCall, "W9XYZ"), expected);
    expected.replace(65, 10, "K1ABCDEFGH");
    EXPECT_EQ(withField(fullLine, qso::hisCall, "K1ABCDEFGHIJ"), expected);
    EXPECT_EQ(withField(fullLine + "somebody's note", qso::marker, "DUPE"),
              fullLine.substr(0, 101) + "DUPE  somebody's note");
    // A short line is filled up to the field only.
    EXPECT_EQ(withField("QSO: 14050", qso::date, "2011-06-16"), "QSO: 14050    2011-06-16");
    EXPECT_EQ(withField("QSO: 14050 CW 2011", qso::date, "2012"), "QSO: 14050 CW 2012      ");
}

} // namespace
} // namespace vantrel::test
