// SPDX-License-Identifier: MIT
#include "base/version.h"
#include "log/log.h"
#include "output/adif/adif.h"
#include "output/adif/strictadif.h"
#include "support/testing.h"

namespace vantrel::test {
namespace {

// What follows `head` in each record, with its length: "6>14.050|5>7.045|".
std::string inEach(const std::string& head, const std::string& file) {
    std::string result;
    for (std::size_t at = 0, end = 0; (end = file.find("<EOR>", at)) != file.npos; at = end + 5) {
        const std::size_t value = std::min(file.find(head, at), file.size()) + head.size();
        result += value < end ? file.substr(value, file.find('<', value) - value) + '|' : "|";
    }
    return result;
}

std::string customary(FieldList fields, const std::string& contacts) {
    return adifText(contactsIn(logOf(fields, contacts)));
}

TEST(Adif, EveryContactIsALineWithTheQuirksThatReadersRelyOn) {
    const std::string record = "<FREQ:6>14.050<BAND:3>20M<MODE:2>CW<QSO_DATE:8>20110616"
                               "<TIME_ON:4>0012<RST_SENT:3>599<CALL:5>K1ABC<RST_RCVD:3>579"
                               "<NAME:3>TOM<STATE:2>MA<SKCC_NR:5>1234T<COMMENT:15>SKCC NR: 1234T"
                               "<EOR>\r\n";
    EXPECT_EQ(customary({&Fields::hisNumber, &Fields::rstReceived, &Fields::marker},
                        "1234T 579; 1234T 579 DUPE"),
              "<EOH>\r\n" + record + record + "<EOF>\r\n");
    EXPECT_THAT(customary({}, "QSO:  7045 CW 2011-0"),
                HasSubstr("<FREQ:5>7.045<BAND:3>40M<MODE:2>CW<QSO_DATE:8>20110<TIME_ON:4>"
                          "<RST_SENT:3><CALL:0><RST_RCVD:3><NAME:0><STATE:0>"
                          "<SKCC_NR:0><COMMENT:9>SKCC NR: <EOR>\r\n"));
    // What is no frequency, and what is outside the bands, leaves that of the contact before.
    const std::string tuned = customary({&Fields::frequency}, "-; 50125; 1825; 472; 50125");
    EXPECT_EQ(inEach("<FREQ:", tuned), "0>|6>50.125|5>1.825|5>1.825|6>50.125|");
    EXPECT_EQ(inEach("<BAND:", tuned), "0>|0>|4>160M|4>160M|4>160M|");
    EXPECT_EQ(inEach("<COMMENT:", customary({&Fields::hisNumber}, "89S; -")),
              "15>SKCC NR: 89S|15>SKCC NR: |"); // as if padded
    EXPECT_EQ(inEach("<CONT:", customary({&Fields::marker}, "K3Y/EU; K3Y/0_")), "2>EU||");
    EXPECT_EQ(inEach("<QSO_DATE:", customary({&Fields::date}, "07-01-2011")), "8>07-0-211|");
}

std::string strict(const std::string& log) {
    return strictAdif(contactsIn(log), "20110616 001230").bytes;
}

const std::string threeContacts =
    logOf({&Fields::hisCall, &Fields::hisNumber, &Fields::hisState, &Fields::hisName,
           &Fields::frequency, &Fields::date, &Fields::marker, &Fields::myCall, &Fields::myState},
          "K1ABC 1234T; DL1QRS NONE DL J\xDCRGEN 7045 07-01-2011 DUPE DK9ABC DL;"
          "VE3XYZ/W1 12345C MA JOHN 50125 2012-02-30 K3Y/0_");

TEST(StrictAdif, WholeFile) {
    const std::string head =
        "<ADIF_VER:5>3.1.4 <PROGRAMID:7>VANTREL <PROGRAMVERSION:" + std::to_string(version.size()) +
        '>' + std::string(version);
    EXPECT_EQ(strict(threeContacts),
              "Contacts logged with Vantrel\r\n" + head +
                  " <CREATED_TIMESTAMP:15>20110616 001230 <EOH>\r\n"
                  "<CALL:5>K1ABC <QSO_DATE:8>20110616 <TIME_ON:4>0012 <BAND:3>20m <FREQ:6>14.050 "
                  "<MODE:2>CW <RST_RCVD:3>599 <NAME:3>TOM <STATE:2>MA <DXCC:3>291 <SKCC:5>1234T "
                  "<RST_SENT:3>599 <STATION_CALLSIGN:5>W1ABC <OPERATOR:5>W1ABC <MY_STATE:2>MA "
                  "<MY_DXCC:3>291 <EOR>\r\n"
                  "<CALL:6>DL1QRS <QSO_DATE:8>20110701 <TIME_ON:4>0012 <BAND:3>40m <FREQ:5>7.045 "
                  "<MODE:2>CW <RST_RCVD:3>599 <NAME:6>JURGEN <NOTES:7>DL NONE <RST_SENT:3>599 "
                  "<STATION_CALLSIGN:6>DK9ABC <OPERATOR:6>DK9ABC <APP_VANTREL_DUPE:1>Y <EOR>\r\n"
                  "<CALL:9>VE3XYZ/W1 <QSO_DATE:8>20120301 <TIME_ON:4>0012 <FREQ:6>50.125 "
                  "<MODE:2>CW <RST_RCVD:3>599 <NAME:4>JOHN <STATE:2>MA <DXCC:3>291 <SKCC:6>12345C "
                  "<RST_SENT:3>599 <STATION_CALLSIGN:5>W1ABC <OPERATOR:5>W1ABC <MY_STATE:2>MA "
                  "<MY_DXCC:3>291 <APP_VANTREL_K3Y:5>K3Y/0 <EOR>\r\n");
}

// What no logger can take in is left out, and so is a band that does not hold the frequency.
TEST(StrictAdif, ValuesOutsideTheirFieldAreLeftOutOrNoted) {
    const auto expect = [](const std::string& head, FieldList fields, const char* contacts,
                           const char* values) {
        EXPECT_EQ(inEach(head, strict(logOf(fields, contacts))), values) << contacts;
    };
    expect("<QSO_DATE:", {&Fields::date},
           "01-01-2012; 1930-12-31; 1929-12-31; 2011-13-01; 2011-00-01; 2011-06-00; 2011-06-32;"
           "2011-6-16_",
           "8>20120101 |8>19301231 |");
    expect("<TIME_ON:", {&Fields::time}, "2359; 2400; 2360; 12_0", "4>2359 |");
    expect("<FREQ:", {&Fields::frequency}, "472; 14.05; -", "5>0.472 |||");
    expect("<NAME:", {&Fields::hisName}, "\xDF\x80\xE9\a\xF8_\xC6", "9>ss?e?o AE |");
    expect("<BAND:", {&Fields::frequency},
           "1800; 3550; 7040; 10150; 14350; 18110; 21050; 24910; 29050; 10151; 14351; 50125",
           "4>160m |3>80m |3>40m |3>30m |3>20m |3>17m |3>15m |3>12m |3>10m ||||");
    expect("<SKCC:", {&Fields::hisNumber}, "12345; 12S; 100W; NONE; -", "5>12345 |3>12S ||||");
    // A state needs a call of its country.
    const FieldList state{&Fields::hisCall, &Fields::hisState};
    expect("<DXCC:", state, "K5A OK; N5A OK; OK1A OK; AL7X AK; NH6X HI; AA3X DC; AM1X AZ; VE3A MA",
           "3>291 |3>291 ||1>6 |3>110 |3>291 |||");
    expect("<DXCC:", state, "VY1A YT; VG3A ON; VX3A ON; CF3A ON; CZ3A ON; XJ3A ON; XO3A ON; K1A -",
           "1>1 |1>1 |1>1 |1>1 |1>1 |1>1 |1>1 ||");
    expect("<NOTES:", state, "VH3A ON; VZ3A ON; CE3A ON; XI3A ON; XP3A ON; K1A ON; K1A -",
           "2>ON |2>ON |2>ON |2>ON |2>ON |2>ON ||");
}

} // namespace
} // namespace vantrel::test
