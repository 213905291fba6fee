// SPDX-License-Identifier: MIT
#include "platform/folders.h"
#include "support/errors.h"
#include "support/tempfolder.h"

namespace vantrel::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(SystemFolders, ContentIsFoldersAndRegularFilesInOrderHiddenOnesOut) {
    TempFolder folder;
    for (const char* name : {"logs", "Old", ".git"})
        fs::create_directory(folder.path() / name);
    for (const char* name : {"b.CBR", "A.CBR", ".secret", "a.CBR"})
        folder.write(name, "");
    fs::create_symlink("logs", folder.path() / "link");
    fs::create_symlink("A.CBR", folder.path() / "linked.CBR");
    fs::create_symlink("nowhere", folder.path() / "broken");
    fs::create_symlink("/dev/null", folder.path() / "device");
    const FolderContent content = SystemFolders().content(folder.string());
    EXPECT_THAT(content.folders, ElementsAre("link", "logs", "Old"));
    EXPECT_THAT(content.files, ElementsAre("A.CBR", "a.CBR", "b.CBR", "linked.CBR"));
    EXPECT_RUNTIME_ERROR(SystemFolders().content(folder.string() + "/gone"),
                         ErrorCode::pathNotFound, HasSubstr("/gone"));
}

TEST(SystemFolders, DrivesAreTheTopAndTheVolumesMountedOnFolders) {
    TempFolder folder;
    for (const char* name : {"stick", "my disk", "nas", "image", "memory"})
        fs::create_directory(folder.path() / name);
    const std::string at = folder.string() + "/";
    const std::pair<const char*, std::string> mounts[] = {
        {"/dev/sda1", "/"},           {"/dev/sdb1", at + "stick"},       {"tmpfs", at + "memory"},
        {"/dev/sdb1", at + "stick"},  {"/dev/sdc1", at + "my\\040disk"}, {"host:/y", at + "nas"},
        {"/dev/loop3", at + "image"}, {"/dev/sdd1", at + "gone"}};
    std::string table;
    for (const auto& [device, place] : mounts)
        table += std::string(device) + ' ' + place + " ext4 rw 0 0\n";
    folder.write("mounts", table + "\nshort\n");
    EXPECT_THAT(SystemFolders(at + "mounts").drives(),
                ElementsAre("/", at + "my disk", at + "nas", at + "stick"));
    EXPECT_THAT(SystemFolders(at + "missing").drives(), ElementsAre("/"));
}

} // namespace
} // namespace vantrel::test
