// SPDX-License-Identifier: MIT
#include "base/fixedtext.h"
#include "base/version.h"
#include "log/log.h"
#include "log/shortlog.h"
#include "output/adif/adif.h"
#include "output/adif/strictadif.h"
#include "platform/clock.h"
#include "support/tempfolder.h"

#include <array>
#include <cstdio>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace vantrel::test {
namespace {

// What the file must hold for contacts that are said in these fields.
using Rows = std::initializer_list<std::pair<const char*, const char*>>;

void expectIn(std::string (*file)(const std::string& log), FieldList fields, Rows rows) {
    for (const auto& [contacts, expected] : rows)
        EXPECT_THAT(file(logOf(fields, contacts)), ::testing::HasSubstr(expected)) << contacts;
}

std::string customary(const std::string& log) {
    return adifText(contactsIn(log));
}

TEST(Adif, EveryContactIsALineWithTheQuirksThatReadersRelyOn) {
    const std::string record = "<FREQ:6>14.050<BAND:3>20M<MODE:2>CW<QSO_DATE:8>20110616"
                               "<TIME_ON:4>0012<RST_SENT:3>599<CALL:5>K1ABC<RST_RCVD:3>579"
                               "<NAME:3>TOM<STATE:2>MA<SKCC_NR:5>1234T<COMMENT:15>SKCC NR: 1234T"
                               "<EOR>\r\n";
    EXPECT_EQ(customary(logOf({&Fields::hisNumber, &Fields::rstReceived, &Fields::marker},
                              "1234T 579; 1234T 579 DUPE")),
              "<EOH>\r\n" + record + record + "<EOF>\r\n");
    // What is no frequency, and what is outside the bands, leaves that of the contact before.
    expectIn(customary, {&Fields::frequency},
             {{"-", "<EOH>\r\n<FREQ:0><BAND:0><MODE"},
              {"50125", "<EOH>\r\n<FREQ:6>50.125<BAND:0><MODE"},
              {"1825; 472", "<EOR>\r\n<FREQ:5>1.825<BAND:4>160M<MODE"},
              {"1825; 50125", "<EOR>\r\n<FREQ:6>50.125<BAND:4>160M<MODE"}});
    expectIn(customary, {&Fields::hisNumber, &Fields::marker, &Fields::date},
             {{"89S", "<SKCC_NR:3>89S<COMMENT:15>SKCC NR: 89S<EOR>"}, // as if it were padded
              {"-", "<SKCC_NR:0><COMMENT:15>SKCC NR: <EOR>"},
              {"1 K3Y/EU", "NR: 1<CONT:2>EU<EOR>"},
              {"1 K3Y/0_", "NR: 1<EOR>"},
              {"1 - 07-01-2011", "<QSO_DATE:8>07-0-211<TIME_ON"},
              {"QSO:  7045 CW 2011-0",
               "<FREQ:5>7.045<BAND:3>40M<MODE:2>CW<QSO_DATE:8>20110<TIME_ON:4><RST_SENT:3><CALL:0>"
               "<RST_RCVD:3><NAME:0><STATE:0><SKCC_NR:0><COMMENT:9>SKCC NR: <EOR>\r\n"}});
}

std::string strict(const std::string& log) {
    return strictAdifText(contactsIn(log), "20110616 001230");
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

TEST(StrictAdif, ValuesOutsideTheirFieldAreLeftOutOrNoted) {
    expectIn(strict, {&Fields::date, &Fields::time},
             {{"01-01-2012", "K1ABC <QSO_DATE:8>20120101 <TIME_ON"},
              {"1930-12-31 2359", "K1ABC <QSO_DATE:8>19301231 <TIME_ON:4>2359 "},
              {"2011-13-01", "K1ABC <TIME_ON"},
              {"2011-00-01", "K1ABC <TIME_ON"},
              {"2011-06-00", "K1ABC <TIME_ON"},
              {"2011-06-32", "K1ABC <TIME_ON"},
              {"2011-6-16_", "K1ABC <TIME_ON"},
              {"1929-12-31 2400", "K1ABC <BAND"},
              {"2011-06-16 2360", "0616 <BAND"}});
    expectIn(strict, {&Fields::frequency},
             {{"472", "0012 <FREQ:5>0.472 <MODE"}, {"14.05", "0012 <MODE"}, {"-", "0012 <MODE"}});
    expectIn(strict, {&Fields::hisName, &Fields::hisNumber},
             {{"\xDF\x80\xE9\a\xF8_\xC6", "<NAME:9>ss?e?o AE <"},
              {"TOM 12345", "<DXCC:3>291 <SKCC:5>12345 <RST"},
              {"TOM 100W", "<DXCC:3>291 <NOTES:4>100W <RST"},
              {"TOM -", "<DXCC:3>291 <RST"},
              {"QSO: 14050 C", "<EOH>\r\n<BAND:3>20m <FREQ:6>14.050 <MODE:1>C <EOR>\r\n"}});
}

TEST(StrictAdif, AStateNeedsACallOfItsCountry) {
    const FieldList state{&Fields::hisCall, &Fields::hisState};
    expectIn(strict, state,
             {{"K5ABC OK", "TOM <STATE:2>OK <DXCC:3>291 <SKCC"},
              {"AL7X AK", "TOM <STATE:2>AK <DXCC:1>6 <SKCC"},
              {"NH6X HI", "TOM <STATE:2>HI <DXCC:3>110 <SKCC"},
              {"AA3X DC", "TOM <STATE:2>DC <DXCC:3>291 <SKCC"},
              {"VY1AB YT", "TOM <STATE:2>YT <DXCC:1>1 <SKCC"},
              {"K1ABC -", "TOM <SKCC:4>1234 <RST"}});
    for (const char* call : {"VA", "VG", "VO", "VX", "VY", "CF", "CK", "CY", "CZ", "XJ", "XO"})
        expectIn(strict, state,
                 {{(std::string(call) + "3A ON").c_str(), "<STATE:2>ON <DXCC:1>1 <SKCC"}});
    for (const char* call : {"VH", "VN", "VP", "VW", "VZ", "CE", "CL", "CX", "XI", "XP", "ON", "K"})
        expectIn(strict, state,
                 {{(std::string(call) + "3A ON").c_str(), "TOM <SKCC:4>1234 <NOTES:2>ON <"}});
    for (const char* call : {"AM", "OK", "VE", "ZA"})
        expectIn(strict, state,
                 {{(std::string(call) + "3A OK").c_str(), "TOM <SKCC:4>1234 <NOTES:2>OK <"}});
}

TEST(StrictAdif, CreationTimeIsUtcByTheCalendar) {
    EXPECT_EQ(creationTime({2012, 2, 28, 22, 5, 9}, "5"), "20120229 030509");
    EXPECT_EQ(creationTime({2011, 12, 31, 23, 59, 59}, "1"), "20120101 005959");
    EXPECT_EQ(creationTime({2012, 1, 1, 1, 15, 0}, "-2"), "20111231 231500");
}

// Independent readers, one strict about values, one about framing: each takes every contact.
TEST(StrictAdif, OtherProgramsReadWhatStandsInTheLog) {
    const TempFolder folder;
    folder.write("SKS-STRICT.ADI", strict(threeContacts));
    const std::string scripts = VANTREL_OUTPUT_TESTS;
    std::string missing; // readers, or what runs them
    for (const std::string& reader :
         {"NODE_PATH=$(npm root --global 2>/dev/null) node " + scripts + "/readadif.js ",
          "python3 " + scripts + "/readadif.py "}) {
        FILE* pipe = ::popen((reader + folder.string() + "/SKS-STRICT.ADI 2>&1").c_str(), "r");
        std::array<char, 1000> printed{};
        std::ignore = std::fread(printed.data(), 1, printed.size() - 1, pipe);
        const int status = WEXITSTATUS(::pclose(pipe));
        if (status == 77 || status == 127)
            missing += reader;
        else
            EXPECT_EQ(upper(printed.data()), "K1ABC|20M|14.050|CW|20110616|0012|1234T\n"
                                             "DL1QRS|40M|7.045|CW|20110701|0012|\n"
                                             "VE3XYZ/W1||50.125|CW|20120301|0012|12345C\n");
    }
    if (!missing.empty())
        GTEST_SKIP() << "not installed (scripts/install-deps adif): " << missing;
}

} // namespace
} // namespace vantrel::test
