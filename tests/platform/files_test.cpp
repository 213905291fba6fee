// SPDX-License-Identifier: MIT
// Durable appends and rewrites: the bytes on the disk when all goes well.
#include "fakes/failingcalls.h"
#include "platform/files.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <sys/stat.h>
#include <unistd.h>

namespace vantrel::test {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

struct FilesTest : ::testing::Test {
    TempFolder folder;
    FailingCalls calls;
    Files files{folder.string(), calls};
};

// A link that leads nowhere is left alone: the log on a stick that is not plugged in is no new
// log.
TEST_F(FilesTest, OnlyRegularFilesInFoldersThatAreThereAreOpened) {
    fs::create_directory(folder.path() / "FOLDER");
    ASSERT_EQ(::mkfifo((folder.path() / "PIPE").c_str(), 0600), 0);
    fs::create_symlink("LOOP", folder.path() / "LOOP");
    fs::create_symlink("gone", folder.path() / "DANGLING");
    folder.write("A.TXT", "");
    const std::vector<std::string> names = folder.names();
    const std::tuple<const char*, ErrorCode, bool> rows[] = {
        {"FOLDER", ErrorCode::pathFileAccess, true},
        {"PIPE", ErrorCode::pathFileAccess, true},
        {"LOOP/A.CBR", ErrorCode::pathFileAccess, true}, // nobody can say that it is not there
        {"DANGLING", ErrorCode::fileNotFound, true},
        {"GONE/A.CBR", ErrorCode::pathNotFound, false},
        {"A.TXT/A.CBR", ErrorCode::pathNotFound, false}};
    for (const auto& [name, code, present] : rows) {
        SCOPED_TRACE(name);
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
        int sync(int) override { return ::usleep(100'000); }
    } slowDisk;
    Files slow(folder.string(), slowDisk);
    int turns = 0;
    slow.rewriteAll({{"A", "one"}, {"B", "two"}}, [&] {
        if (++turns == 1)
            slow.appendLine("LOG.CBR", "a contact");
        EXPECT_RUNTIME_ERROR(slow.rewriteAll({{"LOG.CBR", "x"}}), ErrorCode::pathFileAccess,
                             HasSubstr("LOG.CBR"));
    });
    EXPECT_GT(turns, 8); // one after each file and each folder would be three
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

} // namespace
} // namespace vantrel::test
