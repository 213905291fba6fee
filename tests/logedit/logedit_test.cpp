// SPDX-License-Identifier: MIT
#include "fakes/failingcalls.h"
#include "log/log.h"
#include "logedit/logedit.h"
#include "logedit/loglines.h"
#include "platform/files.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <cerrno>
#include <functional>

namespace vantrel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

const std::string fullName = logName + ".FULL";

class LogEditTest : public ::testing::Test {
protected:
    LogEditTest() {
        writeLog("");
        log.open(logName);
    }

    void writeLog(const std::string& bytes) { folder.write(logName, bytes); }
    std::string onDisk() { return folder.read(logName); }
    std::string backup() { return folder.read(backupName); }

    // What the search and its repeats visit, in their order.
    std::vector<std::string> visited(std::string_view key) {
        std::vector<std::string> lines;
        for (SearchResult result = edit.search(key); result == SearchResult::found;
             result = edit.searchNext(key))
            lines.push_back(edit.line());
        return lines;
    }

    void expectRefused(const ChangeResult& result, const std::string& text) {
        EXPECT_FALSE(result.made);
        ASSERT_TRUE(result.notice);
        EXPECT_EQ(result.notice->text, text);
        EXPECT_THAT(result.notice->informative, HasSubstr(logName));
    }

    TempFolder folder;
    FailingCalls calls;
    Files files{folder.string(), calls};
    Log log{files};
    LogEdit edit{files, log};
};

TEST_F(LogEditTest, SearchAndItsRepeatsVisitExactlyTheMatchingContactsInOrder) {
    const std::string cutShort = contact("K1ABC").substr(0, 69);
    std::string noContact = contact("K1ABC");
    noContact.replace(0, 5, "NOTE:");
    writeLog(logOf({contact("K1ABC", "ONE"), contact("K9SKC"), "", noContact, cutShort,
                    contact("AK1AB"), contact("K1ABD"), contact("K1ABC", "TWO")}));
    EXPECT_THAT(visited("K1AB"), ElementsAre(contact("K1ABC", "ONE"), cutShort, contact("K1ABD"),
                                             contact("K1ABC", "TWO")));
    EXPECT_THAT(visited("K1ABC"), ElementsAre(contact("K1ABC", "ONE"), contact("K1ABC", "TWO")));
}

TEST_F(LogEditTest, TooShortAKeyAndARepeatWithoutAFurtherMatchLeaveTheContactFound) {
    writeLog(logOf({contact("K1ABC"), contact("K9SKC")}));
    EXPECT_EQ(edit.search("K9S"), SearchResult::found);
    EXPECT_EQ(edit.search("K1"), SearchResult::keyTooShort);
    EXPECT_EQ(edit.searchNext("K1"), SearchResult::keyTooShort);
    EXPECT_EQ(edit.searchNext("K1ABC"), SearchResult::notFound);
    EXPECT_TRUE(edit.found());
    EXPECT_EQ(edit.line(), contact("K9SKC"));
}

TEST_F(LogEditTest, WithNothingFoundNothingIsChanged) {
    std::filesystem::remove(folder.path() / logName);
    EXPECT_RUNTIME_ERROR(edit.search("K1ABC"), ErrorCode::fileNotFound, HasSubstr(logName));
    writeLog(logOf({contact("K1ABC")}));
    EXPECT_FALSE(edit.replaceLine(contact("K9SKC")).made);
    edit.search("K1ABC");
    EXPECT_EQ(edit.search("W9ZZZ"), SearchResult::notFound);
    EXPECT_FALSE(edit.replaceLine(contact("K9SKC")).made);
    EXPECT_FALSE(edit.removeLine().made);
    EXPECT_FALSE(edit.undo().made);
    EXPECT_EQ(onDisk(), logOf({contact("K1ABC")}));
    EXPECT_THAT(folder.names(), ElementsAre(logName, workedStationsFile));
}

TEST_F(LogEditTest, AChangeEndsTheOtherLinesProperlyAndItsUndoBringsAllBack) {
    const std::string before = " Contest: SKS\n\n" + contact("K1ABC") + "\r\nSOAPBOX: \xE9 , \"\n" +
                               contact("K9SKC") + "\n  " + contact("K1ABC");
    const std::string after = " Contest: SKS\r\n\r\n" + contact("K1ABC") +
                              "\r\nSOAPBOX: \xE9 , \"\r\n" + contact("K9SKC", "NEW") + "\r\n  " +
                              contact("K1ABC") + "\r\n";
    writeLog(before);
    edit.search("K9S");
    EXPECT_FALSE(edit.canUndo());
    EXPECT_TRUE(edit.replaceLine(contact("K9SKC", "NEW")).made);
    EXPECT_EQ(onDisk(), after);
    EXPECT_EQ(backup(), before);
    EXPECT_EQ(edit.line(), contact("K9SKC", "NEW"));

    EXPECT_TRUE(edit.undo().made);
    EXPECT_EQ(edit.undoText(), undoneText);
    EXPECT_EQ(onDisk(), before);
    EXPECT_EQ(backup(), after);
    EXPECT_FALSE(edit.found()); // what the page showed need not be in the log any more

    EXPECT_TRUE(edit.undo().made);
    EXPECT_EQ(edit.undoText(), redoneText);
    EXPECT_EQ(onDisk(), after);
    EXPECT_EQ(backup(), before);
}

TEST_F(LogEditTest, AfterADeletionTheLineThatMovedUpIsNeverDeletedUnseen) {
    writeLog(logOf({contact("K1ABC", "ONE"), contact("K1ABC", "TWO"), contact("K1ABC", "THREE"),
                    contact("K9SKC")}));
    edit.search("K1ABC");
    edit.searchNext("K1ABC");
    EXPECT_TRUE(edit.removeLine().made);
    EXPECT_FALSE(edit.found());
    EXPECT_FALSE(edit.removeLine().made);
    EXPECT_EQ(onDisk(),
              logOf({contact("K1ABC", "ONE"), contact("K1ABC", "THREE"), contact("K9SKC")}));
    EXPECT_EQ(edit.searchNext("K1ABC"), SearchResult::found);
    EXPECT_EQ(edit.line(), contact("K1ABC", "THREE"));
}

TEST_F(LogEditTest, ASaveThatChangesNothingKeepsTheBackupAndTheUndo) {
    writeLog(logOf({contact("K1ABC", "ONE")}));
    edit.search("K1ABC");
    edit.replaceLine(contact("K1ABC", "TWO"));
    edit.replaceLine(contact("K1ABC", "THREE"));
    EXPECT_TRUE(edit.replaceLine(contact("K1ABC", "THREE")).made);
    EXPECT_EQ(backup(), logOf({contact("K1ABC", "TWO")}));
    EXPECT_TRUE(edit.undo().made);
    EXPECT_EQ(onDisk(), logOf({contact("K1ABC", "TWO")}));
}

TEST_F(LogEditTest, ALogChangedSinceTheSearchIsNotWritten) {
    const std::string name = "OTHER.CBR";
    const std::vector<std::function<void()>> meanwhile{
        [this] { files.appendLine(logName, contact("W9NEW")); },
        [this] { std::filesystem::remove(folder.path() / logName); },
        [&] { // another contest is opened, whose log happens to be the same
            folder.write(name, onDisk());
            log.open(name);
        },
    };
    for (const auto& happens : meanwhile) {
        writeLog(logOf({contact("K1ABC")}));
        log.open(logName);
        edit.search("K1ABC");
        happens();
        const std::vector<std::string> names = folder.names();
        expectRefused(edit.replaceLine(contact("K9SKC")), "THE LOG HAS CHANGED SINCE THE SEARCH");
        expectRefused(edit.removeLine(), "THE LOG HAS CHANGED SINCE THE SEARCH");
        EXPECT_EQ(folder.names(), names);
        EXPECT_FALSE(folder.has(backupName));
        EXPECT_FALSE(edit.canUndo());
    }
    EXPECT_EQ(folder.read(name), logOf({contact("K1ABC")}));

    EXPECT_EQ(edit.search("K1ABC"), SearchResult::found);
    EXPECT_TRUE(edit.removeLine().made);
    EXPECT_EQ(folder.read(name), logOf({}));
}

TEST_F(LogEditTest, UndoIsRefusedUnlessLogAndBackupAreAsTheChangeLeftThem) {
    writeLog(logOf({contact("K1ABC", "ONE")}));
    edit.search("K1ABC");
    edit.replaceLine(contact("K1ABC", "TWO"));
    // The other page makes a change and undoes it: the log is again what this page left.
    LogEdit other(files, log);
    other.search("K1ABC");
    other.removeLine();
    EXPECT_TRUE(other.undo().made);
    ASSERT_EQ(onDisk(), logOf({contact("K1ABC", "TWO")}));
    expectRefused(edit.undo(), "THE CHANGE CANNOT BE UNDONE");
    EXPECT_EQ(onDisk(), logOf({contact("K1ABC", "TWO")}));

    files.appendLine(logName, contact("W9NEW"));
    expectRefused(other.undo(), "THE CHANGE CANNOT BE UNDONE");
    EXPECT_EQ(onDisk(), logOf({contact("K1ABC", "TWO"), contact("W9NEW")}));
}

TEST_F(LogEditTest, LinesBeyondTheTableAreKeptInAFullCopyAndUndoBringsThemBack) {
    std::vector<std::string> lines(LogEdit::lineCapacity - 1, "");
    lines.push_back(contact("K1ABC"));
    const std::string kept = joinLines(lines);
    const std::string before = kept + contact("K9AAA") + "\r\n\r\n" + contact("K9BBB");
    const std::string after = kept.substr(0, kept.size() - contact("K1ABC").size() - 2) +
                              contact("K1ABC", "NEW") + "\r\n";
    folder.write(fullName, "kept earlier");
    writeLog(before);
    EXPECT_EQ(edit.search("K9AAA"), SearchResult::notFound);
    EXPECT_EQ(edit.search("K1ABC"), SearchResult::found);

    const ChangeResult result = edit.replaceLine(contact("K1ABC", "NEW"));
    EXPECT_TRUE(result.made);
    EXPECT_EQ(onDisk(), after);
    EXPECT_EQ(folder.read(fullName), "kept earlier");
    EXPECT_EQ(folder.read(fullName + "2"), before);
    ASSERT_TRUE(result.notice);
    EXPECT_EQ(result.notice->text, "LINES DROPPED FROM THE LOG: 3");
    EXPECT_THAT(result.notice->informative, HasSubstr(files.path(fullName + "2")));

    const ChangeResult undone = edit.undo();
    EXPECT_FALSE(undone.notice);
    EXPECT_EQ(onDisk(), before);
    EXPECT_TRUE(edit.undo().notice); // the redo drops them again, so it keeps them again
    EXPECT_EQ(onDisk(), after);
    EXPECT_EQ(folder.read(fullName + "3"), before);
}

// --- Stops and failures --------------------------------------------------------------------

const std::string firstLog = logOf({contact("K1ABC", "ONE"), contact("K9SKC")});
const std::string secondLog = logOf({contact("K1ABC", "TWO"), contact("K9SKC")});

class RewriteStops : public LogEditTest {
protected:
    // A page that has made a change: log, backup and undo all hold something to lose.
    LogEdit pageAfterAChange() {
        writeLog(firstLog);
        LogEdit page(files, log);
        page.search("K1ABC");
        page.replaceLine(contact("K1ABC", "TWO"));
        return page;
    }

    // Stops `change` before its n-th step on the disk and starts again; false when it had
    // fewer steps.
    bool stopsAt(int n, const std::function<void()>& change) {
        bool stopped = false;
        calls.crashAt(n);
        try {
            change();
        } catch (const Crash&) {
            stopped = true;
        }
        calls.heal();
        Files(folder.string(), calls).recover();
        return stopped;
    }
};

TEST_F(RewriteStops, AStopDuringAnUndoLosesNeitherOfTheTwoLogs) {
    bool stopped = true;
    for (int n = 1; stopped; ++n) {
        SCOPED_TRACE(n);
        LogEdit page = pageAfterAChange();
        stopped = stopsAt(n, [&] { page.undo(); });
        const bool undone = onDisk() == firstLog;
        EXPECT_EQ(onDisk(), undone ? firstLog : secondLog);
        EXPECT_EQ(backup(), undone ? secondLog : firstLog);
        EXPECT_THAT(folder.names(), ElementsAre(logName, backupName, workedStationsFile));
        EXPECT_TRUE(undone || stopped);
    }
}

TEST_F(RewriteStops, AStopWhileLinesAreDroppedLosesNone) {
    const std::string before =
        logOf(std::vector<std::string>(LogEdit::lineCapacity, contact("K1ABC")));
    bool stopped = true;
    for (int n = 1; stopped; ++n) {
        SCOPED_TRACE(n);
        std::filesystem::remove(folder.path() / fullName);
        writeLog(before);
        edit.search("K1ABC");
        stopped = stopsAt(n, [&] { edit.removeLine(); });
        const bool changed = onDisk() != before;
        EXPECT_TRUE(!changed || folder.read(fullName) == before);
        EXPECT_TRUE(changed || stopped);
    }
}

TEST_F(RewriteStops, AFailedChangeLeavesLogBackupAndUndoAsTheyWere) {
    LogEdit page = pageAfterAChange();
    for (const Call kind : {Call::open, Call::write, Call::rename}) {
        calls.failAt(kind, 1, ENOSPC);
        EXPECT_RUNTIME_ERROR(page.removeLine(), ErrorCode::diskFull, HasSubstr(folder.string()));
        EXPECT_EQ(onDisk(), secondLog);
        EXPECT_EQ(backup(), firstLog);
    }
    EXPECT_TRUE(page.undo().made);
    EXPECT_EQ(onDisk(), firstLog);
}

} // namespace
} // namespace vantrel::test
