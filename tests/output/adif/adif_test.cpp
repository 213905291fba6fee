// SPDX-License-Identifier: MIT
#include "log/outputfiles.h"
#include "output/adif/adif.h"
#include "output/score/contacts.h"
#include "support/errors.h"

namespace vantrel::test {
namespace {

using ::testing::HasSubstr;

std::string adifOf(const std::vector<std::string>& lines) {
    return adifText(views(lines));
}

std::string wrapped(const std::string& records) {
    return "<EOH>\r\n" + records + "<EOF>\r\n";
}

const std::string plainRecord =
    "<FREQ:6>14.050<BAND:3>20M<MODE:2>CW<QSO_DATE:8>20110616<TIME_ON:4>0012<RST_SENT:3>599"
    "<CALL:5>K1ABC<RST_RCVD:3>579<NAME:4>JOHN<STATE:2>MA<SKCC_NR:5>1234T<COMMENT:15>SKCC NR: 1234T"
    "<EOR>\r\n";

TEST(Adif, EveryContactIsALineAndDuplicatesAreWrittenToo) {
    EXPECT_EQ(adifOf({}), wrapped(""));
    EXPECT_EQ(adifOf({line({.number = "1234T"}), line({.number = "1234T", .marker = "DUPE"})}),
              wrapped(plainRecord + plainRecord));
}

TEST(Adif, AFrequencyThatIsNoneAndOneOutsideTheBandsLeaveTheOneBefore) {
    const auto record = [](const std::string& start) {
        return start + plainRecord.substr(plainRecord.find("<MODE"));
    };
    std::vector<std::string> contacts;
    for (const char* frequency : {"", "50125", "1825", "472", "50125"})
        contacts.push_back(line({.number = "1234T", .frequency = frequency}));
    EXPECT_EQ(adifOf(contacts),
              wrapped(record("<FREQ:0><BAND:0>") + record("<FREQ:6>50.125<BAND:0>") +
                      record("<FREQ:5>1.825<BAND:4>160M") + record("<FREQ:5>1.825<BAND:4>160M") +
                      record("<FREQ:6>50.125<BAND:4>160M")));
}

TEST(Adif, QuirksThatReadersRelyOn) {
    // The comment's length is the padded number's; the trimmed number stands in it.
    EXPECT_THAT(adifOf({line({.number = "89S"})}),
                HasSubstr("<SKCC_NR:3>89S<COMMENT:15>SKCC NR: 89S<EOR>"));
    EXPECT_THAT(adifOf({line({.number = ""})}), HasSubstr("<SKCC_NR:0><COMMENT:15>SKCC NR: <EOR>"));
    // Only a marker of six characters has a continent.
    EXPECT_THAT(adifOf({line({.marker = "K3Y/EU"})}), HasSubstr("1234<CONT:2>EU<EOR>"));
    EXPECT_THAT(adifOf({line({.marker = "K3Y/0 "})}), HasSubstr("1234<EOR>"));
    // A date written month first is cut at the same columns.
    EXPECT_THAT(adifOf({line({.date = "07-01-2011"})}), HasSubstr("<QSO_DATE:8>07-0-211<TIME_ON"));
    // A line cut short has short and empty items.
    EXPECT_EQ(adifOf({"QSO:  7045 CW 2011-0"}),
              wrapped("<FREQ:5>7.045<BAND:3>40M<MODE:2>CW<QSO_DATE:8>20110<TIME_ON:4><RST_SENT:3>"
                      "<CALL:0><RST_RCVD:3><NAME:0><STATE:0><SKCC_NR:0><COMMENT:9>SKCC NR: "
                      "<EOR>\r\n"));
}

TEST(OutputFiles, NamesBesideTheLog) {
    EXPECT_EQ(adifFileName("SKS"), "ADI");
    EXPECT_RUNTIME_ERROR(adifFileName("AB"), ErrorCode::invalidCall, HasSubstr("AB"));
    EXPECT_EQ(scorePdfName("/A.B/LOG"), "/A.B/LOG-SCORE.PDF");
    EXPECT_EQ(logPdfName("A.B\\LOG.CBR"), "A.B\\LOG-LOG.PDF");
}

} // namespace
} // namespace vantrel::test
