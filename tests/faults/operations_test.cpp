// SPDX-License-Identifier: MIT
// The operator's whole operations while the disk fails: each system call in turn, a disk that
// is really full, one that is read-only. Nothing that was there is lost, what failed says so,
// and the next try succeeds.
#include "fakes/failingcalls.h"
#include "fakes/fakeclock.h"
#include "log/logfile.h"
#include "logedit/correction.h"
#include "logedit/logedit.h"
#include "output/adif/adif.h"
#include "output/adif/strictadif.h"
#include "output/files/backup.h"
#include "platform/files.h"
#include "roster/rosterimport.h"
#include "roster/rosterrecord.h"
#include "roster/rostersort.h"
#include "screens/main/qsoentry.h"
#include "shared/module1.h"
#include "support/contacts.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <map>
#include <ostream>
#include <sys/mount.h>
#include <unistd.h>

namespace vantrel::test {
namespace {

namespace fs = std::filesystem;
using ::testing::AnyOf;

const std::string logName = "SKS061611.CBR";
const std::string copyName = "BACKUP/" + logName;

// Every file of the folder and of the backup folder in it; nothing for what is hidden.
using Snapshot = std::map<std::string, std::string>;

Snapshot snapshotOf(const TempFolder& folder) {
    Snapshot result;
    for (const std::string& name : folder.names())
        if (!name.starts_with('.') && fs::is_regular_file(folder.path() / name))
            result[name] = folder.read(name);
    if (folder.has(copyName))
        result[copyName] = folder.read(copyName);
    return result;
}

// The log ends so near the end of a page that one contact more needs another page.
constexpr int contacts = 74;

void fill(const TempFolder& folder) {
    std::string log = logHeaderLines;
    for (int i = 0; i < contacts; ++i)
        log += contactLine({.hisCall = "K" + std::to_string(100 + i) + "ABC"}) + "\r\n";
    folder.write(logName, log);
    folder.write("StnsWorked.TXT", "");
    folder.write("Vantrel.CFG", std::string(13, '\n') + "NO\r\n");
    std::string list = "skccnr|call\r\n";
    for (int i = 0; i < 50; ++i)
        list += std::to_string(3000 - i) + "T|" + "AKNWD"[i % 5] + std::to_string(i) +
                "XY|TOM|TOWN|MA|||||||\r\n";
    folder.write(std::string(dataListFile), list);
    for (const std::string_view name : rosterFiles)
        folder.write(std::string(name), "Z9ZZ      9T        OLD       MA \r\n"
                                        "Y9YY      8T        OLD       MA \r\n");
    fs::create_directory(folder.path() / "BACKUP");
    folder.write(copyName, "an earlier copy\r\n");
}

// The program as it stands when the operation begins: started, with the log open.
struct World {
    explicit World(Files& itsFiles) : files(itsFiles) {
        files.recover();
        module.settings.logFileName = logName;
        module.settings.myCall = "W1ABC";
        module.log.open(logName);
    }

    Files& files;
    Module1 module{files};
    FakeClock clock;
    LogEdit log{files, module.log};
    bool sequelFailed = false; // done, but what follows from it failed
};

struct Operation {
    const char* name;
    void (*run)(World&);
};

void PrintTo(const Operation& operation, std::ostream* out) {
    *out << operation.name;
}

// What was done is done, whether or not the worked stations can follow.
void follow(World& world) {
    try {
        world.module.log.reread();
    } catch (const RuntimeError&) {
        world.sequelFailed = true;
    }
}

void logContact(World& world) {
    world.module.log.append(contactLine({.hisCall = "N1NEW"}));
    follow(world);
}

void changeLine(World& world, void (*change)(LogEdit&)) {
    if (world.log.search("K120ABC") == SearchResult::found)
        change(world.log);
    follow(world);
}

void correct(LogEdit& log) {
    const CorrectionBoxes shown = correctionBoxes("", log.line());
    CorrectionBoxes typed = shown;
    typed[1] = "CORRECTED";
    log.replaceLine(corrected(log.line(), shown, typed).line);
}

void import(World& world) {
    const ImportResult result = importMembers(world.files, MemberList::data, dataListFile,
                                              [](const ImportStep&) { return true; });
    EXPECT_TRUE(result.finished);
}

const Operation operations[] = {
    {"LogContact", logContact},
    {"Correct", [](World& world) { changeLine(world, correct); }},
    {"Delete", [](World& world) { changeLine(world, [](LogEdit& log) { log.removeLine(); }); }},
    {"StartNewLog", [](World& world) { startNewLog(world.files, logName, logHeaderLines); }},
    {"SaveSettings", [](World& world) { saveSettings(world.files, world.module.settings); }},
    {"Import", import},
    {"Sort", [](World& world) { sortRosterFiles(world.files); }},
    {"Adif", [](World& world) { exportAdif(world.files, world.module.log); }},
    {"StrictAdif",
     [](World& world) { exportStrictAdif(world.files, world.clock, "0", world.module.log); }},
    {"BackUp", [](World& world) { backUpLog(world.files, logName, "BACKUP"); }},
};

// The folder after an operation that nothing disturbed.
Snapshot afterwards(const Operation& operation) {
    TempFolder folder;
    fill(folder);
    FailingCalls calls;
    Files files(folder.string(), calls);
    World world(files);
    operation.run(world);
    return snapshotOf(folder);
}

// What belongs together: the log and its copy of before, the five roster files unless they are
// sorted, each other file.
std::string groupOf(const std::string& name, const Operation& operation) {
    if (name.starts_with("SKSDB") && operation.name != std::string_view("Sort"))
        return "the roster";
    return name == logName + ".BAK" ? logName : name;
}

using Groups = std::map<std::string, Snapshot>;

Groups groupsOf(const Snapshot& snapshot, const Operation& operation) {
    Groups groups;
    for (const auto& [name, bytes] : snapshot)
        groups[groupOf(name, operation)][name] = bytes;
    return groups;
}

class Disturbed : public ::testing::TestWithParam<Operation> {
protected:
    // The operation, while something is wrong; true when it, or what follows from it, failed.
    static bool fails(World& world, std::optional<ErrorCode> expected = {}) {
        try {
            GetParam().run(world);
            return world.sequelFailed;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.code(), expected.value_or(error.code())) << error.what();
            EXPECT_THAT(error.detail(), ::testing::HasSubstr(world.files.programFolder()));
            return true;
        }
    }

    // Each group of files is as it was or as it should become; all of them when nothing failed.
    void expectOldOrNew(const TempFolder& folder, const Snapshot& before, bool failed) const {
        Groups old = groupsOf(before, GetParam());
        Groups wanted = groupsOf(m_after, GetParam());
        Groups found = groupsOf(snapshotOf(folder), GetParam());
        for (auto& [name, files] : found) {
            if (failed)
                EXPECT_THAT(files, AnyOf(old[name], wanted[name])) << name;
            else
                EXPECT_EQ(files, wanted[name]) << name;
        }
        for (const auto& [name, files] : old)
            EXPECT_TRUE(found.count(name) == 1) << name << " is gone";
    }

    void expectNextTrySucceeds(const TempFolder& folder, Files& files) const {
        World world(files);
        EXPECT_FALSE(fails(world));
        for (const std::string& name : folder.names())
            EXPECT_EQ(name.find(".vantrel-"), std::string::npos) << name;
    }

    const Snapshot m_after = afterwards(GetParam());
};

TEST_P(Disturbed, ByAnyCallFailing) {
    const struct {
        Call kind;
        int error;
    } failures[] = {{Call::open, EMFILE}, {Call::read, EIO},     {Call::write, ENOSPC},
                    {Call::sync, EIO},    {Call::rename, EROFS}, {Call::remove, EPERM}};
    for (const auto& failure : failures) {
        int failed = 0;
        int unharmed = 0; // times in a row: there is no such call any more
        for (int n = 1; unharmed < 3; ++n) {
            SCOPED_TRACE("call of kind " + std::to_string(static_cast<int>(failure.kind)) +
                         ", number " + std::to_string(n));
            TempFolder folder;
            fill(folder);
            FailingCalls calls;
            Files files(folder.string(), calls);
            World world(files);
            const Snapshot before = snapshotOf(folder);
            calls.failAt(failure.kind, n, failure.error, n % 2 == 0);
            const bool thisFailed = fails(world);
            calls.heal();
            failed += thisFailed ? 1 : 0;
            unharmed = thisFailed ? 0 : unharmed + 1;
            // What could not even be put back or removed is left to the next start.
            if (failure.kind == Call::rename || failure.kind == Call::remove)
                files.recover();
            expectOldOrNew(folder, before, thisFailed);
            if (!HasFailure())
                expectNextTrySucceeds(folder, files);
            ASSERT_FALSE(HasFailure());
        }
        const bool mustFail =
            failure.kind == Call::open || failure.kind == Call::write || failure.kind == Call::sync;
        EXPECT_TRUE(failed > 0 || !mustFail) << "nothing was opened, written or synced";
    }
}

// A small disk of its own; skipped where the machine does not let us have one.
class SmallDisk : public Disturbed {
protected:
    void SetUp() override {
        if (::mount("tmpfs", m_folder.string().c_str(), "tmpfs", 0, "size=512k") != 0)
            GTEST_SKIP() << "a small disk cannot be mounted here (" << std::strerror(errno)
                         << "): run as root to try a full one";
        m_mounted = true;
        fill(m_folder);
    }
    void TearDown() override {
        if (m_mounted)
            ::umount2(m_folder.string().c_str(), MNT_DETACH);
    }

    // Leaves so many pages of 4,096 bytes.
    void fillDisk(int pages) const {
        const fs::path filler = m_folder.path() / ".filler";
        const int file = ::open(filler.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        const std::string page(4096, 'x');
        while (::write(file, page.data(), page.size()) > 0) {
        }
        ::close(file);
        const auto size = fs::file_size(filler);
        fs::resize_file(filler, size - static_cast<std::uintmax_t>(pages) * page.size());
    }
    void restore() const {
        fs::remove(m_folder.path() / ".filler");
        for (const std::string& name : m_folder.names())
            fs::remove_all(m_folder.path() / name);
        fill(m_folder);
    }

    TempFolder m_folder;
    SystemCalls m_calls;
    Files m_files{m_folder.string(), m_calls};

private:
    bool m_mounted = false;
};

TEST_P(SmallDisk, FullAtAnyMoment) {
    bool failed = true;
    int failures = 0;
    for (int pages = 0; failed && pages < 60; ++pages) {
        SCOPED_TRACE(std::to_string(pages) + " pages free");
        World world(m_files);
        const Snapshot before = snapshotOf(m_folder);
        fillDisk(pages);
        failed = fails(world, ErrorCode::diskFull);
        failures += failed ? 1 : 0;
        expectOldOrNew(m_folder, before, failed);
        fs::remove(m_folder.path() / ".filler");
        if (!HasFailure())
            expectNextTrySucceeds(m_folder, m_files);
        ASSERT_FALSE(HasFailure());
        restore();
    }
    EXPECT_FALSE(failed) << "with room enough it succeeds";
    EXPECT_GT(failures, 0) << "the disk was never full";
}

TEST_P(SmallDisk, ReadOnly) {
    World world(m_files);
    const Snapshot before = snapshotOf(m_folder);
    ASSERT_EQ(::mount("tmpfs", m_folder.string().c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, ""), 0);
    EXPECT_TRUE(fails(world, ErrorCode::pathFileAccess));
    EXPECT_EQ(snapshotOf(m_folder), before);
    ASSERT_EQ(::mount("tmpfs", m_folder.string().c_str(), "tmpfs", MS_REMOUNT, ""), 0);
    expectNextTrySucceeds(m_folder, m_files);
}

std::string nameOf(const ::testing::TestParamInfo<Operation>& row) {
    return row.param.name;
}

INSTANTIATE_TEST_SUITE_P(Operations, Disturbed, ::testing::ValuesIn(operations), nameOf);
INSTANTIATE_TEST_SUITE_P(Operations, SmallDisk, ::testing::ValuesIn(operations), nameOf);

} // namespace
} // namespace vantrel::test
