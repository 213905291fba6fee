// SPDX-License-Identifier: MIT
// Where the program's files go: carried along, installed for all users, made read-only; and
// one program a folder.
#include "platform/programfolder.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <sys/syscall.h>
#include <unistd.h>

namespace vantrel::test {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

constexpr unsigned nobody = 65534;

// Nothing is read-only to the system's administrator: while this lives the test is nobody in
// particular, when it was started as root.
class OrdinaryUser {
public:
    OrdinaryUser() {
        if (m_wasRoot) {
            EXPECT_EQ(::syscall(SYS_setresuid, nobody, nobody, 0), 0);
        }
    }
    ~OrdinaryUser() {
        if (m_wasRoot)
            ::syscall(SYS_setresuid, 0, 0, 0);
    }

private:
    bool m_wasRoot = ::geteuid() == 0;
};

struct ProgramFolder : ::testing::Test {
    ProgramFolder() {
        fs::create_directories(programs);
        fs::permissions(folder.path(), fs::perms::all); // nobody makes his own folder in it
    }
    ~ProgramFolder() override { fs::permissions(programs, fs::perms::owner_all); }

    std::string chosenWhenReadOnly() const {
        fs::permissions(programs, fs::perms(0555));
        const OrdinaryUser user;
        return chooseProgramFolder(programs, own);
    }
    void installDesktopEntry() const {
        fs::create_directories(folder.path() / "share/applications");
        folder.write("share/applications/org.vantrel.Vantrel.desktop", "[Desktop Entry]\n");
    }

    TempFolder folder;
    fs::path programs = folder.path() / "bin";
    fs::path own = folder.path() / "home/share/Vantrel";
};

TEST_F(ProgramFolder, AFolderThatIsTakenAlong_KeepsTheFiles) {
    EXPECT_EQ(chooseProgramFolder(programs, own), programs);
    installDesktopEntry(); // says nothing of a folder that is no "bin"
    const fs::path carried = folder.path() / "Vantrel";
    fs::create_directory(carried);
    EXPECT_EQ(chooseProgramFolder(carried, own), carried);
    EXPECT_FALSE(fs::exists(own));
}

TEST_F(ProgramFolder, ReadOnlyWithData_IsAnErrorAndNoEmptyWorldElsewhere) {
    EXPECT_EQ(chosenWhenReadOnly(), own) << "without data";
    EXPECT_TRUE(fs::is_directory(own));
    fs::remove(own);
    for (const char* data : {"bin/vantrel.cfg", "bin/mylog.cbr"}) {
        fs::permissions(programs, fs::perms::owner_all);
        folder.write(data, "");
        EXPECT_RUNTIME_ERROR(chosenWhenReadOnly(), ErrorCode::permissionDenied,
                             HasSubstr(programs.string()));
        EXPECT_FALSE(fs::exists(own)) << data;
        fs::permissions(programs, fs::perms::owner_all);
        fs::remove(folder.path() / data);
    }
}

// The administrator may write among the system's programs. Files of his there would stop
// everybody else's start, and ones that lie there already must not.
TEST_F(ProgramFolder, InstalledForAll_GivesEachUserHisOwnWhateverHeMayWrite) {
    installDesktopEntry();
    folder.write("home", "a file in the way");
    EXPECT_RUNTIME_ERROR(chooseProgramFolder(programs, own), ErrorCode::pathFileAccess,
                         HasSubstr(own.string()));
    fs::remove(folder.path() / "home");
    EXPECT_EQ(chooseProgramFolder(programs, own), own);
    folder.write("bin/Vantrel.CFG", "");
    EXPECT_EQ(chosenWhenReadOnly(), own);
}

TEST_F(ProgramFolder, OneProgramAFolder_UntilItEnds) {
    {
        const FolderLock first(folder.string());
        EXPECT_TRUE(first.held());
        EXPECT_FALSE(FolderLock(folder.string()).held());
        EXPECT_TRUE(FolderLock(programs.string()).held());
    }
    EXPECT_TRUE(FolderLock(folder.string()).held());
}

} // namespace
} // namespace vantrel::test
