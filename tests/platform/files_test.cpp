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
#include <ostream>
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

// True when the machine stopped during the step.
bool crashes(const std::function<void()>& step) {
    try {
        step();
        return false;
    } catch (const Crash&) {
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

class FilesTest : public ::testing::Test {
protected:
    TempFolder m_folder;
    FailingCalls m_calls;
    Files m_files{m_folder.string(), m_calls};
};

// --- Reading -------------------------------------------------------------------------------

TEST_F(FilesTest, ReadGivesEveryByte) {
    std::string bytes(200'000, 'x');
    bytes += "\0\r\n\xE9"s;
    m_folder.write("Log.cbr", bytes);
    EXPECT_EQ(m_files.read("LOG.CBR"), bytes);
    m_folder.write("Log.cbr", "");
    EXPECT_EQ(m_files.read("LOG.CBR"), "");
}

TEST_F(FilesTest, MissingFileAndMissingFolderAreToldApart) {
    m_folder.write("A.TXT", "");
    EXPECT_RUNTIME_ERROR(m_files.read("GONE.CBR"), ErrorCode::fileNotFound, HasSubstr("GONE.CBR"));
    EXPECT_RUNTIME_ERROR(m_files.read("GONE\\A.CBR"), ErrorCode::pathNotFound, HasSubstr("A.CBR"));
    EXPECT_RUNTIME_ERROR(m_files.read("A.TXT\\A.CBR"), ErrorCode::pathNotFound, HasSubstr("A.CBR"));
    EXPECT_RUNTIME_ERROR(m_files.appendLine("GONE\\A.CBR", "x"), ErrorCode::pathNotFound,
                         HasSubstr("A.CBR"));
    EXPECT_RUNTIME_ERROR(m_files.rewrite("GONE\\A.CBR", "x"), ErrorCode::pathNotFound,
                         HasSubstr("A.CBR"));
    EXPECT_RUNTIME_ERROR(m_files.keepCopy("GONE\\A.CBR", "x"), ErrorCode::pathNotFound,
                         HasSubstr("A.CBR"));
    EXPECT_EQ(m_files.readOrEmpty("GONE.CBR"), "");
    EXPECT_FALSE(m_files.present("GONE.CBR"));
    EXPECT_FALSE(m_files.present("A.TXT\\A.CBR"));
    EXPECT_THAT(m_folder.names(), ElementsAre("A.TXT"));
}

TEST_F(FilesTest, WhatCannotBeReadIsPresentAndSaysWhy) {
    fs::create_symlink("gone", m_folder.path() / "DANGLING");
    fs::create_symlink("LOOP", m_folder.path() / "LOOP");
    EXPECT_TRUE(m_files.present("DANGLING"));
    EXPECT_RUNTIME_ERROR(m_files.readOrEmpty("DANGLING"), ErrorCode::fileNotFound,
                         HasSubstr("DANGLING"));
    EXPECT_RUNTIME_ERROR(m_files.readOrEmpty("LOOP"), ErrorCode::pathFileAccess, HasSubstr("LOOP"));
    EXPECT_TRUE(m_files.present("LOOP\\A.CBR")) << "nobody can say that it is not there";

    m_folder.write("LOG.CBR", "x");
    m_calls.failAt(Call::open, 1, EACCES);
    EXPECT_RUNTIME_ERROR(m_files.readOrEmpty("LOG.CBR"), ErrorCode::permissionDenied,
                         HasSubstr("LOG.CBR"));
    m_calls.failAt(Call::read, 1, EIO);
    EXPECT_RUNTIME_ERROR(m_files.readOrEmpty("LOG.CBR"), ErrorCode::pathFileAccess,
                         HasSubstr("LOG.CBR"));
}

TEST_F(FilesTest, OnlyRegularFilesAreOpened) {
    fs::create_directory(m_folder.path() / "FOLDER");
    ASSERT_EQ(::mkfifo((m_folder.path() / "PIPE").c_str(), 0600), 0);
    for (const char* name : {"FOLDER", "PIPE", "", "/dev/full", "/dev/zero"}) {
        EXPECT_TRUE(m_files.present(name)) << name;
        EXPECT_RUNTIME_ERROR(m_files.read(name), ErrorCode::pathFileAccess, HasSubstr(name));
        EXPECT_RUNTIME_ERROR(m_files.appendLine(name, "x"), ErrorCode::pathFileAccess,
                             HasSubstr(name));
        EXPECT_RUNTIME_ERROR(m_files.rewrite(name, "x"), ErrorCode::pathFileAccess,
                             HasSubstr(name));
        EXPECT_RUNTIME_ERROR(m_files.rewriteAll({{"NEW", "x"}, {name, "x"}}),
                             ErrorCode::pathFileAccess, HasSubstr(name));
    }
    EXPECT_THAT(m_folder.names(), ElementsAre("FOLDER", "PIPE"));
}

// --- Appending -----------------------------------------------------------------------------

TEST_F(FilesTest, AppendEndsAnOpenLastLineFirst) {
    const struct {
        std::string before;
        std::string after;
    } rows[] = {
        {"A\r\n", "A\r\nNEW\r\n"},       {"A\n", "A\nNEW\r\n"}, {"A", "A\r\nNEW\r\n"},
        {"A\r", "A\r\nNEW\r\n"},         {"", "NEW\r\n"},       {"A\r\n\r", "A\r\n\r\nNEW\r\n"},
        {"A\0\0"s, "A\0\0\r\nNEW\r\n"s},
    };
    for (const auto& row : rows) {
        m_folder.write("Log.cbr", row.before);
        m_files.appendLine("LOG.CBR", "NEW");
        EXPECT_EQ(m_folder.read("Log.cbr"), row.after);
    }
    m_files.appendLine("Other.CBR", "NEW");
    EXPECT_EQ(m_folder.read("Other.CBR"), "NEW\r\n");
    EXPECT_THAT(m_folder.names(), ElementsAre("Log.cbr", "Other.CBR"));
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
    HaltingCalls calls;
    Files files(m_folder.string(), calls);
    files.rewrite("LOG.CBR", "FIRST");
    files.appendLine("LOG.CBR", "SECOND");
    EXPECT_EQ(files.read("LOG.CBR"), "FIRST\r\nSECOND\r\n");
}

// --- Rewriting -----------------------------------------------------------------------------

TEST_F(FilesTest, RewriteReplacesTheFileThatIsThere) {
    m_folder.write("Log.cbr", "a longer one of before");
    m_files.rewrite("LOG.CBR", "new\0"s);
    m_files.rewrite("Other.CBR", "other");
    EXPECT_EQ(snapshotOf(m_folder), (Snapshot{{"Log.cbr", "new\0"s}, {"Other.CBR", "other"}}));
}

TEST_F(FilesTest, LinkedLogIsWrittenAtItsTarget) {
    TempFolder elsewhere;
    elsewhere.write("Real.cbr", "A\r\n");
    fs::create_symlink(elsewhere.path() / "Real.cbr", m_folder.path() / "Log.cbr");
    m_files.appendLine("LOG.CBR", "B");
    EXPECT_EQ(elsewhere.read("Real.cbr"), "A\r\nB\r\n");
    m_files.rewrite("LOG.CBR", "C\r\n");
    EXPECT_EQ(elsewhere.read("Real.cbr"), "C\r\n");
    m_files.rewriteAll({{"LOG.CBR", "D\r\n"}, {"OTHER", "D"}});
    EXPECT_EQ(elsewhere.read("Real.cbr"), "D\r\n");
    EXPECT_TRUE(fs::is_symlink(m_folder.path() / "Log.cbr"));
    EXPECT_THAT(elsewhere.names(), ElementsAre("Real.cbr"));
    EXPECT_THAT(m_folder.names(), ElementsAre("Log.cbr", "OTHER"));
}

TEST_F(FilesTest, LinkThatLeadsNowhereIsLeftAlone) {
    TempFolder elsewhere;
    const fs::path link = m_folder.path() / "LOG.CBR";
    const auto expectRefused = [&](ErrorCode code) {
        EXPECT_RUNTIME_ERROR(m_files.appendLine("LOG.CBR", "x"), code, HasSubstr("LOG.CBR"));
        EXPECT_RUNTIME_ERROR(m_files.rewrite("LOG.CBR", "x"), code, HasSubstr("LOG.CBR"));
        EXPECT_RUNTIME_ERROR(m_files.rewriteAll({{"LOG.CBR", "x"}}), code, HasSubstr("LOG.CBR"));
        EXPECT_TRUE(fs::is_symlink(link));
        EXPECT_THAT(m_folder.names(), ElementsAre("LOG.CBR"));
        fs::remove(link);
    };
    fs::create_symlink(elsewhere.path() / "unplugged.cbr", link);
    expectRefused(ErrorCode::fileNotFound);
    fs::create_symlink("LOG.CBR", link);
    expectRefused(ErrorCode::pathFileAccess);
    EXPECT_TRUE(elsewhere.names().empty());
}

TEST_F(FilesTest, PermissionsOfTheFileAreKept) {
    for (const char* name : {"A", "B", "C"}) {
        m_folder.write(name, "old\r\n");
        fs::permissions(m_folder.path() / name, fs::perms(0660));
    }
    m_files.appendLine("A", "new");
    m_files.rewrite("B", "new");
    m_files.rewriteAll({{"C", "new"}});
    for (const char* name : {"A", "B", "C"})
        EXPECT_EQ(fs::status(m_folder.path() / name).permissions(), fs::perms(0660)) << name;
}

TEST_F(FilesTest, SecondReplacingOfSeveralFilesMeanwhileIsRefused) {
    m_folder.write("LOG.CBR", "log");
    int refused = 0;
    m_files.rewriteAll({{"SKSDB1.TXT", "one"}, {"SKSDB2.TXT", "two"}}, [&] {
        EXPECT_RUNTIME_ERROR(m_files.rewriteAll({{"LOG.CBR", "x"}}), ErrorCode::pathFileAccess,
                             HasSubstr("LOG.CBR"));
        m_files.appendLine("STNS", "a contact can be logged");
        ++refused;
    });
    EXPECT_GE(refused, 2);
    EXPECT_EQ(m_folder.read("SKSDB1.TXT") + m_folder.read("SKSDB2.TXT"), "onetwo");
    EXPECT_EQ(m_folder.read("LOG.CBR"), "log");
    m_files.rewriteAll({{"LOG.CBR", "later"}});
    EXPECT_EQ(m_folder.read("LOG.CBR"), "later");
}

TEST_F(FilesTest, KeptCopyTakesTheNextFreeNumber) {
    EXPECT_THAT(m_files.keepCopy("LOG.CBR.OLD", "one"), HasSubstr("LOG.CBR.OLD"));
    m_folder.write("log.cbr.old2", "somebody's");
    fs::create_symlink("gone", m_folder.path() / "LOG.CBR.OLD3");
    EXPECT_EQ(m_files.keepCopy("LOG.CBR.OLD", "two"), (m_folder.path() / "LOG.CBR.OLD4").string());
    EXPECT_EQ(m_folder.read("LOG.CBR.OLD"), "one");
    EXPECT_EQ(m_folder.read("log.cbr.old2"), "somebody's");
    EXPECT_EQ(m_folder.read("LOG.CBR.OLD4"), "two");
    EXPECT_TRUE(fs::is_symlink(m_folder.path() / "LOG.CBR.OLD3"));
}

TEST_F(FilesTest, NameTooLongForTheDiskIsAnError) {
    const std::string name(254, 'N');
    m_folder.write(name, "old");
    EXPECT_RUNTIME_ERROR(m_files.keepCopy(name + ".OLD", "x"), ErrorCode::pathFileAccess,
                         HasSubstr(name));
    EXPECT_RUNTIME_ERROR(m_files.rewrite(name, "x"), ErrorCode::pathFileAccess, HasSubstr(name));
    EXPECT_EQ(snapshotOf(m_folder), (Snapshot{{name, "old"}}));
}

// --- Every call failing in turn ------------------------------------------------------------

struct Operation {
    const char* name;
    Snapshot before;
    Snapshot after;
    std::function<void(Files&)> run;
    const char* fileName; // what every error names
};

void PrintTo(const Operation& operation, std::ostream* out) {
    *out << operation.name;
}

const std::vector<FileContent> newRoster = {
    {"SKSDB1.TXT", "new 1"}, {"SKSDB2.TXT", "new 2"}, {"SKSDB3.TXT", "new 3"}};
const Snapshot rosterBefore = {
    {"SKSDB1.TXT", "old 1"}, {"SKSDB3.txt", "old 3"}, {"LOG.CBR", "log"}};
const Snapshot rosterAfter = {
    {"SKSDB1.TXT", "new 1"}, {"SKSDB2.TXT", "new 2"}, {"SKSDB3.txt", "new 3"}, {"LOG.CBR", "log"}};

const Operation operations[] = {
    {"Append",
     {{"LOG.CBR", "A\r\nB"}},
     {{"LOG.CBR", "A\r\nB\r\nNEW\r\n"}},
     [](Files& files) { files.appendLine("LOG.CBR", "NEW"); },
     "LOG.CBR"},
    {"AppendToANewFile",
     {},
     {{"LOG.CBR", "NEW\r\n"}},
     [](Files& files) { files.appendLine("LOG.CBR", "NEW"); },
     "LOG.CBR"},
    {"Rewrite",
     {{"LOG.CBR", "old"}},
     {{"LOG.CBR", "new"}},
     [](Files& files) { files.rewrite("LOG.CBR", "new"); },
     "LOG.CBR"},
    {"RewriteOfANewFile",
     {},
     {{"LOG.CBR", "new"}},
     [](Files& files) { files.rewrite("LOG.CBR", "new"); },
     "LOG.CBR"},
    {"RewriteAll", rosterBefore, rosterAfter, [](Files& files) { files.rewriteAll(newRoster); },
     "SKSDB"},
    {"KeepCopy",
     {{"LOG.CBR.OLD", "one"}},
     {{"LOG.CBR.OLD", "one"}, {"LOG.CBR.OLD2", "two"}},
     [](Files& files) { files.keepCopy("LOG.CBR.OLD", "two"); },
     "LOG.CBR.OLD2"},
};

struct Failure {
    Call kind;
    int error;
    ErrorCode code;
};

// Each kind of call with an error it is known for.
const Failure failures[] = {
    {Call::open, EACCES, ErrorCode::permissionDenied},
    {Call::write, ENOSPC, ErrorCode::diskFull},
    {Call::sync, EIO, ErrorCode::pathFileAccess},
    {Call::truncate, EIO, ErrorCode::pathFileAccess},
    {Call::rename, EROFS, ErrorCode::pathFileAccess},
    {Call::link, EDQUOT, ErrorCode::diskFull},
    {Call::remove, EPERM, ErrorCode::permissionDenied},
};

class FailingOperation : public ::testing::TestWithParam<Operation> {
protected:
    // Runs the operation in a fresh folder; afterwards all is old, or all is new, the error
    // names the file, no file is left open, and the next try succeeds.
    void check(const Failure& failure, int n, bool always) {
        const Operation& operation = GetParam();
        TempFolder folder;
        fill(folder, operation.before);
        Files files(folder.string(), m_calls);
        const int freeFile = lowestFreeFile();

        m_calls.failAt(failure.kind, n, failure.error, always);
        bool failed = false;
        try {
            operation.run(files);
        } catch (const RuntimeError& error) {
            failed = true;
            EXPECT_EQ(error.number(), static_cast<int>(failure.code)) << error.what();
            EXPECT_THAT(error.detail(),
                        AllOf(HasSubstr(folder.string()),
                              AnyOf(HasSubstr(operation.fileName), HasSubstr("vantrel-finish"))));
        }
        m_calls.heal();

        EXPECT_EQ(lowestFreeFile(), freeFile) << "a file was left open";
        // What cannot be removed stays, hidden, until the next start.
        if (failure.kind == Call::remove)
            files.recover();
        // A rewritten file whose folder alone could not be synced is in place all the same.
        const bool inPlace = failure.kind == Call::sync && snapshotOf(folder) == operation.after;
        EXPECT_EQ(snapshotOf(folder), failed && !inPlace ? operation.before : operation.after);
        if (failed && !inPlace) {
            operation.run(files);
            EXPECT_EQ(snapshotOf(folder), operation.after) << "at the second try";
        }
    }

private:
    static int lowestFreeFile() {
        const int file = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
        ::close(file);
        return file;
    }

    FailingCalls m_calls;
};

TEST_P(FailingOperation, LeavesAllAsItWasAndSucceedsTheNextTime) {
    for (const Failure& failure : failures)
        for (int n = 1; n <= 12; ++n) {
            SCOPED_TRACE("call of kind " + std::to_string(static_cast<int>(failure.kind)) +
                         ", number " + std::to_string(n));
            check(failure, n, false);
        }
}

TEST_P(FailingOperation, LeavesAllAsItWasOnAFullDisk) {
    check({Call::write, ENOSPC, ErrorCode::diskFull}, 1, true);
}

INSTANTIATE_TEST_SUITE_P(Files, FailingOperation, ::testing::ValuesIn(operations),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(FilesTest, FileThatCannotBeLinkedIsCopied) {
    fill(m_folder, rosterBefore);
    m_calls.failAt(Call::link, 1, EPERM, true);
    m_files.rewriteAll(newRoster);
    EXPECT_EQ(snapshotOf(m_folder), rosterAfter);
}

// --- The machine stopping before any single change -----------------------------------------

class CrashedOperation : public ::testing::TestWithParam<Operation> {};

TEST_P(CrashedOperation, LeavesTheOldOrTheNewAndNothingElse) {
    const Operation& operation = GetParam();
    bool crashed = true;
    for (int n = 1; crashed; ++n) {
        SCOPED_TRACE("before change " + std::to_string(n));
        TempFolder folder;
        fill(folder, operation.before);
        TearingCalls calls;
        Files files(folder.string(), calls);
        calls.crashAt(n);
        crashed = crashes([&] { operation.run(files); });

        FailingCalls healthy;
        Files(folder.string(), healthy).recover();
        EXPECT_THAT(snapshotOf(folder), AnyOf(Eq(operation.before), Eq(operation.after)));
        if (!crashed) {
            EXPECT_EQ(snapshotOf(folder), operation.after);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Files, CrashedOperation,
                         ::testing::Values(operations[2], operations[3], operations[4]),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(CrashedRewrite, OfALogInAnotherFolderDoesNotHinderTheNext) {
    TempFolder folder;
    TempFolder elsewhere;
    const std::string log = (elsewhere.path() / "LOG.CBR").string();
    elsewhere.write("LOG.CBR", "old");
    TearingCalls calls;
    Files files(folder.string(), calls);
    calls.crashAt(3);
    ASSERT_TRUE(crashes([&] { files.rewrite(log, "lost"); }));

    FailingCalls healthy;
    Files restarted(folder.string(), healthy);
    restarted.recover();
    EXPECT_EQ(elsewhere.read("LOG.CBR"), "old");
    restarted.rewrite(log, "new");
    EXPECT_EQ(snapshotOf(elsewhere), (Snapshot{{"LOG.CBR", "new"}}));
}

TEST(CrashedAppend, KeepsWhatWasThereAndTheNextLineStandsAlone) {
    for (int n = 1; n <= 3; ++n) {
        TempFolder folder;
        folder.write("LOG.CBR", "A\r\n");
        TearingCalls calls;
        Files files(folder.string(), calls);
        calls.crashAt(n);
        crashes([&] { files.appendLine("LOG.CBR", "LOST"); });

        FailingCalls healthy;
        Files restarted(folder.string(), healthy);
        restarted.recover();
        restarted.appendLine("LOG.CBR", "NEXT");
        EXPECT_THAT(folder.read("LOG.CBR"),
                    AnyOf("A\r\nNEXT\r\n", "A\r\nLOST\r\nNEXT\r\n", "A\r\nLOS\r\nNEXT\r\n"));
    }
}

// Where a replacing of the roster is disturbed: the machine stops at a change, and at a change
// of the next start's recovery too.
struct Stops {
    int failingRename; // this rename fails on top; 0: none does
    int change;
    int recoveryChange;
};

struct Stopped {
    bool first;
    bool recovery;
};

Stopped replaceRosterWith(const Stops& stops) {
    TempFolder folder;
    fill(folder, rosterBefore);
    TearingCalls calls;
    Files files(folder.string(), calls);
    calls.failAt(Call::rename, stops.failingRename, EIO);
    calls.crashAt(stops.change);
    const bool first = crashes([&] { files.rewriteAll(newRoster); });

    TearingCalls restartedCalls;
    restartedCalls.crashAt(stops.recoveryChange);
    const bool recovery = crashes([&] { Files(folder.string(), restartedCalls).recover(); });

    FailingCalls healthy;
    Files(folder.string(), healthy).recover();
    EXPECT_THAT(snapshotOf(folder), AnyOf(Eq(rosterBefore), Eq(rosterAfter)))
        << "rename " << stops.failingRename << ", change " << stops.change
        << ", change of the recovery " << stops.recoveryChange;
    return {first, recovery};
}

TEST(CrashedRewriteAll, IsSettledAlsoWhenTheNextStartStopsInTheMiddle) {
    int stoppedTwice = 0;
    for (const int failingRename : {0, 2, 3, 4}) {
        Stopped stopped{true, true};
        for (int change = 1; stopped.first; ++change) {
            stopped.recovery = true;
            for (int recoveryChange = 1; stopped.recovery; ++recoveryChange) {
                stopped = replaceRosterWith({failingRename, change, recoveryChange});
                stoppedTwice += stopped.recovery ? 1 : 0;
            }
        }
    }
    EXPECT_GT(stoppedTwice, 100);
}

TEST(CrashedRewriteAll, OfALinkedFileIsFinishedAtItsTarget) {
    bool crashed = true;
    for (int n = 1; crashed; ++n) {
        TempFolder folder;
        TempFolder elsewhere;
        elsewhere.write("One.txt", "old 1");
        folder.write("SKSDB2.TXT", "old 2");
        fs::create_symlink(elsewhere.path() / "One.txt", folder.path() / "sksdb1.txt");
        TearingCalls calls;
        Files files(folder.string(), calls);
        calls.crashAt(n);
        crashed = crashes([&] {
            files.rewriteAll({{"SKSDB1.TXT", "new 1"}, {"SKSDB2.TXT", "new 2"}});
        });

        FailingCalls healthy;
        Files(folder.string(), healthy).recover();
        EXPECT_THAT(elsewhere.read("One.txt") + ", " + folder.read("SKSDB2.TXT"),
                    AnyOf("old 1, old 2", "new 1, new 2"))
            << "before change " << n;
        EXPECT_TRUE(fs::is_symlink(folder.path() / "sksdb1.txt"));
    }
}

// One that failed in this run may leave something for the next start to settle; another one
// before that start must not be mixed up with it.
TEST(FailedRewriteAll, DoesNotSpoilTheNextOne) {
    const std::vector<FileContent> third = {
        {"SKSDB1.TXT", "third 1"}, {"SKSDB2.TXT", "third 2"}, {"SKSDB3.TXT", "third 3"}};
    const Snapshot thirdAfter = {{"SKSDB1.TXT", "third 1"},
                                 {"SKSDB2.TXT", "third 2"},
                                 {"SKSDB3.txt", "third 3"},
                                 {"LOG.CBR", "log"}};
    for (const Call kind : {Call::sync, Call::rename, Call::remove})
        for (int from = 1; from <= 8; ++from) {
            bool crashed = true;
            for (int n = 1; crashed; ++n) {
                TempFolder folder;
                fill(folder, rosterBefore);
                TearingCalls calls;
                Files files(folder.string(), calls);
                calls.failAt(kind, from, EIO, true);
                crashes([&] { files.rewriteAll(newRoster); });
                calls.heal();
                calls.crashAt(n);
                crashed = crashes([&] { files.rewriteAll(third); });

                FailingCalls healthy;
                Files(folder.string(), healthy).recover();
                ASSERT_THAT(snapshotOf(folder),
                            AnyOf(Eq(rosterBefore), Eq(rosterAfter), Eq(thirdAfter)))
                    << "call of kind " << static_cast<int>(kind) << " from number " << from
                    << ", then a stop before change " << n;
            }
        }
}

TEST_F(FilesTest, RecoveryLeavesEverythingElseAlone) {
    const Snapshot before = {{".hidden", "h"}, {"LOG.CBR", "A\r\n"}, {"LOG.CBR.OLD", "B\r\n"}};
    fill(m_folder, before);
    fs::create_directory(m_folder.path() / ".LOG.CBR.vantrel-new");
    m_files.recover();
    fs::remove(m_folder.path() / ".LOG.CBR.vantrel-new");
    EXPECT_EQ(snapshotOf(m_folder), before);
}

} // namespace
} // namespace vantrel::test
