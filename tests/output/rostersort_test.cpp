// SPDX-License-Identifier: MIT
#include "fakes/failingcalls.h"
#include "output/rostersort.h"
#include "platform/files.h"
#include "shared/fixedtext.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <cerrno>
#include <random>

namespace vantrel::test {
namespace {

using ::testing::HasSubstr;

std::string member(const std::string& call, const std::string& number) {
    return fitLeft(call, 10) + fitLeft(number, 10) + "JOHN      MA \r\n";
}

class RosterSort : public ::testing::Test {
protected:
    RosterSort() {
        for (int number = 1; number <= 5; ++number)
            folder.write(name(number), "");
    }
    static std::string name(int number) { return "SKSDB" + std::to_string(number) + ".TXT"; }
    std::string sorted(const std::string& bytes) {
        folder.write("SKSDB1.TXT", bytes);
        sortRosterFiles(files);
        return folder.read("SKSDB1.TXT");
    }

    TempFolder folder;
    FailingCalls calls;
    Files files{folder.string(), calls};
};

TEST_F(RosterSort, ByTheNumberWhateverItsLetterEqualOnesInPlace) {
    EXPECT_EQ(sorted(member("K9", "12345S") + member("K1", "0123T") + member("K2", "0007") +
                     member("K3", "0123") + member("K4", "0123C") + member("K5", "X9")),
              member("K5", "X9") + member("K2", "0007") + member("K1", "0123T") +
                  member("K3", "0123") + member("K4", "0123C") + member("K9", "12345S"));
}

TEST_F(RosterSort, ACallOfTenCharactersLendsItsLastOneToTheKey) {
    // "10002" and 0 against 3: the digit of the call comes first, a letter ends the number.
    EXPECT_EQ(sorted(member("ABCDEFGHI1", "0002") + member("AA1A", "0003") +
                     member("ABCDEFGHIJ", "0009")),
              member("ABCDEFGHIJ", "0009") + member("AA1A", "0003") + member("ABCDEFGHI1", "0002"));
}

TEST_F(RosterSort, LinesKeepTheirTrailingBlanksAndGetLineEnds) {
    const std::string wide = fitLeft("W1A       0002", 232);
    EXPECT_EQ(sorted(wide + "\nW2B       0001"), "W2B       0001\r\n" + wide + "\r\n");
}

TEST_F(RosterSort, RandomFilesComeOutAsByExchangingNeighbours) {
    std::mt19937 random(11);
    std::vector<std::pair<int, std::string>> lines;
    std::string bytes;
    for (int i = 0; i < 400; ++i) {
        const int number = static_cast<int>(random() % 60);
        lines.emplace_back(number, member("N" + std::to_string(i), zeroPadded(number, 4) + "T"));
        bytes += lines.back().second;
    }
    for (std::size_t pass = 0; pass < lines.size(); ++pass)
        for (std::size_t i = 0; i + 1 < lines.size(); ++i)
            if (lines[i].first > lines[i + 1].first)
                std::swap(lines[i], lines[i + 1]);
    std::string expected;
    for (const auto& [number, text] : lines)
        expected += text;
    EXPECT_EQ(sorted(bytes), expected);
}

TEST_F(RosterSort, AllFiveOrNone) {
    const std::string unsorted = member("K2", "0002") + member("K1", "0001");
    for (int number = 1; number <= 5; ++number)
        folder.write(name(number), unsorted);

    calls.failAt(Call::rename, 4, EIO);
    EXPECT_RUNTIME_ERROR(sortRosterFiles(files), ErrorCode::pathFileAccess, HasSubstr("SKSDB"));
    calls.heal();
    for (int number = 1; number <= 5; ++number)
        EXPECT_EQ(folder.read(name(number)), unsorted) << number;

    sortRosterFiles(files);
    for (int number = 1; number <= 5; ++number)
        EXPECT_EQ(folder.read(name(number)), member("K1", "0001") + member("K2", "0002"));
}

TEST_F(RosterSort, MissingOrOverlongFilesStopItBeforeAnyChange) {
    const std::string unsorted = member("K2", "0002") + member("K1", "0001");
    folder.write(name(1), unsorted);
    std::string tooLong;
    for (int i = 0; i < 8000; ++i)
        tooLong += member("K1", "0001");
    folder.write(name(5), tooLong);
    sortRosterFiles(files);
    folder.write(name(1), unsorted);
    folder.write(name(5), tooLong + member("K1", "0001"));
    EXPECT_RUNTIME_ERROR(sortRosterFiles(files), ErrorCode::subscriptOutOfRange,
                         ::testing::AllOf(HasSubstr("SKSDB5.TXT"), HasSubstr("8000")));
    std::filesystem::remove(folder.path() / name(5));
    EXPECT_RUNTIME_ERROR(sortRosterFiles(files), ErrorCode::fileNotFound, HasSubstr("SKSDB5.TXT"));
    EXPECT_EQ(folder.read(name(1)), unsorted);
}

} // namespace
} // namespace vantrel::test
