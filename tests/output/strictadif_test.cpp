// SPDX-License-Identifier: MIT
#include "fakes/failingcalls.h"
#include "fakes/fakeclock.h"
#include "output/contacts.h"
#include "output/strictadif.h"
#include "platform/files.h"
#include "shared/qsotable.h"
#include "shared/settings.h"
#include "support/errors.h"
#include "support/tempfolder.h"

namespace vantrel::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

constexpr std::string_view created = "20110616 001230";
const std::string head =
    "Contacts logged with Vantrel\r\n<ADIF_VER:5>3.1.4 <PROGRAMID:7>VANTREL "
    "<PROGRAMVERSION:5>" VANTREL_VERSION " <CREATED_TIMESTAMP:15>20110616 001230 <EOH>\r\n";

std::string recordOf(const Contact& contact) {
    const std::string text = line(contact);
    return strictAdifText({text}, created).substr(head.size());
}

TEST(StrictAdif, WholeFile) {
    const std::string first = line({.number = "1234T"});
    const std::string second = line({.call = "DL1QRS",
                                     .number = "NONE",
                                     .state = "DL",
                                     .name = "J\xDCRGEN",
                                     .frequency = "7045",
                                     .date = "07-01-2011",
                                     .marker = "DUPE",
                                     .myCall = "DK9ABC",
                                     .myState = "DL"});
    EXPECT_EQ(strictAdifText({first, second}, created),
              head +
                  "<CALL:5>K1ABC <QSO_DATE:8>20110616 <TIME_ON:4>0012 <BAND:3>20m <FREQ:6>14.050 "
                  "<MODE:2>CW <RST_RCVD:3>579 <NAME:4>JOHN <STATE:2>MA <DXCC:3>291 <SKCC:5>1234T "
                  "<RST_SENT:3>599 <STATION_CALLSIGN:5>W1ABC <OPERATOR:5>W1ABC <MY_STATE:2>MA "
                  "<MY_DXCC:3>291 <EOR>\r\n"
                  "<CALL:6>DL1QRS <QSO_DATE:8>20110701 <TIME_ON:4>0012 <BAND:3>40m <FREQ:5>7.045 "
                  "<MODE:2>CW <RST_RCVD:3>579 <NAME:6>JURGEN <NOTES:7>DL NONE <RST_SENT:3>599 "
                  "<STATION_CALLSIGN:6>DK9ABC <OPERATOR:6>DK9ABC <APP_VANTREL_DUPE:1>Y <EOR>\r\n");
    EXPECT_EQ(strictAdifText({}, created), head);
}

TEST(StrictAdif, TheDateIsOneOfTheCalendar) {
    EXPECT_THAT(recordOf({.date = "01-01-2012"}), HasSubstr("<QSO_DATE:8>20120101 "));
    // The log's own day after 29 February.
    EXPECT_THAT(recordOf({.date = "2012-02-30"}), HasSubstr("<QSO_DATE:8>20120301 "));
    EXPECT_THAT(recordOf({.date = "2011-6-16 "}), Not(HasSubstr("QSO_DATE")));
    EXPECT_THAT(recordOf({.date = "2011-13-01"}), Not(HasSubstr("QSO_DATE")));
    EXPECT_THAT(recordOf({.date = "1911-06-16"}), Not(HasSubstr("QSO_DATE")));
    EXPECT_THAT(recordOf({.time = "2460"}), Not(HasSubstr("TIME_ON")));
}

TEST(StrictAdif, AStateNeedsACallOfItsCountry) {
    const auto state = [](const std::string& code, const std::string& call) {
        const std::string record = recordOf({.call = call, .state = code});
        const std::size_t from = record.find("<NAME:4>JOHN ") + 13;
        return record.substr(from, record.find("<SKCC") - from) +
               record.substr(record.find("1234 ") + 5,
                             record.find("<RST_SENT") - record.find("1234 ") - 5);
    };
    EXPECT_EQ(state("OK", "K5ABC"), "<STATE:2>OK <DXCC:3>291 ");
    EXPECT_EQ(state("OK", "OK1ABC"), "<NOTES:2>OK ");
    EXPECT_EQ(state("ON", "VE3ABC"), "<STATE:2>ON <DXCC:1>1 ");
    EXPECT_EQ(state("ON", "ON4ABC"), "<NOTES:2>ON ");
    EXPECT_EQ(state("YT", "VY1AB"), "<STATE:2>YT <DXCC:1>1 ");
    EXPECT_EQ(state("MA", "VE3ABC"), "<NOTES:2>MA ");
    EXPECT_EQ(state("MA", "VE3ABC/W1"), "<STATE:2>MA <DXCC:3>291 ");
    EXPECT_EQ(state("AK", "AL7X"), "<STATE:2>AK <DXCC:1>6 ");
    EXPECT_EQ(state("HI", "NH6X"), "<STATE:2>HI <DXCC:3>110 ");
    EXPECT_EQ(state("DC", "AA3X"), "<STATE:2>DC <DXCC:3>291 ");
    EXPECT_EQ(state("AP", "AP2X"), "<NOTES:2>AP ");
    EXPECT_EQ(state("EA8", "EA8ABC"), "<NOTES:3>EA8 ");
    EXPECT_EQ(state("", "K1ABC"), "");
}

TEST(StrictAdif, OnlyAMemberHasANumber) {
    EXPECT_THAT(recordOf({.number = "89S"}), HasSubstr("<SKCC:3>89S "));
    EXPECT_THAT(recordOf({.number = "12345"}), HasSubstr("<SKCC:5>12345 "));
    EXPECT_THAT(recordOf({.number = "100W"}), Not(HasSubstr("<SKCC")));
    EXPECT_THAT(recordOf({.number = "100W"}), HasSubstr("<NOTES:4>100W "));
    EXPECT_THAT(recordOf({.number = ""}),
                Not(testing::AnyOf(HasSubstr("<SKCC"), HasSubstr("NOTES"))));
}

TEST(StrictAdif, ValuesOutsideTheirFieldAreLeftOut) {
    EXPECT_THAT(recordOf({.frequency = "50125"}), HasSubstr("<FREQ:6>50.125 "));
    EXPECT_THAT(recordOf({.frequency = "50125"}), Not(HasSubstr("BAND")));
    EXPECT_THAT(recordOf({.frequency = "472"}), HasSubstr("<FREQ:5>0.472 "));
    EXPECT_THAT(recordOf({.frequency = "14.05"}), Not(HasSubstr("FREQ")));
    EXPECT_THAT(recordOf({.frequency = ""}), Not(HasSubstr("FREQ")));
    EXPECT_THAT(recordOf({.name = ""}), Not(HasSubstr("NAME")));
    EXPECT_THAT(recordOf({.name = "\xDF\x80\xE9\t\xF8 \xC6"}), HasSubstr("<NAME:9>ss?e?o AE "));
    EXPECT_THAT(recordOf({.marker = "K3Y/EU"}), HasSubstr("<APP_VANTREL_K3Y:6>K3Y/EU <EOR>"));
    EXPECT_THAT(recordOf({.marker = "K3Y/0 "}), HasSubstr("<APP_VANTREL_K3Y:5>K3Y/0 <EOR>"));
    EXPECT_EQ(strictAdifText({"QSO: 14050 C"}, created),
              head + "<BAND:3>20m <FREQ:6>14.050 <MODE:1>C <EOR>\r\n");
}

TEST(StrictAdif, CreationTimeIsUtcByTheCalendar) {
    EXPECT_EQ(creationTime({2012, 2, 28, 22, 5, 9}, "5"), "20120229 030509");
    EXPECT_EQ(creationTime({2011, 12, 31, 23, 59, 59}, "1"), "20120101 005959");
    EXPECT_EQ(creationTime({2012, 1, 1, 1, 15, 0}, "-2"), "20111231 231500");
    EXPECT_EQ(creationTime({2011, 6, 16, 0, 12, 30}, "0"), created);
}

TEST(StrictAdif, TheFileLiesBesideTheFirst) {
    const TempFolder folder;
    FailingCalls calls;
    Files files(folder.string(), calls);
    const FakeClock clock;
    QsoTable table;
    OperatingSettings settings;
    settings.logFileName = "SKS.CBR";
    EXPECT_RUNTIME_ERROR(exportStrictAdif(files, clock, settings, table), ErrorCode::fileNotFound,
                         HasSubstr("SKS.CBR"));
    folder.write("SKS.CBR", logOf({line({})}));
    EXPECT_EQ(exportStrictAdif(files, clock, settings, table), folder.string() + "/SKS-STRICT.ADI");
    EXPECT_EQ(folder.read("SKS-STRICT.ADI"), head + recordOf({}));
}

} // namespace
} // namespace vantrel::test
