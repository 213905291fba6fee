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
using ::testing::ElementsAre;
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

    void expectFilesAre(const Clerk& clerk) const {
        for (std::size_t i = 0; i < rosterFiles.size(); ++i)
            EXPECT_EQ(folder.read(std::string(rosterFiles[i])), clerk.bytes(i)) << rosterFiles[i];
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

struct Shape {
    const char* name;
    MemberList list;
    const char* lineEnd;
};
void PrintTo(const Shape& shape, std::ostream* out) {
    *out << shape.name;
}

class RosterImportOfShape : public RosterImport, public ::testing::WithParamInterface<Shape> {};

INSTANTIATE_TEST_SUITE_P(Lists, RosterImportOfShape,
                         ::testing::Values(Shape{"DataCrLf", MemberList::data, "\r\n"},
                                           Shape{"DataInOneLine", MemberList::data, "\n"},
                                           Shape{"MembersCrLf", MemberList::members, "\r\n"},
                                           Shape{"MembersInOneLine", MemberList::members, "\n"}),
                         [](const auto& shape) { return std::string(shape.param.name); });

// A whole club twice over: the second list brings new awards, new members and one line too many
// for some, into files that the first has filled.
TEST_P(RosterImportOfShape, FilesAreWhatAPatientClerkMakesOfThem) {
    const auto listed = [this](const std::vector<ListedMember>& members) {
        const bool isData = GetParam().list == MemberList::data;
        std::string bytes = (isData ? dataHeader : datedHeader) + GetParam().lineEnd;
        for (std::size_t i = 0; i < members.size(); ++i)
            bytes +=
                (isData ? dataLine(members[i], i) : memberLine(members[i], i)) + GetParam().lineEnd;
        return bytes;
    };
    std::vector<ListedMember> members = madeUpMembers(600);
    Clerk clerk;
    for (int round = 1; round <= 2; ++round) {
        clerk.added = clerk.fixed = 0;
        for (const ListedMember& member : members)
            clerk.enter(member);
        const ImportResult result = import(GetParam().list, listed(members));
        EXPECT_TRUE(result.finished);
        EXPECT_EQ(result.added, clerk.added) << "round " << round;
        EXPECT_EQ(result.fixed, clerk.fixed) << "round " << round;
        EXPECT_EQ(result.skipped, 0);
        expectFilesAre(clerk);

        for (std::size_t i = 0; i < members.size(); i += 4)
            members[i].number +=
                members[i].number.find_first_of("CTS") == std::string::npos ? "C" : "";
        for (const ListedMember& more : madeUpMembers(900, 2))
            members.push_back(more);
    }
    EXPECT_GT(clerk.fixed, 50);
    EXPECT_GT(clerk.added, 200);
}

TEST_F(RosterImport, EachFieldIsBroughtToItsColumns) {
    importData(data("12C", "  k1abc", "christopher j", "mass") +
               data("12S", "K1LONGCALL/P", " Ann", "") + data("12345T", "K3C", "", " G") +
               data("", "K4D", "Zo\xEB\xDF"));
    EXPECT_EQ(folder.read(file(2)), "K1ABC     0012C     CHRISTOPHEMAS\r\n"
                                    "K1LONGCALL012S      ANN          \r\n"
                                    "K3C       12345T              G  \r\n"
                                    "K4D                 ZO\xCB\xDF      MA \r\n");
}

TEST_F(RosterImport, MemberPresentIsRewrittenInPlaceAtHisFirstLine) {
    folder.write(file(2), "K1AAA     0001      ANN       RI \r\n"
                          "K1ABC     0123C     JOHN      MA and more\n"
                          "\r\n"
                          "K1ABC     0999      DOUBLE    MA \r\n"
                          "K1AB");
    const ImportResult result = importData(data("123T", "K1ABC", "JACK", "NH") + data("7", "K1AB"));
    EXPECT_EQ(result.added, 1); // "K1AB" is too short to hold a call's ten columns
    EXPECT_EQ(result.fixed, 1);
    EXPECT_EQ(result.rosterFile, files.path(file(2)));
    EXPECT_EQ(folder.read(file(2)), "K1AAA     0001      ANN       RI \r\n"
                                    "K1ABC     0123T     JACK      NH \r\n"
                                    "\r\n"
                                    "K1ABC     0999      DOUBLE    MA \r\n"
                                    "K1AB\r\n"
                                    "K1AB      0007      JOHN      MA \r\n");
}

TEST_F(RosterImport, OnlyTheWFileIsPaddedAndItsShortLinesFound) {
    const std::string longer = "W9LONG    0005      LENNY     IL " + std::string(210, '.');
    folder.write(file(4), "W1AW\r\n" + longer + "\r\nW2OLD     0006      OLD       NY ");
    importData(data("1", "W1AW", "HIRAM", "CT") + data("2", "W3NEW") +
               data("3", "VE3ABC", "VERA", "ON"));
    const std::string tail(199, ' ');
    EXPECT_EQ(folder.read(file(4)), "W1AW      0001      HIRAM     CT " + tail + "\r\n" + longer +
                                        "\r\n" + "W2OLD     0006      OLD       NY " + tail +
                                        "\r\n" + "W3NEW     0002      JOHN      MA " + tail +
                                        "\r\n");
    EXPECT_EQ(folder.read(file(5)), "VE3ABC    0003      VERA      ON \r\n");
    EXPECT_EQ(folder.read(file(1)), ""); // a missing file is made, empty as it is
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

TEST_F(RosterImport, MissingListIsErrorFiftyThreeAndMakesNoFile) {
    EXPECT_RUNTIME_ERROR(importMembers(files, MemberList::data, dataListFile,
                                       [](const ImportStep&) { return true; }),
                         ErrorCode::fileNotFound, HasSubstr("skccdata.txt"));
    EXPECT_THAT(folder.names(), ::testing::IsEmpty());
}

TEST_F(RosterImport, GivenUpAtAnyStepItLeavesTheFilesAsTheyWere) {
    folder.write("list.txt", data("1", "K1ABC") + data("2", "N1ABC"));
    std::vector<std::string> phases;
    int stopAt = 1;
    ImportResult result;
    do {
        phases.clear();
        result = importMembers(files, MemberList::data, "list.txt", [&](const ImportStep& step) {
            phases.emplace_back(step.phase);
            return static_cast<int>(phases.size()) != stopAt;
        });
        EXPECT_EQ(result.finished, folder.has(file(1))) << "stopped at " << stopAt;
        ++stopAt;
    } while (!result.finished && stopAt < 10);
    // Told again after each file that is saved; then it is too late to give up.
    phases.erase(std::unique(phases.begin() + 3, phases.end()), phases.end());
    EXPECT_THAT(phases, ElementsAre("<<< WORKING >>>", "ADDING TO DATABASE", "ADDING TO DATABASE",
                                    "    SAVING THE FILES"));
}

TEST_F(RosterImport, CrashOrFullDiskWhileSavingLeavesAllFilesOldOrAllNew) {
    importData(data("1", "AA1A") + data("2", "K1A") + data("3", "N1A") + data("4", "W1A") +
               data("5", "G1A"));
    const auto contents = [this] {
        std::string all;
        for (const std::string_view name : rosterFiles)
            all += folder.read(std::string(name));
        return all;
    };
    const std::string before = contents();
    const std::string update = data("11C", "AA1A") + data("12C", "K1A") + data("13C", "N1A") +
                               data("14C", "W1A") + data("15C", "G1A");

    calls.failAt(Call::write, 4, ENOSPC, true);
    EXPECT_RUNTIME_ERROR(importData(update), ErrorCode::diskFull, HasSubstr("SKSDB"));
    calls.heal();
    EXPECT_EQ(contents(), before);

    bool finished = false;
    int olds = 0;
    for (int n = 1; !finished && n < 200; ++n) {
        calls.crashAt(n);
        try {
            importData(update);
            finished = true;
        } catch (const Crash&) {
        }
        calls.heal();
        files.recover();
        const std::string after = contents();
        const bool old = after == before;
        olds += old ? 1 : 0;
        EXPECT_TRUE(old || after.find("0011C") < after.find("0015C")) << "crash at " << n;
        if (!old) { // the next crash meets the old files again
            EXPECT_EQ(std::count(after.begin(), after.end(), 'C'), 5) << "crash at " << n;
            std::size_t start = 0;
            for (std::size_t i = 0; i < rosterFiles.size(); ++i) {
                const std::size_t size = folder.read(std::string(rosterFiles[i])).size();
                folder.write(std::string(rosterFiles[i]), before.substr(start, size));
                start += size;
            }
        }
    }
    EXPECT_TRUE(finished);
    EXPECT_GT(olds, 5);
}

TEST(RosterImportTexts, SayHowManyInTheWordsOfTheirScreen) {
    EXPECT_EQ(addedText(MemberList::data, 12), "DONE. . . . 12 MBRS ADDED. Click EXIT");
    EXPECT_EQ(addedText(MemberList::members, 0), "DONE...0 Mbrs Added...Click EXIT");
    EXPECT_EQ(fixedText(3), "3 SKCC#'s Fixed");
    EXPECT_EQ(skippedText(3), "3 LINES SKIPPED");
    EXPECT_EQ(skippedText(0), "");
    EXPECT_EQ(lineNumberText(7), "7" + std::string(24, ' '));
}

} // namespace
} // namespace vantrel::test
