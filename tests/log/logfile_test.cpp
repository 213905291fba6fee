// SPDX-License-Identifier: MIT
// Starting a log, what becomes of the one it replaces, and reading contacts into the table.
#include "fakes/failingcalls.h"
#include "log/logfile.h"
#include "log/log.h"
#include "platform/clock.h"
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
using ::testing::EndsWith;
using ::testing::HasSubstr;

const std::string logName = "SKS061611.CBR";
const std::string contact = contactLine({});

class LogFile : public ::testing::Test {
protected:
    LogFile() {
        m_settings.myCall = "W1ABC";
        m_settings.myNumber = "1234T";
        m_settings.contestText = "SKS";
        m_settings.logFileName = logName;
    }

    TempFolder m_folder;
    FailingCalls m_calls;
    Files m_files{m_folder.string(), m_calls};
    OperatingSettings m_settings;
    QsoTable m_table;
};

TEST(DefaultLogName, IsContestMonthDayAndYearOfTheLocalDate) {
    EXPECT_EQ(defaultLogName("SKSE", {2009, 6, 1, 0, 0, 0}), "SKSE060109.CBR");
}

TEST_F(LogFile, NewLogIsItsHeaderAloneAlsoInPlaceOfOneWithoutContacts) {
    for (const char* callBefore : {"W1ABC", "W1XYZ"}) {
        EXPECT_EQ(startNewLog(m_files, m_settings), "");
        EXPECT_EQ(m_folder.read(logName), logHeaderLines);
        m_folder.write(logName, logHeader("WES", callBefore, "1"));
    }
    EXPECT_THAT(m_folder.names(), ElementsAre(logName));
}

TEST_F(LogFile, WhateverCountsAsAContactIsKeptAndNoCopyIsEverReplaced) {
    const std::string logs[] = {logHeaderLines + contact + "\r\n", contact + "\n",
                                "note,QSO: 14050\r\n", "  QSO: 14050\r\n"};
    const std::string copies[] = {logName + ".OLD", logName + ".OLD2", logName + ".OLD3",
                                  logName + ".OLD4"};
    for (int i = 0; i < 4; ++i) {
        m_folder.write("sks061611.cbr", logs[i]);
        EXPECT_THAT(startNewLog(m_files, m_settings), EndsWith(copies[i]));
    }
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(m_folder.read(copies[i]), logs[i]);
    EXPECT_EQ(m_folder.read("sks061611.cbr"), logHeaderLines);
    EXPECT_EQ(m_folder.names().size(), 5U);
}

TEST_F(LogFile, OldLogStaysWhenItsCopyOrTheNewHeaderCannotBeMade) {
    m_folder.write(logName, contact);
    m_calls.failAt(Call::write, 1, ENOSPC, true);
    EXPECT_RUNTIME_ERROR(startNewLog(m_files, m_settings), ErrorCode::diskFull, HasSubstr(logName));
    m_calls.heal();
    m_settings.myNumber = "1234567";
    EXPECT_RUNTIME_ERROR(startNewLog(m_files, m_settings), ErrorCode::invalidCall,
                         HasSubstr("number"));
    EXPECT_EQ(m_folder.read(logName), contact);
    EXPECT_THAT(m_folder.names(), ElementsAre(logName));
}

TEST_F(LogFile, NeedsAName) {
    m_settings.logFileName = "   ";
    EXPECT_RUNTIME_ERROR(startNewLog(m_files, m_settings), ErrorCode::pathFileAccess,
                         HasSubstr("name"));
}

// A line with a comma: what follows is an item of its own, and may be a contact.
TEST_F(LogFile, TableHoldsTheContactItemsOfTheLogInOrder) {
    m_folder.write(logName,
                   logHeaderLines + "\r\n" + contact +
                       "\r\n#\r\nQSO: 14050 CW A, B\r\nnote,QSO: A\0B\r\n  QSO: 3550  \n"s);
    loadLog(m_files, logName, m_table);
    EXPECT_THAT(m_table.lines(),
                ElementsAre(contact, "QSO: 14050 CW A", "QSO: A\0B"s, "QSO: 3550  "));
    EXPECT_EQ(m_table.line(4), "QSO: 3550  ");
    for (int index : {0, 5})
        EXPECT_RUNTIME_ERROR(m_table.line(index), ErrorCode::subscriptOutOfRange,
                             HasSubstr(std::to_string(index)));
    EXPECT_RUNTIME_ERROR(loadLog(m_files, "GONE.CBR", m_table), ErrorCode::fileNotFound,
                         HasSubstr("GONE.CBR"));
}

TEST_F(LogFile, TableHoldsTwelveThousandAndSaysSoAtTheNext) {
    std::string log;
    for (int i = 1; i <= 12001; ++i)
        log += "QSO: " + std::to_string(i) + "\r\n";
    m_folder.write(logName, log);
    EXPECT_RUNTIME_ERROR(loadLog(m_files, logName, m_table), ErrorCode::subscriptOutOfRange,
                         AllOf(HasSubstr(logName), HasSubstr("12000")));
    EXPECT_EQ(m_table.count(), 12000);
    EXPECT_EQ(m_table.line(12000), "QSO: 12000");
    m_table.refill(log.substr(0, log.size() - 12));
    EXPECT_EQ(m_table.count(), 12000);
}

} // namespace
} // namespace vantrel::test
