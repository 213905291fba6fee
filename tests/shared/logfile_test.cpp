// SPDX-License-Identifier: MIT
// Starting a log, what becomes of the one it replaces, and reading contacts into the table.
#include "fakes/failingcalls.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "shared/logfile.h"
#include "shared/qsoline.h"
#include "shared/qsotable.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <cerrno>
#include <filesystem>

namespace vantrel::test {
namespace {

using namespace std::string_literals;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const std::string header = " Contest: SKS\r\n"
                           " My Call: W1ABC\r\n"
                           "My SKCC#: 1234T \r\n"
                           "   Count: 66 to HisCall\r\n";
const std::string contact =
    "QSO: 14050 CW 2011-06-16 0012 W1ABC      599 JOHN       MA 1234T K9SKC      599 CLUB       "
    "IL  5000S       ";

class LogFile : public ::testing::Test {
protected:
    LogFile() {
        m_settings.myCall = "W1ABC";
        m_settings.myNumber = "1234T";
        m_settings.contestText = "SKS";
        m_settings.logFileName = "SKS061611.CBR";
    }

    TempFolder m_folder;
    FailingCalls m_calls;
    Files m_files{m_folder.string(), m_calls};
    OperatingSettings m_settings;
    QsoTable m_table;
};

TEST(LogHeader, HasFourLinesWithValuesFromColumnEleven) {
    EXPECT_EQ(logHeader("SKS", "W1ABC", "1234T"), header);
    EXPECT_EQ(logHeader("", "", ""), " Contest: \r\n My Call: \r\nMy SKCC#:       \r\n"
                                     "   Count: 66 to HisCall\r\n");
    EXPECT_RUNTIME_ERROR(logHeader("SKS", "W1ABC", "1234567"), ErrorCode::invalidCall,
                         HasSubstr("number"));
}

TEST(DefaultLogName, IsContestMonthDayAndYearOfTheLocalDate) {
    EXPECT_EQ(defaultLogName("SKS", {2011, 6, 16, 0, 0, 0}), "SKS061611.CBR");
    EXPECT_EQ(defaultLogName("SKSE", {2009, 12, 1, 0, 0, 0}), "SKSE120109.CBR");
}

TEST_F(LogFile, NewLogIsItsHeaderAlone) {
    EXPECT_EQ(startNewLog(m_files, m_settings), "");
    EXPECT_EQ(m_folder.read("SKS061611.CBR"), header);
    EXPECT_THAT(m_folder.names(), ElementsAre("SKS061611.CBR"));
}

TEST_F(LogFile, LogWithoutContactsIsReplacedWithoutACopy) {
    m_folder.write("SKS061611.CBR", logHeader("WES", "W1ABC", "1"));
    EXPECT_EQ(startNewLog(m_files, m_settings), "");
    EXPECT_EQ(m_folder.read("SKS061611.CBR"), header);
    EXPECT_THAT(m_folder.names(), ElementsAre("SKS061611.CBR"));
}

TEST_F(LogFile, LogWithContactsIsKeptEachTimeAndNoCopyIsEverReplaced) {
    const std::string first = header + contact + "\r\n";
    const std::string second = contact + "\n"; // a header is not what makes it worth keeping
    m_folder.write("sks061611.cbr", first);
    EXPECT_THAT(startNewLog(m_files, m_settings), HasSubstr(".OLD"));
    m_folder.write("sks061611.cbr", second);
    EXPECT_THAT(startNewLog(m_files, m_settings), HasSubstr(".OLD2"));

    EXPECT_EQ(m_folder.read("sks061611.cbr"), header);
    EXPECT_EQ(m_folder.names().size(), 3U);
    EXPECT_EQ(m_files.read("SKS061611.CBR.OLD"), first);
    EXPECT_EQ(m_files.read("SKS061611.CBR.OLD2"), second);
}

TEST_F(LogFile, LogIsKeptForAnythingThatCountsAsAContact) {
    m_folder.write("SKS061611.CBR", "note,QSO: 14050\r\n");
    EXPECT_THAT(startNewLog(m_files, m_settings), HasSubstr(".OLD"));
    m_folder.write("SKS061611.CBR", "  QSO: 14050\r\n");
    EXPECT_THAT(startNewLog(m_files, m_settings), HasSubstr(".OLD2"));
}

TEST_F(LogFile, LogStaysWhenItsCopyCannotBeKept) {
    const std::string before = header + contact + "\r\n";
    m_folder.write("SKS061611.CBR", before);
    m_calls.failAt(Call::write, 1, ENOSPC, true);
    EXPECT_RUNTIME_ERROR(startNewLog(m_files, m_settings), ErrorCode::diskFull,
                         HasSubstr("SKS061611.CBR"));
    EXPECT_EQ(m_folder.read("SKS061611.CBR"), before);
    EXPECT_THAT(m_folder.names(), ElementsAre("SKS061611.CBR"));
}

TEST_F(LogFile, NamesThatCannotBeALogAreRefused) {
    for (const char* name : {"", "   "}) {
        m_settings.logFileName = name;
        EXPECT_RUNTIME_ERROR(startNewLog(m_files, m_settings), ErrorCode::pathFileAccess,
                             HasSubstr("name"));
    }
    std::filesystem::create_directory(m_folder.path() / "LOGS");
    m_settings.logFileName = "logs";
    EXPECT_RUNTIME_ERROR(startNewLog(m_files, m_settings), ErrorCode::pathFileAccess,
                         HasSubstr("LOGS"));
    m_settings.logFileName = "GONE\\SKS.CBR";
    EXPECT_RUNTIME_ERROR(startNewLog(m_files, m_settings), ErrorCode::pathNotFound,
                         HasSubstr("SKS.CBR"));
    EXPECT_THAT(m_folder.names(), ElementsAre("LOGS"));
}

TEST_F(LogFile, NumberTooWideForTheHeaderLeavesTheLog) {
    m_folder.write("SKS061611.CBR", contact);
    m_settings.myNumber = "1234567";
    EXPECT_RUNTIME_ERROR(startNewLog(m_files, m_settings), ErrorCode::invalidCall,
                         HasSubstr("number"));
    EXPECT_EQ(m_folder.read("SKS061611.CBR"), contact);
    EXPECT_THAT(m_folder.names(), ElementsAre("SKS061611.CBR"));
}

TEST_F(LogFile, TableHoldsTheContactsOfTheLogInOrder) {
    const std::string second = withField(contact, qso::hisCall, "W9XYZ");
    m_folder.write("SKS061611.CBR", header + "\r\n" + contact + "\r\n#\r\n" + second + "\n");
    loadLog(m_files, "SKS061611.CBR", m_table);
    EXPECT_THAT(m_table.lines(), ElementsAre(contact, second));
    EXPECT_EQ(m_table.count(), 2);
    EXPECT_EQ(m_table.line(2), second);
    EXPECT_RUNTIME_ERROR(m_table.line(0), ErrorCode::subscriptOutOfRange, HasSubstr("0"));
    EXPECT_RUNTIME_ERROR(m_table.line(3), ErrorCode::subscriptOutOfRange, HasSubstr("3"));

    m_folder.write("SKS061611.CBR", "");
    loadLog(m_files, "SKS061611.CBR", m_table);
    EXPECT_THAT(m_table.lines(), IsEmpty());
}

TEST_F(LogFile, MissingLogIsAnError) {
    EXPECT_RUNTIME_ERROR(loadLog(m_files, "GONE.CBR", m_table), ErrorCode::fileNotFound,
                         HasSubstr("GONE.CBR"));
    EXPECT_RUNTIME_ERROR(loadLog(m_files, "GONE/GONE.CBR", m_table), ErrorCode::pathNotFound,
                         HasSubstr("GONE.CBR"));
}

TEST(QsoTable, ReadsItemsNotLines) {
    QsoTable table;
    // A line with a comma: what follows is an item of its own, and one of them a contact.
    table.refill("QSO: 14050 CW A, B\r\nnote,QSO: 7040\r\n  QSO: 3550  \r\n");
    EXPECT_THAT(table.lines(), ElementsAre("QSO: 14050 CW A", "QSO: 7040", "QSO: 3550  "));
    table.refill("QSO: A\0B\r\n\0\0\r\nQSO: 2"s);
    EXPECT_THAT(table.lines(), ElementsAre("QSO: A\0B"s, "QSO: 2"));
}

TEST(QsoTable, HoldsTwelveThousandAndSaysSoAtTheNext) {
    std::string log;
    for (int i = 1; i <= QsoTable::capacity; ++i)
        log += "QSO: " + std::to_string(i) + "\r\n";
    QsoTable table;
    table.refill(log);
    EXPECT_EQ(table.count(), 12000);
    EXPECT_EQ(table.line(12000), "QSO: 12000");

    EXPECT_RUNTIME_ERROR(table.refill(log + "QSO: 12001\r\n"), ErrorCode::subscriptOutOfRange,
                         HasSubstr("12000"));
    EXPECT_EQ(table.count(), 12000);
    EXPECT_EQ(table.line(12000), "QSO: 12000");
}

TEST(QsoTable, SurvivesALineOfTenMegabytes) {
    const std::string longLine = "QSO: " + std::string(10'000'000, 'x');
    QsoTable table;
    table.refill("QSO: 1\r\n" + longLine + "\r\nQSO: 3\r\n");
    EXPECT_EQ(table.count(), 3);
    EXPECT_EQ(table.line(2).size(), longLine.size());
    EXPECT_EQ(table.line(3), "QSO: 3");
    table.refill(std::string(10'000'000, ','));
    EXPECT_EQ(table.count(), 0);
}

} // namespace
} // namespace vantrel::test
