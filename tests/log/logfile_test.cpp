// SPDX-License-Identifier: MIT
// Starting a log, what becomes of the one it replaces, and reading contacts into the table.
#include "fakes/failingcalls.h"
#include "log/logfile.h"
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
const std::string header = logHeader("SKS", "W1ABC", "1234T");

class LogFile : public ::testing::Test {
protected:
    TempFolder m_folder;
    FailingCalls m_calls;
    Files m_files{m_folder.string(), m_calls};
};

TEST(DefaultLogName, IsContestMonthDayAndYearOfTheLocalDate) {
    EXPECT_EQ(defaultLogName("SKSE", {2009, 6, 1, 0, 0, 0}), "SKSE060109.CBR");
}

TEST_F(LogFile, NewLogIsItsHeaderAloneAlsoInPlaceOfOneWithoutContacts) {
    for (const char* callBefore : {"W1ABC", "W1XYZ"}) {
        EXPECT_EQ(startNewLog(m_files, logName, header), "");
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
        EXPECT_THAT(startNewLog(m_files, logName, header), EndsWith(copies[i]));
    }
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(m_folder.read(copies[i]), logs[i]);
    EXPECT_EQ(m_folder.read("sks061611.cbr"), logHeaderLines);
    EXPECT_EQ(m_folder.names().size(), 5U);
}

TEST_F(LogFile, OldLogStaysWhenItsCopyOrTheNewHeaderCannotBeMade) {
    m_folder.write(logName, contact);
    m_calls.failAt(Call::write, 1, ENOSPC, true);
    EXPECT_RUNTIME_ERROR(startNewLog(m_files, logName, header), ErrorCode::diskFull,
                         HasSubstr(logName));
    m_calls.heal();
    EXPECT_RUNTIME_ERROR(logHeader("SKS", "W1ABC", "1234567"), ErrorCode::invalidCall,
                         HasSubstr("number"));
    EXPECT_EQ(m_folder.read(logName), contact);
    EXPECT_THAT(m_folder.names(), ElementsAre(logName));
}

TEST_F(LogFile, NeedsAName) {
    EXPECT_RUNTIME_ERROR(startNewLog(m_files, "   ", header), ErrorCode::pathFileAccess,
                         HasSubstr("name"));
}

} // namespace
} // namespace vantrel::test
