// SPDX-License-Identifier: MIT
#include "fakes/failingcalls.h"
#include "output/adif.h"
#include "output/contacts.h"
#include "output/outputfiles.h"
#include "platform/files.h"
#include "shared/qsotable.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <cerrno>

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

TEST(Adif, EveryBandHasItsNameAndOtherFrequenciesTheOneBefore) {
    const auto start = [](const std::string& frequency) {
        const std::string bytes = adifOf({line({.frequency = frequency})});
        return bytes.substr(7, bytes.find("<MODE") - 7);
    };
    EXPECT_EQ(start("1825"), "<FREQ:5>1.825<BAND:4>160M");
    EXPECT_EQ(start("3550"), "<FREQ:5>3.550<BAND:3>80M");
    EXPECT_EQ(start("7045"), "<FREQ:5>7.045<BAND:3>40M");
    EXPECT_EQ(start("10120"), "<FREQ:6>10.120<BAND:3>30M");
    EXPECT_EQ(start("18080"), "<FREQ:6>18.080<BAND:3>17M");
    EXPECT_EQ(start("21050"), "<FREQ:6>21.050<BAND:3>15M");
    EXPECT_EQ(start("24910"), "<FREQ:6>24.910<BAND:3>12M");
    EXPECT_EQ(start("28050"), "<FREQ:6>28.050<BAND:3>10M");
    EXPECT_EQ(start("50125"), "<FREQ:6>50.125<BAND:0>");
    EXPECT_EQ(start("472"), "<FREQ:0><BAND:0>");
    EXPECT_EQ(start(""), "<FREQ:0><BAND:0>");

    const std::string bytes = adifOf(
        {line({.frequency = "7045"}), line({.frequency = "50125"}), line({.frequency = "472"})});
    EXPECT_THAT(bytes, HasSubstr("<EOR>\r\n<FREQ:6>50.125<BAND:3>40M<MODE"));
    const std::size_t last = bytes.rfind("<FREQ");
    EXPECT_EQ(bytes.substr(last, 25), "<FREQ:6>50.125<BAND:3>40M");
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

// What each contact of a random log becomes, item by item, from its columns alone.
TEST(Adif, RandomLogsAgreeWithAnIndependentWriter) {
    const auto cut = [](const std::string& text, std::size_t column, std::size_t width) {
        return text.size() < column ? std::string() : text.substr(column - 1, width);
    };
    const auto item = [](const std::string& name, std::string value) {
        value.erase(0, std::min(value.find_first_not_of(' '), value.size()));
        value.erase(value.find_last_not_of(' ') + 1);
        return "<" + name + ":" + std::to_string(value.size()) + ">" + value;
    };
    const std::map<std::string, std::string> bandOf{{"1.", "160M"}, {"3.", "80M"}, {"7.", "40M"},
                                                    {"10", "30M"},  {"14", "20M"}, {"18", "17M"},
                                                    {"21", "15M"},  {"24", "12M"}, {"28", "10M"}};
    for (unsigned seed = 1; seed <= 20; ++seed) {
        const auto lines = randomContacts(seed, 150);
        std::string expected = "<EOH>\r\n";
        std::string mhz;
        std::string band;
        for (const std::string& text : lines) {
            const int khz = std::atoi(cut(text, 6, 5).c_str());
            if (khz >= 1000)
                mhz =
                    std::to_string(khz / 1000) + "." + std::to_string(1000 + khz % 1000).substr(1);
            if (bandOf.count(mhz.substr(0, 2)) != 0)
                band = bandOf.at(mhz.substr(0, 2));
            const std::string number = item("", cut(text, 96, 6)).substr(4);
            const std::string marker = cut(text, 102, 6);
            expected += item("FREQ", mhz) + item("BAND", band) + "<MODE:2>CW<QSO_DATE:8>" +
                        cut(text, 15, 4) + cut(text, 20, 2) + cut(text, 23, 2) + "<TIME_ON:4>" +
                        cut(text, 26, 4) + "<RST_SENT:3>599" + item("CALL", cut(text, 66, 10)) +
                        "<RST_RCVD:3>579" + item("NAME", cut(text, 81, 10)) +
                        item("STATE", cut(text, 92, 3)) + item("SKCC_NR", number) +
                        "<COMMENT:15>SKCC NR: " + number +
                        (marker == "K3Y/EU" ? "<CONT:2>EU<EOR>\r\n" : "<EOR>\r\n");
        }
        EXPECT_EQ(adifOf(lines), expected + "<EOF>\r\n") << "seed " << seed;
    }
}

// --- The files ------------------------------------------------------------------------------

TEST(OutputFiles, NamesBesideTheLog) {
    EXPECT_EQ(adifFileName("SKS0512.CBR"), "SKS0512.ADI");
    EXPECT_EQ(adifFileName("SKS"), "ADI");
    EXPECT_RUNTIME_ERROR(adifFileName("AB"), ErrorCode::invalidCall, HasSubstr("AB"));
    EXPECT_EQ(strictAdifFileName("SKS0512.CBR"), "SKS0512-STRICT.ADI");
    EXPECT_EQ(scorePdfName("/A.B/LOG"), "/A.B/LOG-SCORE.PDF");
    EXPECT_EQ(logPdfName("A.B\\LOG.CBR"), "A.B\\LOG-LOG.PDF");
}

class AdifFile : public ::testing::Test {
protected:
    TempFolder folder;
    FailingCalls calls;
    Files files{folder.string(), calls};
    QsoTable table;
};

TEST_F(AdifFile, ReplacesTheOldOneAndRefillsTheTable) {
    folder.write("SKS.CBR", logOf({line({.number = "1234T"})}));
    folder.write("SKS.ADI", "old");
    EXPECT_EQ(exportAdif(files, "SKS.CBR", table), folder.string() + "/SKS.ADI");
    EXPECT_EQ(folder.read("SKS.ADI"), wrapped(plainRecord));
    EXPECT_EQ(table.count(), 1);
}

TEST_F(AdifFile, NothingIsWrittenWhenTheLogCannotBeReadWhole) {
    EXPECT_RUNTIME_ERROR(exportAdif(files, "SKS.CBR", table), ErrorCode::fileNotFound,
                         HasSubstr("SKS.CBR"));
    folder.write("SKS.CBR", logOf(std::vector<std::string>(12001, line({}))));
    EXPECT_RUNTIME_ERROR(exportAdif(files, "SKS.CBR", table), ErrorCode::subscriptOutOfRange,
                         HasSubstr("12000"));
    EXPECT_EQ(folder.names(), std::vector<std::string>{"SKS.CBR"});
}

TEST_F(AdifFile, AFullDiskLeavesTheOldFile) {
    folder.write("SKS.CBR", logOf({line({})}));
    folder.write("SKS.ADI", "old");
    calls.failAt(Call::write, 1, ENOSPC);
    EXPECT_RUNTIME_ERROR(exportAdif(files, "SKS.CBR", table), ErrorCode::diskFull,
                         HasSubstr("SKS"));
    EXPECT_EQ(folder.read("SKS.ADI"), "old");
}

TEST_F(AdifFile, ALogThatIsCalledLikeItsAdifFileIsNotWrittenOver) {
    const std::string log = logOf({line({})});
    folder.write("sks.adi", log);
    EXPECT_RUNTIME_ERROR(exportAdif(files, "SKS.ADI", table), ErrorCode::pathFileAccess,
                         HasSubstr("sks.adi"));
    EXPECT_EQ(folder.read("sks.adi"), log);
}

} // namespace
} // namespace vantrel::test
