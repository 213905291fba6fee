// SPDX-License-Identifier: MIT
// The open log: which contacts it has, and that the worked stations follow it, byte for byte.
#include "fakes/failingcalls.h"
#include "log/log.h"
#include "log/qsoline.h"
#include "platform/files.h"
#include "support/contacts.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <cerrno>

namespace vantrel::test {
namespace {

using namespace std::string_literals;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const std::string contact = contactLine({});
const std::string entry = "K9SKC     | CLUB      |5000S  | IL  | 14050 | 0012 | 2011-06-16|      ";

// A contact whose call tells its place in the log.
std::string contactNumber(int number) {
    return withField(contact, qso::hisCall, "K" + std::to_string(number));
}

std::string logOf(int contacts) {
    std::string log = logHeaderLines;
    for (int i = 1; i <= contacts; ++i)
        log += contactNumber(i) + "\r\n";
    return log;
}

class OpenLog : public ::testing::Test {
protected:
    void open(const std::string& bytes) {
        m_folder.write(name, bytes);
        m_log.open(name);
    }
    // List and file say the same, entry by entry what the contacts are.
    void expectWorked(const std::vector<std::string>& contacts) {
        std::vector<std::string> expected;
        for (const std::string& line : contacts)
            expected.push_back(workedLine(line));
        EXPECT_EQ(m_log.worked(), expected);
        EXPECT_EQ(m_folder.read("StnsWorked.TXT"), joinLines(expected));
    }

    static constexpr const char* name = "SKS061611.CBR";
    TempFolder m_folder;
    FailingCalls m_calls;
    Files m_files{m_folder.string(), m_calls};
    Log m_log{m_files};
};

TEST(WorkedEntry, IsBuiltFromTheColumnsThatTheLineHas) {
    EXPECT_EQ(workedLine(withField(contact, qso::marker, "K3Y/EU")),
              entry.substr(0, 64) + "K3Y/EU");
    EXPECT_EQ(workedLine(contact + "noted later"), entry);
    EXPECT_EQ(workedLine(contact.substr(0, 101) + "DUPE"), entry.substr(0, 64) + "DUPE");
    // An editor that strips trailing blanks leaves a line of 100 columns.
    EXPECT_EQ(workedLine(contact.substr(0, 100)), entry.substr(0, 64));
    EXPECT_EQ(workedLine("QSO: 14050 CW 2011-06-16 0012"),
              "| |       |  | 14050 | 0012 | 2011-06-16|");
}

// A line with a comma: what follows is an item of its own, and may be a contact.
TEST_F(OpenLog, HasTheContactItemsInFileOrder) {
    m_folder.write("stnsworked.txt", "of another log\r\n");
    open(logHeaderLines + "\r\n" + contact +
         "\r\n#\r\nQSO: 14050 CW A, B\r\nnote,QSO: A\0B\r\n  QSO: 3550  \n"s);
    EXPECT_THAT(m_log.contacts(),
                ElementsAre(contact, "QSO: 14050 CW A", "QSO: A\0B"s, "QSO: 3550  "));
    EXPECT_EQ(m_folder.read("stnsworked.txt"), joinLines(m_log.worked()));
    EXPECT_EQ(m_log.worked().front(), entry);
    EXPECT_RUNTIME_ERROR(m_log.open("GONE.CBR"), ErrorCode::fileNotFound, HasSubstr("GONE.CBR"));
    EXPECT_EQ(m_log.count(), 0);
    EXPECT_THAT(m_log.worked(), IsEmpty());
}

TEST_F(OpenLog, HoldsTwelveThousandAndSaysSoAtTheNext) {
    m_folder.write(name, logOf(12001));
    EXPECT_RUNTIME_ERROR(m_log.open(name), ErrorCode::subscriptOutOfRange,
                         AllOf(HasSubstr(name), HasSubstr("12000")));
    EXPECT_EQ(m_log.count(), 12000);
    EXPECT_EQ(m_log.contacts().back(), contactNumber(12000));
    EXPECT_EQ(m_log.worked().size(), 1000U);
    m_folder.write(name, logOf(12000));
    m_log.reread();
    EXPECT_EQ(m_log.count(), 12000);
}

TEST_F(OpenLog, TheThousandthIsListedAndTheNextIsNot) {
    open(logOf(998));
    for (const int number : {999, 1000, 1001, 1002}) {
        m_log.append(contactNumber(number));
        m_log.reread();
    }
    EXPECT_EQ(m_log.count(), 1002);
    ASSERT_EQ(m_log.worked().size(), 1000U);
    EXPECT_EQ(m_log.worked().back(), workedLine(contactNumber(1000)));
    EXPECT_EQ(m_folder.read("StnsWorked.TXT"), joinLines(m_log.worked()));
}

// Whatever happened to the log from outside, the count being what it may.
TEST_F(OpenLog, WorkedStationsFollowALogThatSomebodyElseChanged) {
    const std::string other = contactNumber(77);
    const std::string third = contactNumber(3);
    const std::vector<std::vector<std::string>> logs{
        {contact, third}, {other, third},   {contact, third, other}, {contact}, {},
        {contact, other}, {contact, other}, {other, other, other},
    };
    open(logHeaderLines);
    int told = 0;
    m_log.watch([&told] { ++told; });
    for (const auto& contacts : logs) {
        m_folder.write(name, logHeaderLines + joinLines(contacts));
        m_log.reread();
        EXPECT_THAT(m_log.contacts(), ElementsAreArray(contacts));
        expectWorked(contacts);
        // And with one contact logged on top of it.
        m_log.append(third);
        m_log.reread();
        std::vector<std::string> grown = contacts;
        grown.push_back(third);
        EXPECT_THAT(m_log.contacts(), ElementsAreArray(grown));
        expectWorked(grown);
    }
    EXPECT_EQ(told, static_cast<int>(2 * logs.size()));
    // A last line without its end, and what is written on to it.
    m_folder.write(name, contact + "\r\n" + other.substr(0, 80));
    m_log.reread();
    m_folder.write(name, contact + "\r\n" + other + "\r\n");
    m_log.reread();
    expectWorked({contact, other});
}

TEST_F(OpenLog, FailingWorkedFileIsMadeAnewWithTheNextContact) {
    open(logHeaderLines);
    m_log.append(contact);
    m_calls.failAt(Call::write, 1, ENOSPC);
    EXPECT_RUNTIME_ERROR(m_log.reread(), ErrorCode::diskFull, HasSubstr("StnsWorked.TXT"));
    EXPECT_THAT(m_log.worked(), ElementsAre(entry));
    m_log.reread(); // nothing is new: a full disk keeps nobody from seeing his score
    EXPECT_EQ(m_folder.read("StnsWorked.TXT"), "");
    m_log.append(contact);
    m_log.reread();
    expectWorked({contact, contact});
}

} // namespace
} // namespace vantrel::test
