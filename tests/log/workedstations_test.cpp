// SPDX-License-Identifier: MIT
// The worked-stations list in memory and on the disk, byte for byte.
#include "fakes/failingcalls.h"
#include "log/log.h"
#include "platform/files.h"
#include "shared/module1.h"
#include "support/contacts.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <cerrno>

namespace vantrel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

const std::string contact = contactLine({});
const std::string entry = "K9SKC     | CLUB      |5000S  | IL  | 14050 | 0012 | 2011-06-16|      ";

// A contact whose call tells its place in the log.
std::string contactNumber(int number) {
    return withField(contact, qso::hisCall, "K" + std::to_string(number));
}

std::string logOf(int contacts) {
    std::string log;
    for (int i = 1; i <= contacts; ++i)
        log += contactNumber(i) + "\r\n";
    return log;
}

class WorkedStations : public ::testing::Test {
protected:
    TempFolder m_folder;
    FailingCalls m_calls;
    Files m_files{m_folder.string(), m_calls};
    Module1 m_module;
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

TEST_F(WorkedStations, RebuildReplacesListAndFile) {
    m_folder.write("stnsworked.txt", "of another log\r\n");
    m_module.workedStations.append("of another log");
    m_module.qsoTable.refill(" Contest: SKS\r\n" + contact + "\r\n" + contact.substr(0, 101) +
                             "DUPE\r\n");
    rebuildWorkedStations(m_module, m_files);
    EXPECT_THAT(m_module.workedStations.entries(),
                ElementsAre(entry, entry.substr(0, 64) + "DUPE"));
    EXPECT_EQ(m_folder.read("stnsworked.txt"), entry + "\r\n" + entry.substr(0, 64) + "DUPE\r\n");
}

TEST_F(WorkedStations, TheThousandthIsAddedAndTheNextIsNot) {
    m_module.qsoTable.refill(logOf(999));
    rebuildWorkedStations(m_module, m_files);
    for (const int count : {1000, 1001, 1002}) {
        m_module.qsoTable.refill(logOf(count));
        addWorkedStation(m_module, m_files, contactNumber(count));
    }
    EXPECT_EQ(m_module.workedStations.size(), 1000);
    EXPECT_EQ(m_module.workedStations.at(1000), workedLine(contactNumber(1000)));
    const std::string file = m_folder.read("StnsWorked.TXT");
    EXPECT_EQ(file.size(), 1000U * 72);
    EXPECT_EQ(file.substr(999U * 72), workedLine(contactNumber(1000)) + "\r\n");

    rebuildWorkedStations(m_module, m_files);
    EXPECT_EQ(m_module.workedStations.size(), 1000);
    EXPECT_EQ(m_folder.read("StnsWorked.TXT"), file);
}

TEST_F(WorkedStations, ListFollowsALogThatSomebodyElseChanged) {
    for (const int before : {3, 8}) {
        m_module.qsoTable.refill(logOf(before));
        rebuildWorkedStations(m_module, m_files);
        m_module.qsoTable.refill(logOf(5));
        addWorkedStation(m_module, m_files, contactNumber(5));
        EXPECT_EQ(m_module.workedStations.size(), 5) << before;
        EXPECT_EQ(m_module.workedStations.at(5), workedLine(contactNumber(5)));
        EXPECT_EQ(m_folder.read("StnsWorked.TXT").size(), 5U * 72);
    }
}

TEST_F(WorkedStations, ListHasTheEntryAlsoWhenTheFileCannotBeWritten) {
    m_module.qsoTable.refill(contact);
    m_calls.failAt(Call::write, 1, ENOSPC);
    EXPECT_RUNTIME_ERROR(addWorkedStation(m_module, m_files, contact), ErrorCode::diskFull,
                         HasSubstr("StnsWorked.TXT"));
    EXPECT_THAT(m_module.workedStations.entries(), ElementsAre(entry));

    m_calls.failAt(Call::rename, 1, EROFS);
    m_module.qsoTable.refill(contact + "\r\n" + contact);
    EXPECT_RUNTIME_ERROR(rebuildWorkedStations(m_module, m_files), ErrorCode::pathFileAccess,
                         HasSubstr("StnsWorked.TXT"));
    EXPECT_THAT(m_module.workedStations.entries(), ElementsAre(entry, entry));
}

} // namespace
} // namespace vantrel::test
