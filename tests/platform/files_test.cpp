// SPDX-License-Identifier: MIT
// Durable appends and rewrites: the bytes on the disk when all goes well, when any system
// call fails, and when the machine stops before any single change.
#include "fakes/failingcalls.h"
#include "platform/files.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <functional>
#include <map>
#include <sys/stat.h>
#include <unistd.h>

namespace vantrel::test {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using ::testing::AllOf;
using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::Eq;
using ::testing::HasSubstr;

// A whole folder: names, hidden ones too, and what the files hold.
using Snapshot = std::map<std::string, std::string>;

Snapshot snapshotOf(const TempFolder& folder) {
    Snapshot result;
    for (const std::string& name : folder.names())
        result[name] = folder.read(name);
    return result;
}

void fill(const TempFolder& folder, const Snapshot& snapshot) {
    for (const auto& [name, bytes] : snapshot)
        folder.write(name, bytes);
}

struct FilesTest : ::testing::Test {
    // Nothing opens, makes or changes it; the error names it.
    void expectRefused(const std::string& name, ErrorCode code) {
        const std::vector<std::string> names = folder.names();
        EXPECT_RUNTIME_ERROR(files.read(name), code, HasSubstr(name));
        EXPECT_RUNTIME_ERROR(files.appendLine(name, "x"), code, HasSubstr(name));
        EXPECT_RUNTIME_ERROR(files.rewrite(name, "x"), code, HasSubstr(name));
        EXPECT_RUNTIME_ERROR(files.rewriteAll({{"NEW", "x"}, {name, "x"}}), code, HasSubstr(name));
        EXPECT_EQ(folder.names(), names);
    }

    TempFolder folder;
    FailingCalls calls;
    Files files{folder.string(), calls};
};

TEST_F(FilesTest, ReadGivesEveryByteOrSaysWhyNot) {
    for (const std::string& bytes : {std::string(200'000, 'x') + "\0\r\n\xE9"s, ""s}) {
        folder.write("Log.cbr", bytes);
        EXPECT_EQ(files.read("LOG.CBR"), bytes);
    }
    EXPECT_EQ(files.readOrEmpty("GONE.CBR"), "");
    EXPECT_RUNTIME_ERROR(files.read("GONE.CBR"), ErrorCode::fileNotFound, HasSubstr("GONE.CBR"));
    calls.failAt(Call::open, 1, EACCES);
    EXPECT_RUNTIME_ERROR(files.readOrEmpty("LOG.CBR"), ErrorCode::permissionDenied,
                         HasSubstr("Log.cbr"));
    calls.failAt(Call::read, 1, EIO);
    EXPECT_RUNTIME_ERROR(files.readOrEmpty("LOG.CBR"), ErrorCode::pathFileAccess,
                         HasSubstr("Log.cbr"));
}

// A link that leads nowhere is left alone: the log on a stick that is not plugged in is no new
// log.
TEST_F(FilesTest, OnlyRegularFilesInFoldersThatAreThereAreOpened) {
    fs::create_directory(folder.path() / "FOLDER");
    ASSERT_EQ(::mkfifo((folder.path() / "PIPE").c_str(), 0600), 0);
    fs::create_symlink("LOOP", folder.path() / "LOOP");
    fs::create_symlink("gone", folder.path() / "DANGLING");
    folder.write("A.TXT", "");
    const std::tuple<const char*, ErrorCode, bool> rows[] = {
        {"FOLDER", ErrorCode::pathFileAccess, true},
        {"PIPE", ErrorCode::pathFileAccess, true},
        {"LOOP", ErrorCode::pathFileAccess, true},
        {"LOOP/A.CBR", ErrorCode::pathFileAccess, true}, // nobody can say that it is not there
        {"", ErrorCode::pathFileAccess, true},
        {"/dev/full", ErrorCode::pathFileAccess, true},
        {"DANGLING", ErrorCode::fileNotFound, true},
        {"GONE/A.CBR", ErrorCode::pathNotFound, false},
        {"A.TXT/A.CBR", ErrorCode::pathNotFound, false}};
    for (const auto& [name, code, present] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(files.present(name), present);
        expectRefused(name, code);
    }
}

TEST_F(FilesTest, AppendEndsAnOpenLastLineFirst) {
    const std::pair<std::string, std::string> rows[] = {
        {"A\r\n", "A\r\nNEW\r\n"},       {"A\n", "A\nNEW\r\n"}, {"A", "A\r\nNEW\r\n"},
        {"A\r", "A\r\nNEW\r\n"},         {"", "NEW\r\n"},       {"A\r\n\r", "A\r\n\r\nNEW\r\n"},
        {"A\0\0"s, "A\0\0\r\nNEW\r\n"s},
    };
    for (const auto& [before, after] : rows) {
        folder.write("Log.cbr", before);
        files.appendLine("LOG.CBR", "NEW");
        EXPECT_EQ(folder.read("Log.cbr"), after);
    }
    EXPECT_THAT(folder.names(), ElementsAre("Log.cbr"));
}

// Takes a byte at a time, and is interrupted before each.
class HaltingCalls : public SystemCalls {
public:
    long write(int file, const char* bytes, std::size_t count) override {
        return interrupted() ? -1
                             : SystemCalls::write(file, bytes, std::min<std::size_t>(count, 1));
    }
    long read(int file, char* bytes, std::size_t count) override {
        return interrupted() ? -1 : SystemCalls::read(file, bytes, std::min<std::size_t>(count, 1));
    }

private:
    bool interrupted() {
        m_interrupted = !m_interrupted;
        errno = EINTR;
        return m_interrupted;
    }
    bool m_interrupted = false;
};

TEST_F(FilesTest, InterruptedAndPartialCallsAreGoneOnWith) {
    HaltingCalls halting;
    Files slow(folder.string(), halting);
    slow.rewrite("LOG.CBR", "FIRST");
    slow.appendLine("LOG.CBR", "SECOND");
    EXPECT_EQ(slow.read("LOG.CBR"), "FIRST\r\nSECOND\r\n");
}

TEST_F(FilesTest, LinkedLogIsWrittenAtItsTargetWhosePermissionsAreKept) {
    TempFolder elsewhere;
    elsewhere.write("Real.cbr", "A\r\n");
    fs::permissions(elsewhere.path() / "Real.cbr", fs::perms(0660));
    fs::create_symlink(elsewhere.path() / "Real.cbr", folder.path() / "Log.cbr");
    const auto expectReal = [&](const char* bytes) {
        EXPECT_EQ(elsewhere.read("Real.cbr"), bytes);
        const fs::file_status status = fs::status(elsewhere.path() / "Real.cbr");
        EXPECT_EQ(status.permissions(), fs::perms(0660)) << bytes;
    };
    files.appendLine("LOG.CBR", "B");
    expectReal("A\r\nB\r\n");
    files.rewrite("LOG.CBR", "C\r\n");
    expectReal("C\r\n");
    files.rewriteAll({{"LOG.CBR", "D\r\n"}, {"OTHER", "D"}});
    expectReal("D\r\n");
    EXPECT_TRUE(fs::is_symlink(folder.path() / "Log.cbr"));
    EXPECT_THAT(elsewhere.names(), ElementsAre("Real.cbr"));
    EXPECT_THAT(folder.names(), ElementsAre("Log.cbr", "OTHER"));
}

TEST_F(FilesTest, WindowLivesOnWhileTheDiskIsWaitedFor) {
    struct SlowDisk : SystemCalls {
        int sync(int) override { return ::usleep(50'000); }
    } slowDisk;
    int turns = 0;
    Files(folder.string(), slowDisk).rewriteAll({{"A", "one"}, {"B", "two"}}, [&] { ++turns; });
    EXPECT_GT(turns, 8); // one after each file and each folder would be three
}

TEST_F(FilesTest, SecondReplacingOfSeveralFilesMeanwhileIsRefused) {
    folder.write("LOG.CBR", "log");
    files.rewriteAll({{"SKSDB1.TXT", "one"}, {"SKSDB2.TXT", "two"}}, [&] {
        EXPECT_RUNTIME_ERROR(files.rewriteAll({{"LOG.CBR", "x"}}), ErrorCode::pathFileAccess,
                             HasSubstr("LOG.CBR"));
        files.appendLine("LOG.CBR", "a contact");
    });
    EXPECT_EQ(folder.read("SKSDB1.TXT") + folder.read("SKSDB2.TXT"), "onetwo");
    EXPECT_THAT(folder.read("LOG.CBR"), ::testing::StartsWith("log\r\na contact\r\n"));
    files.rewriteAll({{"LOG.CBR", "later"}});
    EXPECT_EQ(folder.read("LOG.CBR"), "later");
}

// --- Every call failing in turn ------------------------------------------------------------

struct Operation {
    const char* name;
    Snapshot before;
    Snapshot after;
    std::function<void(Files&)> run;
    int syncs; // how often it waits for the disk
};

const Snapshot rosterBefore = {{"SKSDB1.TXT", "old 1"}, {"SKSDB3.txt", "old 3"}, {".hidden", "x"}};
const Snapshot rosterAfter = {
    {"SKSDB1.TXT", "new 1"}, {"SKSDB2.TXT", "new 2"}, {"SKSDB3.txt", "new 3"}, {".hidden", "x"}};

void replaceRoster(Files& files) {
    files.rewriteAll({{"SKSDB1.TXT", "new 1"}, {"SKSDB2.TXT", "new 2"}, {"SKSDB3.TXT", "new 3"}});
}
void append(Files& files) {
    files.appendLine("LOG.CBR", "NEW");
}
void rewrite(Files& files) {
    files.rewrite("LOG.CBR", "new");
}

const Operation operations[] = {
    {"Append", {{"LOG.CBR", "A\r\nB"}}, {{"LOG.CBR", "A\r\nB\r\nNEW\r\n"}}, append, 1},
    {"AppendToANewFile", {}, {{"LOG.CBR", "NEW\r\n"}}, append, 2},
    {"Rewrite", {{"LOG.CBR", "a longer old"}}, {{"LOG.CBR", "new"}}, rewrite, 2},
    {"RewriteOfANewFile", {}, {{"LOG.CBR", "new"}}, rewrite, 2},
    {"RewriteAll", rosterBefore, rosterAfter, replaceRoster, 7},
    {"KeepCopy",
     {{"log.cbr.old", "one"}},
     {{"log.cbr.old", "one"}, {"LOG.CBR.OLD2", "two"}},
     [](Files& files) { files.keepCopy("LOG.CBR.OLD", "two"); },
     2},
};

// Each kind of call with an error it is known for.
const std::tuple<Call, int, ErrorCode> failures[] = {
    {Call::open, EACCES, ErrorCode::permissionDenied},
    {Call::write, ENOSPC, ErrorCode::diskFull},
    {Call::sync, EIO, ErrorCode::pathFileAccess},
    {Call::truncate, EIO, ErrorCode::pathFileAccess},
    {Call::rename, EROFS, ErrorCode::pathFileAccess},
    {Call::link, EDQUOT, ErrorCode::diskFull},
    {Call::remove, EPERM, ErrorCode::permissionDenied},
};

int lowestFreeFile() {
    const int file = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    ::close(file);
    return file;
}

// Runs the operation in a fresh folder; afterwards all is old, or all is new, the error names
// the file, no file is left open, and the next try succeeds.
void fail(const Operation& operation, Call kind, int error, ErrorCode code, int n, bool always) {
    TempFolder folder;
    fill(folder, operation.before);
    FailingCalls calls;
    Files files(folder.string(), calls);
    const int freeFile = lowestFreeFile();

    calls.failAt(kind, n, error, always);
    bool failed = false;
    try {
        operation.run(files);
    } catch (const RuntimeError& failure) {
        failed = true;
        EXPECT_EQ(failure.code(), code) << failure.what();
        EXPECT_THAT(failure.detail(), AllOf(HasSubstr(folder.string()),
                                            AnyOf(HasSubstr("LOG.CBR"), HasSubstr("SKSDB"),
                                                  HasSubstr("vantrel-finish"))));
    }
    calls.heal();

    EXPECT_EQ(lowestFreeFile(), freeFile) << "a file was left open";
    // What cannot be removed stays, hidden, until the next start.
    if (kind == Call::remove)
        files.recover();
    EXPECT_TRUE(kind != Call::sync || failed == (n <= operation.syncs)) << "waits for the disk";
    // A rewritten file whose folder alone could not be synced is in place all the same.
    const bool inPlace = kind == Call::sync && n > 1 && snapshotOf(folder) == operation.after;
    EXPECT_EQ(snapshotOf(folder), failed && !inPlace ? operation.before : operation.after);
    if (failed && !inPlace) {
        operation.run(files);
        EXPECT_EQ(snapshotOf(folder), operation.after) << "at the second try";
    }
}

TEST(FailingOperation, LeavesAllAsItWasAndSucceedsTheNextTime) {
    for (const Operation& operation : operations) {
        SCOPED_TRACE(operation.name);
        for (const auto& [kind, error, code] : failures)
            for (int n = 1; n <= 12; ++n) {
                SCOPED_TRACE("call of kind " + std::to_string(static_cast<int>(kind)) +
                             ", number " + std::to_string(n));
                fail(operation, kind, error, code, n, false);
            }
        fail(operation, Call::write, ENOSPC, ErrorCode::diskFull, 1, true);
    }
}

TEST_F(FilesTest, FileThatCannotBeLinkedIsCopied) {
    fill(folder, rosterBefore);
    calls.failAt(Call::link, 1, EPERM, true);
    replaceRoster(files);
    EXPECT_EQ(snapshotOf(folder), rosterAfter);
}

// --- The machine stopping before any single change -----------------------------------------

// A crash in the middle of a write leaves a part of it.
class TearingCalls : public FailingCalls {
public:
    long write(int file, const char* bytes, std::size_t count) override {
        try {
            return FailingCalls::write(file, bytes, count);
        } catch (const Crash&) {
            SystemCalls::write(file, bytes, count / 2);
            throw;
        }
    }
};

struct FailingCall {
    Call kind = Call::rename;
    int n = 0; // 0: none fails
    bool always = false;
};

// The program at work in a folder while the machine stops before its n-th change (0: it does
// not), and a call fails on top. True when the machine stopped.
bool stops(const TempFolder& folder, int n, const std::function<void(Files&)>& work,
           const FailingCall& failing = {}) {
    TearingCalls calls;
    Files files(folder.string(), calls);
    calls.failAt(failing.kind, failing.n, EIO, failing.always);
    calls.crashAt(n);
    try {
        work(files);
    } catch (const Crash&) {
        return true;
    } catch (const RuntimeError&) {
        EXPECT_NE(failing.n, 0);
    }
    return false;
}

void recover(Files& files) {
    files.recover();
}

// Calls the attempt with 1, 2 ... until it is no longer stopped.
void atEveryChange(const std::function<bool(int)>& attempt) {
    for (int n = 1; attempt(n) && !::testing::Test::HasFailure();)
        ++n;
}

// The log may lie where the next start does not look for what is left over.
TEST(StoppedRewrite, LeavesTheOldOrTheNewAndDoesNotHinderTheNext) {
    for (const std::string& old : {"a longer old"s, ""s}) // "": there is none
        atEveryChange([&](int n) {
            SCOPED_TRACE("before change " + std::to_string(n));
            TempFolder folder;
            TempFolder elsewhere;
            const std::string log = (elsewhere.path() / "LOG.CBR").string();
            if (!old.empty())
                elsewhere.write("LOG.CBR", old);
            const bool stopped = stops(folder, n, [&](Files& files) { files.rewrite(log, "new"); });
            const bool there = elsewhere.has("LOG.CBR");
            EXPECT_EQ(there ? elsewhere.read("LOG.CBR") : "", stopped ? old : "new");
            stops(folder, 0, [&](Files& files) { files.rewrite(log, "next"); });
            EXPECT_EQ(snapshotOf(elsewhere), (Snapshot{{"LOG.CBR", "next"}}));
            return stopped;
        });
}

TEST(StoppedAppend, KeepsWhatWasThereAndTheNextLineStandsAlone) {
    for (int n = 1; n <= 3; ++n) {
        TempFolder folder;
        folder.write("LOG.CBR", "A\r\n");
        stops(folder, n, [](Files& files) { files.appendLine("LOG.CBR", "LOST"); });
        stops(folder, 0, append);
        EXPECT_THAT(folder.read("LOG.CBR"),
                    AnyOf("A\r\nNEW\r\n", "A\r\nLOST\r\nNEW\r\n", "A\r\nLOS\r\nNEW\r\n"));
    }
}

// The machine stops while the roster is replaced, one file of it linked to another folder, and
// stops again in the next start's recovery.
TEST(StoppedRewriteAll, IsSettledAlsoWhenTheNextStartStopsInTheMiddle) {
    int stoppedTwice = 0;
    const auto attempt = [&](int failingRename, int first, int second) {
        TempFolder folder;
        TempFolder elsewhere;
        fill(folder, rosterBefore);
        fs::rename(folder.path() / "SKSDB1.TXT", elsewhere.path() / "one");
        fs::create_symlink(elsewhere.path() / "one", folder.path() / "SKSDB1.TXT");
        const bool stopped = stops(folder, first, replaceRoster, {Call::rename, failingRename});
        const bool stoppedAgain = stops(folder, second, recover);
        stops(folder, 0, recover);
        EXPECT_THAT(snapshotOf(folder), AnyOf(Eq(rosterBefore), Eq(rosterAfter)))
            << "failing rename " << failingRename << ", stops " << first << " and " << second;
        EXPECT_TRUE(fs::is_symlink(folder.path() / "SKSDB1.TXT"));
        stoppedTwice += stoppedAgain ? 1 : 0;
        return std::pair(stopped, stoppedAgain);
    };
    for (const int failingRename : {0, 2, 3, 4})
        atEveryChange([&](int first) {
            atEveryChange([&](int second) { return attempt(failingRename, first, second).second; });
            return attempt(failingRename, first, 0).first;
        });
    EXPECT_GT(stoppedTwice, 100);
}

// One that failed may leave something for the next start to settle; another one before that
// start must not be mixed up with it.
TEST(FailedRewriteAll, DoesNotSpoilTheNextOne) {
    const Snapshot thirdAfter = {
        {"SKSDB1.TXT", "third 1"}, {"SKSDB2.TXT", "2"}, {"SKSDB3.txt", "3"}, {".hidden", "x"}};
    const auto third = [](Files& files) {
        files.rewriteAll({{"SKSDB1.TXT", "third 1"}, {"SKSDB2.TXT", "2"}, {"SKSDB3.TXT", "3"}});
    };
    for (const Call kind : {Call::sync, Call::rename, Call::remove})
        for (int from = 1; from <= 8; ++from)
            atEveryChange([&](int n) {
                TempFolder folder;
                fill(folder, rosterBefore);
                stops(folder, 0, replaceRoster, {kind, from, true});
                const bool stopped = stops(folder, n, third);
                stops(folder, 0, recover);
                EXPECT_THAT(snapshotOf(folder),
                            AnyOf(Eq(rosterBefore), Eq(rosterAfter), Eq(thirdAfter)))
                    << "call of kind " << static_cast<int>(kind) << " from number " << from
                    << ", then a stop before change " << n;
                return stopped;
            });
}

} // namespace
} // namespace vantrel::test
