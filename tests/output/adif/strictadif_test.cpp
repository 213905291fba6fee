// SPDX-License-Identifier: MIT
#include "base/fixedtext.h"
#include "base/version.h"
#include "output/adif/strictadif.h"
#include "output/score/contacts.h"
#include "platform/clock.h"
#include "support/tempfolder.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace vantrel::test {
namespace {

using ::testing::HasSubstr;

constexpr std::string_view created = "20110616 001230";
const std::string head = "Contacts logged with Vantrel\r\n<ADIF_VER:5>3.1.4 <PROGRAMID:7>VANTREL "
                         "<PROGRAMVERSION:" +
                         std::to_string(version.size()) + '>' + std::string(version) +
                         " <CREATED_TIMESTAMP:15>20110616 001230 <EOH>\r\n";

const std::vector<std::string> contacts{line({.number = "1234T"}),
                                        line({.call = "DL1QRS",
                                              .number = "NONE",
                                              .state = "DL",
                                              .name = "J\xDCRGEN",
                                              .frequency = "7045",
                                              .date = "07-01-2011",
                                              .marker = "DUPE",
                                              .myCall = "DK9ABC",
                                              .myState = "DL"}),
                                        line({.call = "VE3XYZ/W1",
                                              .number = "12345C",
                                              .frequency = "50125",
                                              .date = "2012-02-30", // as logs roll the day
                                              .time = "2359",
                                              .marker = "K3Y/0 "})};

TEST(StrictAdif, WholeFile) {
    const std::string mySide = "<RST_SENT:3>599 <STATION_CALLSIGN:5>W1ABC <OPERATOR:5>W1ABC "
                               "<MY_STATE:2>MA <MY_DXCC:3>291 ";
    EXPECT_EQ(
        strictAdifText(views(contacts), created),
        head +
            "<CALL:5>K1ABC <QSO_DATE:8>20110616 <TIME_ON:4>0012 <BAND:3>20m <FREQ:6>14.050 "
            "<MODE:2>CW <RST_RCVD:3>579 <NAME:4>JOHN <STATE:2>MA <DXCC:3>291 <SKCC:5>1234T " +
            mySide +
            "<EOR>\r\n"
            "<CALL:6>DL1QRS <QSO_DATE:8>20110701 <TIME_ON:4>0012 <BAND:3>40m <FREQ:5>7.045 "
            "<MODE:2>CW <RST_RCVD:3>579 <NAME:6>JURGEN <NOTES:7>DL NONE <RST_SENT:3>599 "
            "<STATION_CALLSIGN:6>DK9ABC <OPERATOR:6>DK9ABC <APP_VANTREL_DUPE:1>Y <EOR>\r\n"
            "<CALL:9>VE3XYZ/W1 <QSO_DATE:8>20120301 <TIME_ON:4>2359 <FREQ:6>50.125 "
            "<MODE:2>CW <RST_RCVD:3>579 <NAME:4>JOHN <STATE:2>MA <DXCC:3>291 <SKCC:6>12345C " +
            mySide + "<APP_VANTREL_K3Y:5>K3Y/0 <EOR>\r\n");
}

TEST(StrictAdif, ValuesOutsideTheirFieldAreLeftOutOrNoted) {
    const struct {
        Contact contact;
        std::string fields;
    } rows[] = {
        {{.date = "01-01-2012"}, "<CALL:5>K1ABC <QSO_DATE:8>20120101 <TIME_ON"},
        {{.date = "2011-6-16 "}, "<CALL:5>K1ABC <TIME_ON"},
        {{.date = "2011-13-01"}, "<CALL:5>K1ABC <TIME_ON"},
        {{.date = "1911-06-16"}, "<CALL:5>K1ABC <TIME_ON"},
        {{.time = "2460"}, "<QSO_DATE:8>20110616 <BAND"},
        {{.frequency = "14051", .date = "2011-06-17"},
         "0617 <TIME_ON:4>0012 <BAND:3>20m <FREQ:6>14.051"},
        {{.frequency = "472"}, "0012 <FREQ:5>0.472 <MODE"},
        {{.frequency = "14.05"}, "0012 <MODE"},
        {{.frequency = ""}, "0012 <MODE"},
        {{.name = "\xDF\x80\xE9\t\xF8 \xC6"}, "<NAME:9>ss?e?o AE "},
        {{.number = "12345"}, "<DXCC:3>291 <SKCC:5>12345 <RST_SENT"},
        {{.number = "100W"}, "<DXCC:3>291 <NOTES:4>100W <RST_SENT"},
        {{.number = ""}, "<DXCC:3>291 <RST_SENT"},
        // A state needs a call of its country.
        {{.call = "K5ABC", .state = "OK"}, "JOHN <STATE:2>OK <DXCC:3>291 <SKCC:4>1234 <RST"},
        {{.call = "OK1ABC", .state = "OK"}, "JOHN <SKCC:4>1234 <NOTES:2>OK <RST"},
        {{.call = "VE3ABC", .state = "ON"}, "JOHN <STATE:2>ON <DXCC:1>1 <SKCC"},
        {{.call = "ON4ABC", .state = "ON"}, "JOHN <SKCC:4>1234 <NOTES:2>ON <RST"},
        {{.call = "VY1AB", .state = "YT"}, "JOHN <STATE:2>YT <DXCC:1>1 <SKCC"},
        {{.call = "VE3ABC", .state = "MA"}, "JOHN <SKCC:4>1234 <NOTES:2>MA <RST"},
        {{.call = "AL7X", .state = "AK"}, "JOHN <STATE:2>AK <DXCC:1>6 <SKCC"},
        {{.call = "NH6X", .state = "HI"}, "JOHN <STATE:2>HI <DXCC:3>110 <SKCC"},
        {{.call = "AA3X", .state = "DC"}, "JOHN <STATE:2>DC <DXCC:3>291 <SKCC"},
        {{.call = "AM1X", .state = "AZ"}, "JOHN <SKCC:4>1234 <NOTES:2>AZ <RST"},
        {{.call = "K1ABC", .state = ""}, "JOHN <SKCC:4>1234 <RST"},
    };
    std::vector<std::string> all;
    std::string records; // none is coloured by the contact before
    for (const auto& [contact, fields] : rows) {
        all.push_back(line(contact));
        const std::string alone = strictAdifText({all.back()}, created);
        EXPECT_THAT(alone, HasSubstr(fields));
        records += alone.substr(head.size());
    }
    EXPECT_EQ(strictAdifText(views(all), created), head + records);
    EXPECT_EQ(strictAdifText({"QSO: 14050 C"}, created),
              head + "<BAND:3>20m <FREQ:6>14.050 <MODE:1>C <EOR>\r\n");
}

TEST(StrictAdif, CreationTimeIsUtcByTheCalendar) {
    EXPECT_EQ(creationTime({2012, 2, 28, 22, 5, 9}, "5"), "20120229 030509");
    EXPECT_EQ(creationTime({2011, 12, 31, 23, 59, 59}, "1"), "20120101 005959");
    EXPECT_EQ(creationTime({2012, 1, 1, 1, 15, 0}, "-2"), "20111231 231500");
}

// Two independent readers, one strict about values, one about framing: each must take every
// contact as the log has it. `reader`: how it is called.
void mustRead(const std::string& reader) {
    constexpr int notInstalled = 77;
    const TempFolder folder;
    folder.write("SKS-STRICT.ADI", strictAdifText(views(contacts), created));
    FILE* pipe = ::popen((reader + folder.string() + "/SKS-STRICT.ADI 2>&1").c_str(), "r");
    std::string printed;
    std::array<char, 4096> buffer{};
    while (std::fgets(buffer.data(), buffer.size(), pipe) != nullptr)
        printed += upper(buffer.data());
    const int status = ::pclose(pipe);
    if (WEXITSTATUS(status) == notInstalled)
        GTEST_SKIP() << "not installed (scripts/install-deps adif): " << reader;
    EXPECT_EQ(status, 0);
    EXPECT_EQ(printed, "K1ABC|20M|14.050|CW|20110616|0012|1234T\n"
                       "DL1QRS|40M|7.045|CW|20110701|0012|\n"
                       "VE3XYZ/W1||50.125|CW|20120301|2359|12345C\n");
}

const std::string scripts = VANTREL_OUTPUT_TESTS;

TEST(StrictAdif, AReaderThatIsStrictAboutValuesTakesEveryContact) {
    mustRead("command -v node npm >/dev/null || exit 77; NODE_PATH=$(npm root --global "
             "2>/dev/null) node " +
             scripts + "/readadif.js ");
}

TEST(StrictAdif, AReaderThatIsStrictAboutFramingTakesEveryContact) {
    mustRead("command -v python3 >/dev/null || exit 77; python3 " + scripts + "/readadif.py ");
}

} // namespace
} // namespace vantrel::test
