// SPDX-License-Identifier: MIT
#include "base/fixedtext.h"
#include "output/files/filefinder.h"
#include "platform/filenames.h"
#include "platform/files.h"
#include "platform/systemcalls.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <algorithm>

namespace vantrel::test {
namespace {

using ::testing::ElementsAre;

namespace fs = std::filesystem;

// The machine's own folders, with a stick and a folder that nobody may read.
class FoldersWithDrives : public SystemFolders {
public:
    std::vector<std::string> drives() const override { return mounted; }
    FolderContent content(const std::string& folder) const override {
        if (folder.ends_with("/locked"))
            throw RuntimeError(ErrorCode::permissionDenied, folder);
        return SystemFolders::content(folder);
    }
    std::vector<std::string> mounted{"/"};
};

class FinderTest : public ::testing::Test {
protected:
    FinderTest() {
        for (const char* name : {"op", "op/Logs", "op/locked", "op/b\xC3\xBCro", "op/\xD0\xB6"})
            fs::create_directories(folder.path() / name);
        folder.write("op/Logs/sks.CBR", "");
        folder.write("op/Logs/back\\slash.CBR", "");
        folder.write("op/Vantrel.CFG", "");
    }
    void enter(FileFinder& finder, const std::string& name) const {
        const std::vector<std::string> all = finder.folders();
        const auto found = std::find(all.begin(), all.end(), name);
        ASSERT_NE(found, all.end()) << name;
        finder.enterFolder(static_cast<std::size_t>(found - all.begin()));
    }
    std::string home() const { return shownText(folder.string() + "/op"); }

    TempFolder folder;
    SystemCalls calls;
    Files files{folder.string() + "/op", calls};
    FoldersWithDrives machine;
};

TEST_F(FinderTest, HandsBackTheFolderAloneOrWithTheFileChosenInIt) {
    FileFinder finder(files, machine);
    EXPECT_EQ(finder.selection(), upper(home()) + "/");
    EXPECT_THAT(finder.files(), ElementsAre("Vantrel.CFG"));
    finder.chooseFile(0);
    EXPECT_EQ(finder.selection(), upper(home()) + "/Vantrel.CFG");
    enter(finder, "Logs");
    EXPECT_EQ(finder.selection(), upper(home()) + "/LOGS/");
    EXPECT_THAT(finder.files(), ElementsAre("sks.CBR")); // the other's name cannot be said
    finder.chooseFile(0);
    EXPECT_EQ(files.nativePath(finder.selection()), folder.string() + "/op/Logs/sks.CBR");
}

TEST_F(FinderTest, NamesInTheEightBitAlphabetAreShownInItAndOthersLeftOut) {
    FileFinder finder(files, machine);
    EXPECT_THAT(finder.folders(), ElementsAre("..", "b\xFCro", "locked", "Logs"));
    enter(finder, "b\xFCro");
    EXPECT_EQ(finder.selection(), upper(home()) + "/B\xDCRO/");
    EXPECT_EQ(files.nativePath(finder.selection()), folder.string() + "/op/b\xC3\xBCro");
}

TEST_F(FinderTest, TrueCaseStaysWhereUpperCaseWouldLeadElsewhere) {
    FileFinder finder(files, machine);
    for (const char* other : {"op/LOGS", "op/logs"}) { // another folder, or either of two
        fs::create_directory(folder.path() / other);
        enter(finder, "Logs");
        EXPECT_EQ(finder.selection(), home() + "/Logs/");
        enter(finder, "..");
        fs::remove(folder.path() / other);
    }
}

TEST_F(FinderTest, UnreadableFolderIsAnErrorAndTheOperatorStaysPut) {
    FileFinder finder(files, machine);
    finder.chooseFile(0);
    const std::string before = finder.selection();
    EXPECT_RUNTIME_ERROR(enter(finder, "locked"), ErrorCode::permissionDenied,
                         ::testing::HasSubstr("/locked"));
    EXPECT_EQ(finder.selection(), before);
    EXPECT_EQ(finder.files().size(), 1U);
}

TEST_F(FinderTest, UpwardsEndsAtTheTopAndADriveLeadsToItsTop) {
    machine.mounted = {"/", folder.string(), folder.string() + "/op/Lo"};
    FileFinder finder(files, machine);
    enter(finder, "Logs");
    EXPECT_EQ(finder.currentDrive(), 1U); // "Lo" is another folder
    finder.openDrive(1);
    EXPECT_EQ(finder.selection(), upper(shownText(folder.string())) + "/");
    enter(finder, "..");
    EXPECT_EQ(finder.currentDrive(), 0U);
    finder.openDrive(0);
    EXPECT_EQ(finder.selection(), "/");
    EXPECT_NE(finder.folders().at(0), "..");
    enter(finder, "tmp");
    enter(finder, "..");
    EXPECT_EQ(finder.selection(), "/");
}

} // namespace
} // namespace vantrel::test
