// SPDX-License-Identifier: MIT
#include "fakes/failingcalls.h"
#include "platform/files.h"
#include "roster/clublist.h"
#include "roster/rosterimport.h"
#include "roster/rosterrecord.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <algorithm>
#include <cerrno>

namespace vantrel::test {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

const std::string dataHeader =
    "SKCCNR|CALL|NAME|QTH|SPC|OLDCALL|SKCC|DXCODE|JOINDATE|CENTDATE|TRIBDATE";
const std::string datedHeader = "skccnr|call|name|city|state|date issued|ccnr";

class RosterImport : public ::testing::Test {
protected:
    TempFolder folder;
    FailingCalls calls;
    Files files{folder.string(), calls};

    ImportResult import(MemberList list, const std::string& bytes) {
        folder.write("list.txt", bytes);
        return importMembers(files, list, "list.txt", [](const ImportStep&) { return true; });
    }
    ImportResult importData(const std::string& bytes) { return import(MemberList::data, bytes); }
    ImportResult importList(const std::string& bytes) { return import(MemberList::members, bytes); }

    std::string rosterBytes() const {
        std::string all;
        for (const std::string_view name : rosterFiles)
            all += folder.read(std::string(name)) + "--\n";
        return all;
    }
};

std::string file(int number) {
    return std::string(rosterFiles[static_cast<std::size_t>(number - 1)]);
}

// One data line with what matters of it.
std::string data(const std::string& number, const std::string& call,
                 const std::string& name = "JOHN", const std::string& state = "MA") {
    return number + "|" + call + "|" + name + "|QTH|" + state + "||||||||\r\n";
}

TEST_F(RosterImport, BothListsMakeTheSameFiveFilesWhateverEndsTheirLines) {
    const std::vector<ListedMember> members{
        {"12C", "  k1abc", "christopher j", "mass"},
        {"12S", "K1LONGCALL/P", " Ann", ""},
        {" 12345t", "K3C", "   Maximilian", " G"}, // the blanks cost him his last letters
        {"", "K4D", "Zo\xEB\xDF", "MA"},
        {"1", "aa1a", "", "ny"},
        {"120", "N7N", "Ned", "ME"},
        {"7T", "W1AW", "Hiram", "CT"},
        {"25000", "ve3abc", "Vera", "ONT"},
        {"12T", "K1ABC", "Chris", "MA"}, // once more, in his place
    };
    for (const MemberList list : {MemberList::data, MemberList::members})
        for (const std::string end : {"\r\n", "\n"}) {
            const bool isData = list == MemberList::data;
            std::string bytes = (isData ? dataHeader : datedHeader) + end;
            for (std::size_t i = 0; i < members.size(); ++i)
                bytes += (isData ? dataLine(members[i], i) : memberLine(members[i], i)) + end;
            for (const std::string_view name : rosterFiles)
                folder.write(std::string(name), "");
            const ImportResult result = import(list, bytes);
            EXPECT_EQ(result.added, 8);
            EXPECT_EQ(result.fixed, 1);
            EXPECT_EQ(result.skipped, 0);
            EXPECT_EQ(rosterBytes(), "AA1A      0001                NY \r\n--\n"
                                     "K1ABC     0012T     CHRIS     MA \r\n"
                                     "K1LONGCALL012S      ANN          \r\n"
                                     "K3C       12345T    MAXIMIL   G  \r\n"
                                     "K4D                 ZO\xCB\xDF      MA \r\n--\n"
                                     "N7N       0120      NED       ME \r\n--\n"
                                     "W1AW      0007T     HIRAM     CT " +
                                         std::string(199, ' ') +
                                         "\r\n--\n"
                                         "VE3ABC    25000     VERA      ONT\r\n--\n");
        }
}

TEST_F(RosterImport, MemberPresentIsRewrittenInPlaceAndOnlyTheWFileIsPadded) {
    const std::string longer = "W9LONG    0005      LENNY     IL " + std::string(210, '.');
    folder.write(file(2), "K1AAA     0001      ANN       RI \r\n"
                          "K1ABC     0123C     JOHN      MA and more\n"
                          "\r\n"
                          "K1ABC     0999      DOUBLE    MA \r\n"
                          "K1AB");
    folder.write(file(4), "W1AW\r\n" + longer + "\r\nW2OLD     0006      OLD       NY ");
    const ImportResult result = importData(data("1", "W1AW", "HIRAM", "CT") + data("2", "W3NEW") +
                                           data("123T", "K1ABC", "JACK", "NH") + data("7", "K1AB"));
    EXPECT_EQ(result.added, 2); // "K1AB" is too short to hold a call's ten columns
    EXPECT_EQ(result.fixed, 2);
    const std::string tail(199, ' ');
    EXPECT_EQ(rosterBytes(), "--\n" // a missing file is made, empty as it is
                             "K1AAA     0001      ANN       RI \r\n"
                             "K1ABC     0123T     JACK      NH \r\n"
                             "\r\n"
                             "K1ABC     0999      DOUBLE    MA \r\n"
                             "K1AB\r\n"
                             "K1AB      0007      JOHN      MA \r\n--\n--\n"
                             "W1AW      0001      HIRAM     CT " +
                                 tail + "\r\n" + longer +
                                 "\r\n"
                                 "W2OLD     0006      OLD       NY " +
                                 tail +
                                 "\r\n"
                                 "W3NEW     0002      JOHN      MA " +
                                 tail + "\r\n--\n--\n");
}

TEST_F(RosterImport, HeadersAndBlankLinesAreNobodyAndShortLinesAreCounted) {
    const ImportResult result = importData(
        dataHeader +
        "\r\nSKCCIN|CALL|NAME|QTH|SPC|OLDCALL|JOINDATE|CENTDATE|TRIBDATE|\r\n"
        "SKCCNR|CALL|NAME|CITY|STATE|CCNR\r\nskcc anything|A|B|C|D|E|F|G|H|I|J|\r\n\r\n  \r\n"
        "1|K1SHORT|JOHN|QTH|MA|||||\r\n" // nine separators
        "2|K1FAR|JOHN|" +
        std::string(200, 'Q') +
        "|MA||||||||\r\n" // beyond column 200
        "3|K1FIT|JOHN|" +
        std::string(176, 'Q') + "|MA||||||||\r\n");
    EXPECT_EQ(result.skipped, 2);
    EXPECT_EQ(result.added, 1);
    EXPECT_EQ(folder.read(file(2)), "K1FIT     0003      JOHN      MA \r\n");
}

TEST_F(RosterImport, ListsLastFieldIsTheNumberWhicheverItsHeader) {
    const std::string plain =
        "skccnr|call|name|city|state|ccnr\r\n123|K1A|ANN|X|MA|123T\r\n124|K1B|BEN|X|MA|124C|\r\n"
        "125|K1C|CAL|X|MA|\r\n126|K1D|DOT|X|MA\r\n";
    EXPECT_EQ(importList(plain).skipped, 1);
    EXPECT_EQ(folder.read(file(2)), "K1A       0123T     ANN       MA \r\n"
                                    "K1B       0124C     BEN       MA \r\n"
                                    "K1C                 CAL       MA \r\n");
    // The date of a line that ends before its number is no number.
    const ImportResult dated = importList(datedHeader + "\r\n123|K1A|ANN|X|RI|2010-01-02|123T\r\n"
                                                        "124|K1B|BEN|X|MA|2010-01-02\r\n");
    EXPECT_EQ(dated.skipped, 1);
    EXPECT_EQ(dated.fixed, 0); // rewritten, but his number was right
    EXPECT_THAT(folder.read(file(2)), HasSubstr("K1A       0123T     ANN       RI \r\n"));
    EXPECT_THAT(folder.read(file(2)), HasSubstr("K1B       0124C"));
}

TEST_F(RosterImport, FullTableIsErrorNineAndTouchesNoFile) {
    std::string full;
    for (int i = 0; i < 4999; ++i)
        full += "A" + std::to_string(i) + "\r\n";
    folder.write(file(1), full);
    importData(data("1", "AA1LAST"));
    EXPECT_EQ(folder.read(file(1)).size(), full.size() + 35);

    const std::string before = folder.read(file(2));
    EXPECT_RUNTIME_ERROR(importData(data("2", "K1NEW") + data("3", "AA1OVER")),
                         ErrorCode::subscriptOutOfRange,
                         AllOf(HasSubstr("SKSDB1.TXT"), HasSubstr("5000")));
    EXPECT_EQ(folder.read(file(2)), before);

    std::string twentyThousand;
    for (int i = 0; i < 20000; ++i)
        twentyThousand += "\n";
    EXPECT_TRUE(importData(twentyThousand).finished);
    EXPECT_RUNTIME_ERROR(importData(twentyThousand + "\n"), ErrorCode::subscriptOutOfRange,
                         AllOf(HasSubstr("list.txt"), HasSubstr("20000")));
}

TEST_F(RosterImport, GivenUpAtAnyStepItLeavesTheFilesAsTheyWere) {
    folder.write("list.txt", data("1", "K1ABC") + data("2", "N1ABC"));
    const std::vector<std::string> steps{"<<< WORKING >>>", "ADDING TO DATABASE",
                                         "ADDING TO DATABASE", "    SAVING THE FILES"};
    for (auto last = steps.begin(); last != steps.end(); ++last) {
        std::vector<std::string> told;
        const auto progress = [&](const ImportStep& step) {
            told.emplace_back(step.phase);
            return static_cast<std::ptrdiff_t>(told.size()) <= last - steps.begin();
        };
        EXPECT_FALSE(importMembers(files, MemberList::data, "list.txt", progress).finished);
        EXPECT_EQ(told, std::vector<std::string>(steps.begin(), last + 1));
        EXPECT_FALSE(folder.has(file(1)));
    }
}

TEST_F(RosterImport, DiskFullWhileSavingLeavesAllFilesAsTheyWere) {
    importData(data("1", "AA1A") + data("1", "K1A") + data("1", "N1A") + data("1", "W1A"));
    const std::string before = rosterBytes();
    calls.failAt(Call::write, 4, ENOSPC, true);
    EXPECT_RUNTIME_ERROR(
        importData(data("2", "AA1A") + data("2", "K1A") + data("2", "N1A") + data("2", "W1A")),
        ErrorCode::diskFull, HasSubstr("SKSDB"));
    calls.heal();
    EXPECT_EQ(rosterBytes(), before);
}

} // namespace
} // namespace vantrel::test
