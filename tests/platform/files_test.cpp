// SPDX-License-Identifier: MIT
// Durable appends and rewrites: the bytes on the disk when all goes well.
#include "fakes/failingcalls.h"
#include "platform/filenames.h"
#include "platform/files.h"
#include "platform/programfolder.h"
#include "support/machine.h"
#include "support/testing.h"

#include <chrono>
#include <thread>

namespace vantrel::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using namespace std::string_literals;

struct FilesTest : ::testing::Test {
    TempFolder folder;
    FailingCalls calls;
    Files files{folder.string(), calls};
};

// A link that leads nowhere is left alone: the log on a stick that is not plugged in is no new
// log.
TEST_F(FilesTest, OnlyRegularFilesInFoldersThatAreThereAreOpened) {
    const bool madeThem = makePipeAndLinks(folder.path());
    fs::create_directory(folder.path() / "FOLDER");
    folder.write("A.TXT", "");
    const std::vector<std::string> names = folder.names();
    const std::tuple<const char*, ErrorCode, bool> rows[] = {
        {"FOLDER", ErrorCode::pathFileAccess, true},
        {"PIPE", ErrorCode::pathFileAccess, true},
        {"LOOP/A.CBR", ErrorCode::pathFileAccess, true}, // nobody can say that it is not there
        {"DANGLING", ErrorCode::fileNotFound, true},
        {"GONE/A.CBR", ErrorCode::pathNotFound, false},
        {"A.TXT/A.CBR", ErrorCode::pathNotFound, false}};
    for (const auto& [given, code, present] : rows) {
        const std::string name = fs::path(given).make_preferred().string();
        SCOPED_TRACE(name);
        if (present && !madeThem && !folder.has(name))
            continue;
        EXPECT_EQ(files.present(name), present);
        EXPECT_RUNTIME_ERROR(files.read(name), code, HasSubstr(name));
        EXPECT_RUNTIME_ERROR(files.appendLine(name, "x"), code, HasSubstr(name));
        EXPECT_RUNTIME_ERROR(files.rewrite(name, "x"), code, HasSubstr(name));
        EXPECT_RUNTIME_ERROR(files.rewriteAll({{"NEW", "x"}, {name, "x"}}), code, HasSubstr(name));
    }
    EXPECT_EQ(folder.names(), names);
}

// Takes a byte at a time, and is interrupted before each.
struct HaltingCalls : SystemCalls {
    bool interrupted = false;
    long write(int file, const char* bytes, std::size_t count) override {
        errno = EINTR;
        return (interrupted = !interrupted) ? -1 : SystemCalls::write(file, bytes, count > 0);
    }
    long read(int file, char* bytes, std::size_t count) override {
        errno = EINTR;
        return (interrupted = !interrupted) ? -1 : SystemCalls::read(file, bytes, count > 0);
    }
};

TEST_F(FilesTest, AppendEndsAnOpenLastLineFirstAndReadGivesEveryByteOfASlowDiskToo) {
    const std::pair<std::string, std::string> rows[] = {
        {"A\r\n", "A\r\nNEW\r\n"}, {"A\n", "A\nNEW\r\n"}, {"A\0"s, "A\0\r\nNEW\r\n"s},
        {"A\r", "A\r\nNEW\r\n"},   {"", "NEW\r\n"},       {"A\r\n\r", "A\r\n\r\nNEW\r\n"}};
    HaltingCalls halting;
    Files slow(folder.string(), halting);
    for (const auto& [before, after] : rows) {
        slow.rewrite("LOG.CBR", before);
        slow.appendLine("LOG.CBR", "NEW");
        EXPECT_EQ(slow.read("LOG.CBR"), after);
    }
    EXPECT_EQ(files.readOrEmpty("GONE.CBR"), "");
    calls.failAt(Call::read, 1, EIO);
    EXPECT_RUNTIME_ERROR(files.readOrEmpty("LOG.CBR"), ErrorCode::pathFileAccess, HasSubstr("LOG"));
}

// The window lives on while the disk is waited for, and a contact can be logged.
TEST_F(FilesTest, SecondReplacingOfSeveralFilesMeanwhileIsRefused) {
    struct SlowDisk : SystemCalls {
        int sync(int) override {
            std::this_thread::sleep_for(200ms);
            return 0;
        }
    } slowDisk;
    Files slow(folder.string(), slowDisk);
    int turns = 0;
    slow.rewriteAll({{"A", "one"}, {"B", "two"}}, [&] {
        if (++turns == 1)
            slow.appendLine("LOG.CBR", "a contact");
        EXPECT_RUNTIME_ERROR(slow.rewriteAll({{"LOG.CBR", "x"}}), ErrorCode::pathFileAccess,
                             HasSubstr("LOG.CBR"));
    });
    EXPECT_GT(turns, 3); // one after each file and each folder would be three
    EXPECT_EQ(folder.read("A") + folder.read("B") + folder.read("LOG.CBR"), "onetwoa contact\r\n");
}

TEST_F(FilesTest, WhatCouldNotBePutBackIsSettledByTheNextReplacing) {
    files.rewriteAll({{"A", "1"}, {"B", "1"}});
    calls.failAt(Call::rename, 2, EIO, true); // of the first file, and whatever comes after it
    EXPECT_RUNTIME_ERROR(files.rewriteAll({{"A", "2"}, {"B", "2"}}), ErrorCode::pathFileAccess,
                         HasSubstr("A"));
    calls.heal();
    files.rewriteAll({{"B", "3"}});
    EXPECT_EQ(folder.read("A") + folder.read("B"), "23");
    EXPECT_THAT(folder.names(), ElementsAre("A", "B"));
}

// A guard that compared names would let the log be written over.
TEST_F(FilesTest, OneFileUnderSeveralNamesIsOneAndSoIsOneThatIsNotThereYet) {
    fs::create_directory(folder.path() / "Logs");
    folder.write("Logs/a.cbr", "");
    folder.write("b.cbr", "");
    fs::create_hard_link(folder.path() / "Logs/a.cbr", folder.path() / "hard.adi");
    for (const std::string& name : {"LOGS\\A.CBR"s, "./x/../LOGS/A.CBR"s, "HARD.ADI"s,
                                    folder.string() + "/Logs/../logs//a.cbr"})
        EXPECT_TRUE(files.areSame(name, "Logs/a.cbr")) << name;
    EXPECT_TRUE(files.areSame("Logs/New.cbr", "./LOGS/NEW.CBR"));
    EXPECT_FALSE(files.areSame("b.cbr", "Logs/a.cbr"));
    EXPECT_FALSE(files.areSame("Logs/New.cbr", "Logs/a.cbr"));
    EXPECT_FALSE(files.areSame("New.cbr", "Logs/New.cbr"));
}

TEST(NativeText, CharactersOutsideLatin1AreAQuestionMarkEach) {
    // The euro sign, four bytes, a bare Latin-1 byte, L with stroke, an overlong slash, a cut one.
    const char* native = "a\xE2\x82\xAC z\xF0\x9F\x93\xBB\xC3\xA9 \xE9t\xC5\x81\xC0\xAF \xC3";
    EXPECT_EQ(latin1Text(native), std::nullopt);
    EXPECT_EQ(shownText(native), "a? z?\xE9 ?t?? ?");
}

TEST_F(FilesTest, FolderIsLockedForOneProgramWhereFilesCanBeLocked) {
    for (const int without : {ENOLCK, ENOSYS, EOPNOTSUPP}) {
        calls.failAt(Call::lock, 1, without);
        EXPECT_TRUE(FolderLock(calls, folder.string()).held());
    }
    calls.failAt(Call::lock, 1, EIO);
    EXPECT_RUNTIME_ERROR(FolderLock(calls, folder.string()), ErrorCode::pathFileAccess,
                         HasSubstr(".vantrel-lock"));
    calls.failAt(Call::open, 1, EACCES); // another user's lock file
    const FolderLock lock(calls, folder.string());
    EXPECT_TRUE(lock.held());
    EXPECT_FALSE(FolderLock(calls, folder.string()).held());
}

} // namespace
} // namespace vantrel::test
