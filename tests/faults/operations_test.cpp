// SPDX-License-Identifier: MIT
// The operator's whole operations while each system call fails in turn, and while the machine or
// the program stops before each change. Nothing that was told as done is lost, every file is the
// old or the new one, what failed says so, and the next try or the next start goes on.
#include "fakes/failingcalls.h"
#include "fakes/fakeclock.h"
#include "log/log.h"
#include "log/logfile.h"
#include "log/qsoline.h"
#include "logedit/logedit.h"
#include "output/adif/adif.h"
#include "output/adif/strictadif.h"
#include "output/files/backup.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "roster/rosterfiles.h"
#include "roster/rosterimport.h"
#include "shared/settings.h"
#include "support/machine.h"
#include "support/testing.h"

namespace vantrel::test {
namespace {

namespace fs = std::filesystem;

const std::string logName = "SKS061611.CBR";

// The program as it stands when an operation begins: started, with the log open.
struct World {
    World(const TempFolder& folder, SystemCalls& calls, bool withChange = false,
          const std::string& name = logName)
        : files(folder.string(), calls) {
        files.recover();
        settings = loadSettings(files);
        log.open(name);
        if (withChange)
            correct();
        log.reread();
    }

    void correct() {
        edit.search("K120ABC");
        edit.replaceLine(withField(edit.line(), qso::hisName, "OTHER"));
    }
    void saveBonusStation() {
        settings.bonusStation = "OTHER";
        saveSettings(files, settings);
    }
    // All members get the same new name: a mixture of two imports is neither of them.
    void import() {
        std::string list = "skccnr|call\r\n";
        for (int i = 0; i < 50; ++i)
            list += std::to_string(3000 - i) + "T|" + "AKNWD"[i % 5] + std::to_string(i) +
                    "XY|NEW|TOWN|MA|||||||\r\n";
        files.rewrite(dataListFile, list);
        importMembers(files, MemberList::data, dataListFile,
                      [](const ImportStep&) { return true; });
    }

    Files files;
    OperatingSettings settings;
    Log log{files};
    LogEdit edit{files, log};
};

const struct Operation {
    std::string_view name;
    void (*run)(World&);
} operations[] = {
    {"log a contact", [](World& world) { std::ignore = world.log.append(contactLine({})); }},
    {"begin a log", [](World& world) { world.files.appendLine("BEGUN.CBR", "QSO"); }},
    {"correct", [](World& world) { world.correct(); }},
    {"undo", [](World& world) { world.edit.undo(); }},
    {"start a new log",
     [](World& world) { startNewLog(world.files, world.log.name(), logHeaderLines); }},
    {"save the settings", [](World& world) { world.saveBonusStation(); }},
    {"import", [](World& world) { world.import(); }},
    {"sort", [](World& world) { sortRosterFiles(world.files); }},
    {"ADIF", [](World& world) { exportAdif(world.files, world.log); }},
    {"back up", [](World& world) { backUpLog(world.files, world.log.name(), "BACKUP"); }},
};

// The worked stations follow whatever was done.
void carryOut(const Operation& operation, World& world) {
    operation.run(world);
    world.log.reread();
}

void fill(const TempFolder& folder) {
    std::string log = logHeaderLines;
    // It ends so near the end of a page that one contact more needs another page.
    for (int i = 0; i < 74; ++i)
        log += contactLine({.hisCall = "K" + std::to_string(100 + i) + "ABC"}) + "\r\n";
    folder.write(logName, log);
    folder.write("Vantrel.CFG", std::string(13, '\n') + "NO\r\n");
    for (const std::string_view name : rosterFiles)
        folder.write(std::string(name), "Z9ZZ      9T        OLD       MA \r\n"
                                        "Y9YY      8T        OLD       MA \r\n");
    fs::create_directory(folder.path() / "BACKUP");
    folder.write("BACKUP/" + logName, "an earlier copy\r\n");
}

// Every file of the folder and of those in it; nothing for what is hidden.
using Snapshot = std::map<std::string, std::string>;

Snapshot snapshotOf(const TempFolder& folder) {
    Snapshot result;
    for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
        const std::string name = entry.path().lexically_relative(folder.path()).generic_string();
        if (entry.is_regular_file() && !entry.path().filename().string().starts_with('.'))
            result[name] = folder.read(name);
    }
    return result;
}

void expectNoScratch(const TempFolder& folder) {
    for (const std::string& name : folder.names())
        EXPECT_FALSE(name.starts_with('.')) << name;
}

// What belongs together: the log and its copies of before, the five roster files unless they
// are sorted, each other file.
std::string groupOf(const std::string& name, const Operation& operation) {
    if (name.starts_with("SKSDB") && operation.name != "sort")
        return "the roster";
    return name.starts_with(logName) ? logName : name;
}

// Each group of files is as it was or as it should become.
void expectOldOrNew(const TempFolder& folder, const Snapshot& before, const Snapshot& after,
                    const Operation& operation) {
    Snapshot found = snapshotOf(folder);
    // A log, or its backup, is kept before it is replaced: an end between leaves a copy more.
    for (const std::string& kept : {logName, "BACKUP/" + logName})
        if (found[kept] == before.at(kept))
            std::erase_if(found, [&](const auto& file) {
                return file.first.starts_with(kept + ".OLD") && before.count(file.first) == 0;
            });
    std::map<std::string, std::array<Snapshot, 3>> groups;
    const std::array<const Snapshot*, 3> states{&found, &before, &after};
    for (std::size_t i = 0; i < states.size(); ++i)
        for (const auto& [name, bytes] : *states[i])
            groups[groupOf(name, operation)][i][name] = bytes;
    for (const auto& [name, files] : groups)
        EXPECT_THAT(files[0], ::testing::AnyOf(files[1], files[2])) << name;
}

int lowestFreeFile() {
    const int file = ::dup(0);
    ::close(file);
    return file;
}

// One operation, tried again and again while something else is wrong.
class Trial {
public:
    explicit Trial(const Operation& operation) : m_operation(operation) {
        TempFolder folder;
        FailingCalls calls;
        fill(folder);
        World world(folder, calls, m_operation.name == "undo");
        carryOut(m_operation, world);
        m_after = snapshotOf(folder);
    }

    // True when the operation fails since the n-th call of the kind does, for an even n all later
    // ones too. A contact that is told as not written is not in the log. Healed, the next try
    // succeeds.
    bool fails(Call kind, int n, int error, ErrorCode expected) const {
        const TempFolder folder;
        FailingCalls calls;
        fill(folder);
        World world(folder, calls, m_operation.name == "undo");
        const Snapshot before = snapshotOf(folder);
        const int freeFile = lowestFreeFile();
        calls.failAt(kind, n, error, n % 2 == 0);
        const std::string told = attempt(world, expected);
        calls.heal();
        // What could not even be put back or removed is left to the next start.
        if (kind == Call::remove || n % 2 == 0)
            Files(folder.string(), calls).recover();
        EXPECT_EQ(lowestFreeFile(), freeFile) << "a file was left open";
        expectNoScratch(folder);
        const bool untouched = appends() && told.find(".CBR: ") != told.npos &&
                               (kind == Call::write || (kind == Call::sync && n == 1));
        expectOldOrNew(folder, told.empty() ? m_after : before, untouched ? before : m_after,
                       m_operation);
        World next(folder, calls);
        EXPECT_EQ(attempt(next, expected), "");
        expectNoScratch(folder);
        return !told.empty();
    }

    // The machine stops before the n-th change, and again while the next start settles what was
    // left. True when there were so many changes.
    bool stops(int n) const {
        const TempFolder folder;
        FailingCalls calls;
        fill(folder);
        Snapshot before;
        bool stopped = false;
        try {
            World world(folder, calls, m_operation.name == "undo");
            before = snapshotOf(folder);
            calls.crashAt(n);
            carryOut(m_operation, world);
        } catch (const Crash&) {
            stopped = true;
        }
        calls.crashAt(1 + n % 7);
        try {
            World(folder, calls);
        } catch (const Crash&) {
        }
        calls.heal();
        const World next(folder, calls);
        expectNoScratch(folder);
        if (appends()) // half a line may stand there, which the next one ends
            EXPECT_TRUE(folder.read(logName).starts_with(before[logName]));
        else
            expectOldOrNew(folder, before, m_after, m_operation);
        return stopped;
    }

    // The operator is nobody, and so is the folder's owner; the files are `owner`'s. What he writes
    // is his, with the permissions that were there, and his copies are no more readable.
    void worksOnFilesOf(unsigned owner, fs::perms permissions) const {
        const TempFolder folder;
        fill(folder);
        const Snapshot before = snapshotOf(folder);
        folder.write("PRECIOUS", "not ours");
        folder.write(logName + ".BAK", "of another");
        fs::rename(folder.path() / logName, folder.path() / "REAL");
        fs::create_symlink("REAL", folder.path() / logName);
        fs::create_symlink("PRECIOUS", folder.path() / "SKSDB1.TXT.BAK");
        SystemCalls calls;
        for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
            if (!entry.is_directory())
                fs::permissions(entry, permissions);
            give(entry.path(), entry.is_directory() ? nobody : owner);
        }
        give(folder.path(), nobody);
        fs::permissions(folder.path() / (logName + ".BAK"), fs::perms(0444));
        const AsNobody operatorOnly;
        World world(folder, calls, m_operation.name == "undo");
        EXPECT_EQ(attempt(world, ErrorCode::permissionDenied), "");
        for (const auto& [name, bytes] : m_after) {
            EXPECT_EQ(folder.read(name), bytes) << name;
            const std::string original = name.substr(0, name.find('.', name.find('.') + 1));
            const fs::perms kept = fs::status(folder.path() / name).permissions();
            EXPECT_TRUE(kept == permissions || before.count(original) == 0) << name;
        }
        EXPECT_TRUE(fs::is_symlink(folder.path() / logName));
        EXPECT_EQ(folder.read("PRECIOUS"), "not ours"); // a link where a copy goes is replaced
    }

private:
    bool appends() const { return &m_operation < operations + 2; }
    // What it tells of a failure.
    std::string attempt(World& world, ErrorCode expected) const {
        try {
            carryOut(m_operation, world);
            return {};
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.code(), expected) << error.what();
            EXPECT_THAT(error.detail(), HasSubstr(world.files.programFolder()));
            return error.detail();
        }
    }

    const Operation& m_operation;
    ::testing::ScopedTrace m_trace{__FILE__, __LINE__, m_operation.name};
    Snapshot m_after; // when nothing disturbs it
};

// How often the operation fails when each call of one kind fails in turn.
int failEachCall(const Trial& trial, Call kind, int error, ErrorCode expected) {
    int failed = 0;
    int unharmed = 0; // times in a row: there is no such call any more
    for (int n = 1; unharmed < 3 && !::testing::Test::HasFailure(); ++n) {
        SCOPED_TRACE("call number " + std::to_string(n));
        const bool fails = trial.fails(kind, n, error, expected);
        failed += fails ? 1 : 0;
        unharmed = fails ? 0 : unharmed + 1;
    }
    return failed;
}

TEST(Operation, WithAnyCallFailing) {
    std::string syncs;
    for (const Operation& operation : operations) {
        const Trial trial(operation);
        EXPECT_GT(failEachCall(trial, Call::open, EACCES, ErrorCode::permissionDenied), 0);
        EXPECT_GT(failEachCall(trial, Call::write, ENOSPC, ErrorCode::diskFull), 0);
        syncs += ' ';
        syncs += std::to_string(failEachCall(trial, Call::sync, EIO, ErrorCode::pathFileAccess));
        failEachCall(trial, Call::read, EIO, ErrorCode::pathFileAccess);
        failEachCall(trial, Call::rename, EROFS, ErrorCode::pathFileAccess);
        failEachCall(trial, Call::remove, EPERM, ErrorCode::permissionDenied);
        failEachCall(trial, Call::link, ENOSPC, ErrorCode::diskFull);
        EXPECT_EQ(failEachCall(trial, Call::link, EPERM, ErrorCode::permissionDenied), 0); // copied
    }
    EXPECT_EQ(syncs, " 2 2 7 7 6 2 11 10 2 4") << "how often each waits for the disk";
}

TEST(Operation, WithFilesOfAnotherOwnerAndWithPrivateOnes) {
    if (!mayGiveFilesAway())
        GTEST_SKIP() << "nobody else can give files to others";
    for (const Operation& operation : operations) {
        const Trial trial(operation);
        trial.worksOnFilesOf(0, fs::perms(0644)); // as a start with sudo leaves them
        trial.worksOnFilesOf(nobody, fs::perms(0600));
    }
}

TEST(Operation, StoppedBeforeAnyChangeAndBeforeOneOfTheNextStart) {
    for (const Operation& operation : operations) {
        const Trial trial(operation);
        int n = 1;
        while (trial.stops(n) && !HasFailure())
            ++n;
        EXPECT_GT(n, 2);
    }
}

// A name that START takes is one with which everything works.
TEST(Operation, WithTheLongestNameThatALogMayHave) {
    const TempFolder folder;
    FailingCalls calls;
    fill(folder);
    const auto nameWithin = [](const fs::path& where) { // the whole path counts on Windows
        return std::string(longestName(where.string()) - 24, 'L') + ".CBR";
    };
    const std::string name = nameWithin(folder.path() / "BACKUP");
    fs::rename(folder.path() / logName, folder.path() / name);
    World world(folder, calls, true, name);
    requireRoomForNames(world.files, name);
    EXPECT_RUNTIME_ERROR(requireRoomForNames(world.files, 'L' + nameWithin(folder.path())),
                         ErrorCode::pathFileAccess, HasSubstr("too long by 1"));
    for (const Operation& operation : operations)
        carryOut(operation, world);
    exportStrictAdif(world.files, FakeClock(), "0", world.log);
}

} // namespace
} // namespace vantrel::test
