// SPDX-License-Identifier: MIT
#include "base/fixedtext.h"
#include "output/files/filefinder.h"
#include "platform/filenames.h"
#include "platform/files.h"
#include "platform/systemcalls.h"
#include "support/errors.h"
#include "support/tempfolder.h"

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

TEST(FileFinder, LeadsThroughFoldersByNamesThatTheProgramCanSay) {
    const TempFolder folder;
    const std::string top = folder.string();
    for (const char* name : {"op", "op/Logs", "op/locked", "op/b\xC3\xBCro", "op/\xD0\xB6"})
        fs::create_directories(folder.path() / name);
    for (const char* name : {"op/Logs/sks.CBR", "op/Logs/back\\slash.CBR", "op/Vantrel.CFG"})
        folder.write(name, "");
    SystemCalls calls;
    const Files files(top + "/op", calls);
    FoldersWithDrives machine;
    machine.mounted = {"/", top, top + "/op/Lo"};
    FileFinder finder(files, machine);
    const auto entered = [&](const std::string& name) {
        const std::vector<std::string> all = finder.folders();
        finder.enterFolder(
            static_cast<std::size_t>(std::find(all.begin(), all.end(), name) - all.begin()));
        return finder.selection();
    };
    const std::string home = upper(top) + "/OP/";
    EXPECT_EQ(finder.selection(), home);
    EXPECT_THAT(finder.folders(), ElementsAre("..", "b\xFCro", "locked", "Logs"));
    EXPECT_THAT(finder.files(), ElementsAre("Vantrel.CFG"));
    finder.chooseFile(0);
    EXPECT_RUNTIME_ERROR(entered("locked"), ErrorCode::permissionDenied, top + "/op/locked");
    EXPECT_EQ(finder.selection(), home + "Vantrel.CFG") << "the operator stays put";

    EXPECT_EQ(entered("b\xFCro"), home + "B\xDCRO/");
    EXPECT_EQ(files.nativePath(finder.selection()), top + "/op/b\xC3\xBCro");
    EXPECT_EQ(entered(".."), home);
    EXPECT_EQ(entered("Logs"), home + "LOGS/");
    EXPECT_THAT(finder.files(), ElementsAre("sks.CBR"));
    finder.chooseFile(0);
    EXPECT_EQ(files.nativePath(finder.selection()), top + "/op/Logs/sks.CBR");
    EXPECT_EQ(finder.currentDrive(), 1U) << "\"Lo\" is another folder";
    finder.openDrive(1);
    EXPECT_EQ(finder.selection(), upper(top) + "/");
    entered("..");
    EXPECT_EQ(finder.currentDrive(), 0U);
    finder.openDrive(0);
    EXPECT_EQ(finder.selection(), "/");
    EXPECT_NE(finder.folders().at(0), "..");
    entered("tmp");
    EXPECT_EQ(entered(".."), "/");

    // The true case stays where upper case names another folder, or either of two.
    for (const char* other : {"op/LOGS", "op/logs"}) {
        fs::create_directory(folder.path() / other);
        finder.openDrive(1);
        entered("op");
        EXPECT_EQ(entered("Logs"), top + "/op/Logs/");
        fs::remove(folder.path() / other);
    }
}

} // namespace
} // namespace vantrel::test
