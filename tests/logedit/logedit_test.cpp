// SPDX-License-Identifier: MIT
#include "fakes/failingcalls.h"
#include "logedit/logedit.h"
#include "logedit/loglines.h"
#include "screens/main/workedstations.h"
#include "shared/module1.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <cerrno>
#include <functional>

namespace vantrel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class LogEditTest : public ::testing::Test {
protected:
    LogEditTest() { module.settings.logFileName = logName; }

    void writeLog(const std::string& bytes) { folder.write(logName, bytes); }
    std::string log() { return folder.read(logName); }
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
    Module1 module;
    LogEdit edit{files, module};
};

TEST_F(LogEditTest, SearchAndItsRepeatsVisitExactlyTheMatchingContactsInOrder) {
    for (unsigned seed = 1; seed <= 40; ++seed) {
        RandomLog random(seed);
        const std::vector<std::string> lines = random.lines(60);
        writeLog(joinLines(lines));
        for (const std::string key : {"K1A", "K2AB", "K3ABC", "K9AB"}) {
            std::vector<std::string> expected;
            for (const std::string& line : lines)
                if (line.starts_with("QSO") && line.compare(65, key.size(), key) == 0)
                    expected.push_back(line);
            EXPECT_EQ(visited(key), expected) << "seed " << seed << " key " << key;
        }
    }
}

TEST_F(LogEditTest, TooShortAKeyLeavesTheContactFoundBefore) {
    writeLog(logOf({contact("K1ABC"), contact("K9SKC")}));
    EXPECT_EQ(edit.search("K9SKC"), SearchResult::found);
    EXPECT_EQ(edit.search("K1"), SearchResult::keyTooShort);
    EXPECT_EQ(edit.searchNext("K1"), SearchResult::keyTooShort);
    EXPECT_EQ(edit.line(), contact("K9SKC"));
}

TEST_F(LogEditTest, ARepeatWithoutAFurtherMatchKeepsTheContact) {
    writeLog(logOf({contact("K1ABC"), contact("K9SKC")}));
    edit.search("K1ABC");
    EXPECT_EQ(edit.searchNext("K1ABC"), SearchResult::notFound);
    EXPECT_TRUE(edit.found());
    EXPECT_EQ(edit.line(), contact("K1ABC"));
}

TEST_F(LogEditTest, WithNothingFoundNothingIsChanged) {
    writeLog(logOf({contact("K1ABC")}));
    EXPECT_FALSE(edit.replaceLine(contact("K9SKC")).made);
    edit.search("K1ABC");
    EXPECT_EQ(edit.search("W9ZZZ"), SearchResult::notFound);
    EXPECT_FALSE(edit.replaceLine(contact("K9SKC")).made);
    EXPECT_FALSE(edit.removeLine().made);
    EXPECT_FALSE(edit.undo().made);
    EXPECT_EQ(log(), logOf({contact("K1ABC")}));
    EXPECT_THAT(folder.names(), ElementsAre(logName));
}

TEST_F(LogEditTest, AMissingLogIsARuntimeError) {
    EXPECT_RUNTIME_ERROR(edit.search("K1ABC"), ErrorCode::fileNotFound, HasSubstr(logName));
}

TEST_F(LogEditTest, ReplacingChangesOneLineAndOnlyEndsTheOthersProperly) {
    const std::string before = " Contest: SKS\n\n" + contact("K1ABC") + "\r\nSOAPBOX: \xE9 , \"\n" +
                               contact("K9SKC") + "\n  " + contact("K1ABC");
    writeLog(before);
    edit.search("K9S");
    EXPECT_TRUE(edit.replaceLine(contact("K9SKC", "NEW")).made);
    EXPECT_EQ(log(), " Contest: SKS\r\n\r\n" + contact("K1ABC") + "\r\nSOAPBOX: \xE9 , \"\r\n" +
                         contact("K9SKC", "NEW") + "\r\n  " + contact("K1ABC") + "\r\n");
    EXPECT_EQ(backup(), before);
    EXPECT_EQ(edit.line(), contact("K9SKC", "NEW"));
}

TEST_F(LogEditTest, DeletingRemovesExactlyTheLineFound) {
    int deleted = 0;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        RandomLog random(seed);
        std::vector<std::string> lines = random.lines(30);
        writeLog(joinLines(lines));
        std::vector<std::size_t> matching;
        for (std::size_t i = 0; i < lines.size(); ++i)
            if (lines[i].starts_with("QSO") && lines[i].compare(65, 4, "K2AB") == 0)
                matching.push_back(i);
        if (matching.empty())
            continue;
        const auto chosen =
            static_cast<std::size_t>(random.number(static_cast<int>(matching.size())));
        edit.search("K2AB");
        for (std::size_t i = 0; i < chosen; ++i)
            edit.searchNext("K2AB");
        EXPECT_TRUE(edit.removeLine().made);
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(matching[chosen]));
        EXPECT_EQ(log(), joinLines(lines));
        ++deleted;
    }
    EXPECT_GT(deleted, 30);
}

TEST_F(LogEditTest, AfterADeletionTheLineThatMovedUpIsNeverDeletedUnseen) {
    writeLog(logOf({contact("K1ABC", "ONE"), contact("K1ABC", "TWO"), contact("K9SKC")}));
    edit.search("K1ABC");
    EXPECT_TRUE(edit.removeLine().made);
    EXPECT_FALSE(edit.found());
    EXPECT_FALSE(edit.removeLine().made);
    EXPECT_EQ(log(), logOf({contact("K1ABC", "TWO"), contact("K9SKC")}));
    EXPECT_EQ(edit.searchNext("K1ABC"), SearchResult::found);
    EXPECT_EQ(edit.line(), contact("K1ABC", "TWO"));
    EXPECT_TRUE(edit.removeLine().made);
    EXPECT_EQ(log(), logOf({contact("K9SKC")}));
}

TEST_F(LogEditTest, TheBackupIsTheLogBeforeTheLastChange) {
    writeLog(logOf({contact("K1ABC", "ONE")}));
    edit.search("K1ABC");
    edit.replaceLine(contact("K1ABC", "TWO"));
    edit.replaceLine(contact("K1ABC", "THREE"));
    EXPECT_EQ(log(), logOf({contact("K1ABC", "THREE")}));
    EXPECT_EQ(backup(), logOf({contact("K1ABC", "TWO")}));

    // Saving the same again is no change: the copy stays, and so does the undo.
    EXPECT_TRUE(edit.replaceLine(contact("K1ABC", "THREE")).made);
    EXPECT_EQ(backup(), logOf({contact("K1ABC", "TWO")}));
    EXPECT_TRUE(edit.undo().made);
    EXPECT_EQ(log(), logOf({contact("K1ABC", "TWO")}));
}

TEST_F(LogEditTest, ALogChangedSinceTheSearchIsNotWritten) {
    const std::string name = "OTHER.CBR";
    const std::vector<std::function<void()>> meanwhile{
        [this] { files.appendLine(logName, contact("W9NEW")); },
        [this] { std::filesystem::remove(folder.path() / logName); },
        [&] { // another contest is opened, whose log happens to be the same
            folder.write(name, log());
            module.settings.logFileName = name;
        },
    };
    for (const auto& happens : meanwhile) {
        module.settings.logFileName = logName;
        writeLog(logOf({contact("K1ABC")}));
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

TEST_F(LogEditTest, UndoBringsTheWholeLogBackAndASecondOneRedoes) {
    const std::string before = " Contest: SKS\n" + contact("K1ABC") + "\n" + contact("K9SKC");
    const std::string after = " Contest: SKS\r\n" + contact("K9SKC") + "\r\n";
    writeLog(before);
    edit.search("K1ABC");
    EXPECT_FALSE(edit.canUndo());
    edit.removeLine();
    EXPECT_EQ(log(), after);

    EXPECT_TRUE(edit.undo().made);
    EXPECT_EQ(edit.undoText(), undoneText);
    EXPECT_EQ(log(), before);
    EXPECT_EQ(backup(), after);
    EXPECT_FALSE(edit.found()); // what the page showed need not be in the log any more

    EXPECT_TRUE(edit.undo().made);
    EXPECT_EQ(edit.undoText(), redoneText);
    EXPECT_EQ(log(), after);
    EXPECT_EQ(backup(), before);
}

TEST_F(LogEditTest, UndoNeverLosesAContactLoggedMeanwhile) {
    writeLog(logOf({contact("K1ABC")}));
    edit.search("K1ABC");
    edit.replaceLine(contact("K1ABC", "TWO"));
    files.appendLine(logName, contact("W9NEW"));
    expectRefused(edit.undo(), "THE CHANGE CANNOT BE UNDONE");
    EXPECT_EQ(log(), logOf({contact("K1ABC", "TWO"), contact("W9NEW")}));
    EXPECT_EQ(backup(), logOf({contact("K1ABC")}));
}

TEST_F(LogEditTest, UndoIsRefusedWhenTheBackupIsNoLongerTheLogBeforeThatChange) {
    writeLog(logOf({contact("K1ABC", "ONE")}));
    edit.search("K1ABC");
    edit.replaceLine(contact("K1ABC", "TWO"));
    // The other page makes a change and undoes it: the log is again what this page left.
    LogEdit other(files, module);
    other.search("K1ABC");
    other.removeLine();
    EXPECT_TRUE(other.undo().made);
    ASSERT_EQ(log(), logOf({contact("K1ABC", "TWO")}));
    expectRefused(edit.undo(), "THE CHANGE CANNOT BE UNDONE");
    EXPECT_EQ(log(), logOf({contact("K1ABC", "TWO")}));
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
    EXPECT_EQ(log(), after);
    EXPECT_EQ(folder.read(fullName), "kept earlier");
    EXPECT_EQ(folder.read(fullName + "2"), before);
    ASSERT_TRUE(result.notice);
    EXPECT_EQ(result.notice->text, "LINES DROPPED FROM THE LOG: 3");
    EXPECT_THAT(result.notice->informative, HasSubstr(files.path(fullName + "2")));

    const ChangeResult undone = edit.undo();
    EXPECT_FALSE(undone.notice);
    EXPECT_EQ(log(), before);
    EXPECT_TRUE(edit.undo().notice); // the redo drops them again, so it keeps them again
    EXPECT_EQ(log(), after);
    EXPECT_EQ(folder.read(fullName + "3"), before);

    // Within the table from now on: nothing more is dropped or kept.
    edit.search("K1ABC");
    EXPECT_FALSE(edit.removeLine().notice);
    EXPECT_FALSE(folder.has(fullName + "4"));
}

TEST_F(LogEditTest, TheWorkedStationsFollowAChangeAndItsUndo) {
    writeLog(logOf({contact("K1ABC"), contact("K9SKC")}));
    edit.search("K1ABC");
    edit.removeLine();
    EXPECT_FALSE(edit.reloadLog());
    EXPECT_EQ(module.qsoTable.count(), 1);
    EXPECT_THAT(module.workedStations.entries(), ElementsAre(workedEntry(contact("K9SKC"))));
    EXPECT_EQ(folder.read("StnsWorked.TXT"), workedEntry(contact("K9SKC")) + "\r\n");

    edit.undo();
    EXPECT_FALSE(edit.reloadLog());
    EXPECT_EQ(folder.read("StnsWorked.TXT"),
              workedEntry(contact("K1ABC")) + "\r\n" + workedEntry(contact("K9SKC")) + "\r\n");
}

TEST_F(LogEditTest, AWorkedStationsFileThatCannotFollowDoesNotHoldTheListBack) {
    writeLog(logOf({contact("K1ABC")}));
    edit.search("K1ABC");
    edit.replaceLine(contact("K9SKC"));
    calls.failAt(Call::write, 1, ENOSPC);
    const std::optional<RuntimeError> failed = edit.reloadLog();
    ASSERT_TRUE(failed);
    EXPECT_EQ(failed->code(), ErrorCode::diskFull);
    EXPECT_THAT(module.workedStations.entries(), ElementsAre(workedEntry(contact("K9SKC"))));
}

// --- Stops and failures --------------------------------------------------------------------

const std::string firstLog = logOf({contact("K1ABC", "ONE"), contact("K9SKC")});
const std::string secondLog = logOf({contact("K1ABC", "TWO"), contact("K9SKC")});
const std::string thirdLog = logOf({contact("K9SKC")});

class RewriteStops : public LogEditTest {
protected:
    // A page that has made a change: log, backup and undo all hold something to lose.
    LogEdit pageAfterAChange() {
        writeLog(firstLog);
        LogEdit page(files, module);
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

TEST_F(RewriteStops, AStopDuringADeletionLeavesTheOldLogOrTheNewOneWithItsBackup) {
    bool stopped = true;
    for (int n = 1; stopped; ++n) {
        SCOPED_TRACE(n);
        LogEdit page = pageAfterAChange();
        stopped = stopsAt(n, [&] { page.removeLine(); });
        const bool changed = log() == thirdLog;
        EXPECT_EQ(log(), changed ? thirdLog : secondLog);
        EXPECT_EQ(backup(), changed ? secondLog : firstLog);
        EXPECT_THAT(folder.names(), ElementsAre(logName, backupName));
        EXPECT_TRUE(changed || stopped);
    }
}

TEST_F(RewriteStops, AStopDuringAnUndoLosesNeitherOfTheTwoLogs) {
    bool stopped = true;
    for (int n = 1; stopped; ++n) {
        SCOPED_TRACE(n);
        LogEdit page = pageAfterAChange();
        stopped = stopsAt(n, [&] { page.undo(); });
        const bool undone = log() == firstLog;
        EXPECT_EQ(log(), undone ? firstLog : secondLog);
        EXPECT_EQ(backup(), undone ? secondLog : firstLog);
        EXPECT_TRUE(undone || stopped);
    }
}

TEST_F(RewriteStops, AStopWhileLinesAreDroppedLosesNone) {
    const std::string line = contact("K1ABC") + "\r\n";
    std::string before;
    for (int i = 0; i < LogEdit::lineCapacity + 1; ++i)
        before += line;
    bool stopped = true;
    for (int n = 1; stopped; ++n) {
        SCOPED_TRACE(n);
        std::filesystem::remove(folder.path() / fullName);
        writeLog(before);
        LogEdit page(files, module);
        page.search("K1ABC");
        stopped = stopsAt(n, [&] { page.removeLine(); });
        const bool changed = log() != before;
        if (changed) {
            EXPECT_EQ(log(), before.substr(2 * line.size()));
            EXPECT_EQ(folder.read(fullName), before);
        }
        EXPECT_TRUE(changed || stopped);
    }
}

TEST_F(RewriteStops, AFailedChangeLeavesLogBackupAndUndoAsTheyWere) {
    for (const Call kind : {Call::open, Call::write, Call::sync, Call::rename}) {
        bool made = false;
        for (int n = 1; !made; ++n) {
            SCOPED_TRACE(testing::Message() << "call " << static_cast<int>(kind) << " no. " << n);
            LogEdit page = pageAfterAChange();
            calls.failAt(kind, n, ENOSPC);
            try {
                made = page.removeLine().made;
            } catch (const RuntimeError& error) {
                EXPECT_EQ(error.code(), ErrorCode::diskFull);
            }
            calls.heal();
            if (made)
                continue;
            EXPECT_EQ(log(), secondLog);
            EXPECT_EQ(backup(), firstLog);
            EXPECT_THAT(folder.names(), ElementsAre(logName, backupName));
            EXPECT_EQ(page.line(), contact("K1ABC", "TWO"));
            EXPECT_TRUE(page.undo().made);
            EXPECT_EQ(log(), firstLog);
        }
    }
}

} // namespace
} // namespace vantrel::test
