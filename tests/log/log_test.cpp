// SPDX-License-Identifier: MIT
#include "log/log.h"
#include "log/logfile.h"
#include "support/fakemachine.h"

namespace vantrel::test {
namespace {

using namespace std::string_literals;
using ::testing::ElementsAreArray;

TEST(OutputFiles, AreNamedAfterTheLogWhateverDotsItsFolderHas) {
    EXPECT_EQ(nameBeside("/A.B/LOG", "-SCORE.PDF"), "/A.B/LOG-SCORE.PDF");
    EXPECT_RUNTIME_ERROR(adifFileName("AB"), ErrorCode::invalidCall, HasSubstr("no extension"));
}

const std::string contact = contactLine({});
const std::string entry = "K9SKC     | CLUB      |5000S  | IL  | 14050 | 0012 | 2011-06-16|      ";
constexpr const char* name = "SKS061611.CBR";

// A contact whose call tells its place in the log.
std::string contactNumber(int number) {
    return contactLine({.hisCall = "K" + std::to_string(number)});
}

class OpenLog : public ::testing::Test, protected FakeMachine {
protected:
    void open(int contacts) {
        std::string bytes = logHeaderLines;
        for (int i = 1; i <= contacts; ++i)
            bytes += contactNumber(i) + "\r\n";
        folder.write(name, bytes);
        log.open(name);
    }
    // List and file say the same, entry by entry what the contacts are.
    void expectContacts(const std::vector<std::string>& contacts) {
        EXPECT_THAT(log.contacts(), ElementsAreArray(contacts));
        std::vector<std::string> entries;
        for (const std::string& line : contacts)
            entries.push_back(workedLine(line));
        EXPECT_THAT(log.worked(), ElementsAreArray(entries));
        EXPECT_EQ(folder.read("StnsWorked.TXT"), joinLines(entries));
    }

    Log log{files};
};

TEST_F(OpenLog, HasTheContactItemsInFileOrderAndTheWorkedStationsOfTheirColumns) {
    folder.write("stnsworked.txt", "of another log\r\n");
    // A line with a comma: what follows is an item of its own, and may be a contact.
    folder.write(name, logHeaderLines + contact + "noted, QS\r\nnote,QSO: A\0B\r\n"s +
                           "  QSO: 14050 CW 2011-06-16 0012\n" + contact.substr(0, 100));
    log.open(name);
    EXPECT_THAT(log.contacts(),
                ElementsAre(contact + "noted", "QSO: A\0B"s, "QSO: 14050 CW 2011-06-16 0012",
                            contact.substr(0, 100)));
    EXPECT_EQ(folder.read("stnsworked.txt"), entry + "\r\n| |       |  | A\0B |  | |\r\n"s +
                                                 "| |       |  | 14050 | 0012 | 2011-06-16|\r\n" +
                                                 entry.substr(0, 64) + "\r\n");
}

TEST_F(OpenLog, HoldsTwelveThousandAndListsAThousandAsWorked) {
    open(12000);
    std::ignore = log.append(contactNumber(12001));
    for (int i = 0; i < 3; ++i) // read on from before, read unchanged, and read whole
        EXPECT_RUNTIME_ERROR(i < 2 ? log.reread() : log.open(name), ErrorCode::subscriptOutOfRange,
                             files.path(name) + ": the QSO table holds at most 12000 contacts");
    EXPECT_TRUE(log.tooLong());
    open(999);
    for (const int number : {1000, 1001}) {
        std::ignore = log.append(contactNumber(number));
        log.reread();
    }
    EXPECT_EQ(log.worked().back(), workedLine(contactNumber(1000)));
    EXPECT_EQ(folder.read("StnsWorked.TXT"), joinLines(log.worked()));
}

TEST_F(OpenLog, FollowsALogThatSomebodyElseChanged) {
    const std::string other = contactNumber(77);
    const std::string third = contactNumber(3);
    open(0);
    const std::vector<std::string> logs[] = {{contact, third}, {other, third}, {}, {contact}};
    for (std::vector<std::string> contacts : logs) {
        folder.write(name, logHeaderLines + joinLines(contacts));
        log.reread();
        EXPECT_FALSE(log.append(third)); // and one more
        log.reread();
        contacts.push_back(third);
        expectContacts(contacts);
    }
    // A last line without its end, and what is written on to it.
    for (const std::string& last : {other.substr(0, 80), other + "\r\n"}) {
        folder.write(name, contact + "\r\n" + last);
        log.reread();
    }
    expectContacts({contact, other});
}

TEST_F(OpenLog, ThatVanishedOrLostContactsIsKeptBeforeTheNextOneIsAppended) {
    open(2);
    const std::string held = folder.read(name), changed = logHeaderLines + contact + "\r\n";
    std::filesystem::remove(folder.path() / name);
    calls.failAt(Call::write, 1, ENOSPC); // nothing is logged unless it is kept
    EXPECT_RUNTIME_ERROR(std::ignore = log.append(contact), ErrorCode::diskFull, HasSubstr(".OLD"));
    for (const std::string copy : {".OLD", ".OLD2"}) {
        const auto loss = log.append(contact);
        ASSERT_TRUE(loss);
        EXPECT_EQ(loss->vanished, copy == ".OLD");
        EXPECT_EQ(loss->kept, files.path(name) + copy);
        EXPECT_EQ(folder.read(name + copy), held);
        EXPECT_EQ(folder.read(name), (copy == ".OLD" ? "" : changed) + contact + "\r\n");
        folder.write(name, changed);
    }
}

// A page that fails keeps neither the others from being told nor the log's own failure.
TEST_F(OpenLog, TellsEveryWatcherAndThenItsOwnFailureOrTheFirstOfTheirs) {
    open(1);
    int told = 0;
    std::ignore = log.watch([&told] { told = -1000; }); // whose page is closed
    const auto failing = log.watch([&] {
        ++told;
        throw RuntimeError(ErrorCode::overflow, "a page");
    });
    const auto other = log.watch([&] { ++told; });
    EXPECT_RUNTIME_ERROR(log.reread(), ErrorCode::overflow, "a page");
    EXPECT_RUNTIME_ERROR(log.open("GONE.CBR"), ErrorCode::fileNotFound, HasSubstr("GONE.CBR"));
    EXPECT_EQ(told, 4);
    EXPECT_TRUE(log.contacts().empty() && log.worked().empty());
}

TEST_F(OpenLog, StartingANewOneKeepsWhateverCountsAsAContact) {
    const std::string header = logHeader("SKS", "W1ABC", "1234T");
    for (int i = 0; i < 2; ++i) { // where no file is, and where it holds no contact
        EXPECT_EQ(startNewLog(files, name, header), "");
        EXPECT_EQ(folder.read(name), logHeaderLines);
    }
    folder.write(name, "note,QSO: 14050\r\n");
    EXPECT_EQ(startNewLog(files, name, header), (folder.path() / (name + ".OLD"s)).string());
    EXPECT_EQ(folder.read(name + ".OLD"s), "note,QSO: 14050\r\n");
}

} // namespace
} // namespace vantrel::test
