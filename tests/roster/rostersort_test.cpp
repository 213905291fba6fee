// SPDX-License-Identifier: MIT
#include "base/fixedtext.h"
#include "platform/files.h"
#include "platform/systemcalls.h"
#include "roster/rostersort.h"
#include "support/errors.h"
#include "support/tempfolder.h"

namespace vantrel::test {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

std::string member(const std::string& call, const std::string& number) {
    return leftAligned(call, 10) + leftAligned(number, 10) + "JOHN      MA \r\n";
}

class RosterSort : public ::testing::Test {
protected:
    RosterSort() {
        for (int number = 1; number <= 5; ++number)
            folder.write("SKSDB" + std::to_string(number) + ".TXT", "");
    }
    std::string sorted(const std::string& bytes) {
        folder.write("SKSDB1.TXT", bytes);
        sortRosterFiles(files);
        return folder.read("SKSDB1.TXT");
    }

    TempFolder folder;
    SystemCalls calls;
    Files files{folder.string(), calls};
};

TEST_F(RosterSort, ByTheNumberWhateverItsLetterEqualOnesInPlace) {
    EXPECT_EQ(sorted(member("K9", "12345S") + member("K1", "0123T") + member("K2", "0007") +
                     member("K3", "0123") + member("K4", "0123C") + member("K5", "X9")),
              member("K5", "X9") + member("K2", "0007") + member("K1", "0123T") +
                  member("K3", "0123") + member("K4", "0123C") + member("K9", "12345S"));
    std::string equal;
    for (int i = 0; i < 50; ++i)
        equal += member("N" + std::to_string(i), "0007T");
    EXPECT_EQ(sorted(equal + member("K1", "0001")), member("K1", "0001") + equal);
    // Trailing blanks stay, line ends are made good.
    const std::string wide = leftAligned("W1A       0002", 232);
    EXPECT_EQ(sorted(wide + "\nW2B       0001"), "W2B       0001\r\n" + wide + "\r\n");
}

TEST_F(RosterSort, ACallOfTenCharactersLendsItsLastOneToTheKey) {
    // "10002" and 0 against 3: the digit of the call comes first, a letter ends the number.
    EXPECT_EQ(sorted(member("ABCDEFGHI1", "0002") + member("AA1A", "0003") +
                     member("ABCDEFGHIJ", "0009")),
              member("ABCDEFGHIJ", "0009") + member("AA1A", "0003") + member("ABCDEFGHI1", "0002"));
}

TEST_F(RosterSort, MissingOrOverlongFilesStopItAndWhatIsSortedStaysSorted) {
    std::string most;
    for (int i = 0; i < 8000; ++i)
        most += member("K1", "0001");
    folder.write("SKSDB5.TXT", most);
    EXPECT_EQ(sorted(""), "");

    const std::string unsorted = member("K2", "0002") + member("K1", "0001");
    folder.write("SKSDB1.TXT", unsorted);
    folder.write("SKSDB5.TXT", most + member("K1", "0001"));
    EXPECT_RUNTIME_ERROR(sortRosterFiles(files), ErrorCode::subscriptOutOfRange,
                         AllOf(HasSubstr("SKSDB5.TXT"), HasSubstr("8000")));
    std::filesystem::remove(folder.path() / "SKSDB5.TXT");
    EXPECT_RUNTIME_ERROR(sortRosterFiles(files), ErrorCode::fileNotFound, HasSubstr("SKSDB5.TXT"));
    EXPECT_EQ(folder.read("SKSDB1.TXT"), member("K1", "0001") + member("K2", "0002"));
}

} // namespace
} // namespace vantrel::test
