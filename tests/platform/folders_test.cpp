// SPDX-License-Identifier: MIT
#include "platform/folders.h"
#include "support/errors.h"
#include "support/tempfolder.h"

namespace vantrel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace fs = std::filesystem;

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
}

TEST(SystemFolders, FolderThatCannotBeListedIsAnErrorWithItsName) {
    TempFolder folder;
    folder.write("file", "");
    EXPECT_RUNTIME_ERROR(SystemFolders().content(folder.string() + "/gone"),
                         ErrorCode::pathNotFound, HasSubstr("/gone"));
    EXPECT_RUNTIME_ERROR(SystemFolders().content(folder.string() + "/file"),
                         ErrorCode::pathFileAccess, HasSubstr("/file"));
}

TEST(SystemFolders, DrivesAreTheTopAndTheVolumesMountedOnFolders) {
    TempFolder folder;
    for (const char* name : {"stick", "my disk", "share", "nas", "image", "memory"})
        fs::create_directory(folder.path() / name);
    folder.write("file", "");
    const std::string at = folder.string() + "/";
    folder.write("mounts", "/dev/sda1 / ext4 rw 0 0\nproc /proc proc rw 0 0\n/dev/sdb1 " + at +
                               "stick vfat rw 0 0\n/dev/sdb1 " + at + "stick vfat rw 0 0\n" +
                               "/dev/sdc1 " + at + "my\\040disk ntfs rw 0 0\n" + "//host/x " + at +
                               "share cifs rw 0 0\nhost:/y " + at + "nas nfs rw 0 0\n" +
                               "/dev/loop3 " + at + "image squashfs ro 0 0\ntmpfs " + at +
                               "memory tmpfs rw 0 0\n/dev/sda1 " + at + "file ext4 rw 0 0\n" +
                               "/dev/sdd1 " + at + "gone ext4 rw 0 0\n\nshort\n");
    EXPECT_THAT(SystemFolders(at + "mounts").drives(),
                ElementsAre("/", at + "my disk", at + "nas", at + "share", at + "stick"));
    EXPECT_THAT(SystemFolders(at + "missing").drives(), ElementsAre("/"));
    EXPECT_EQ(SystemFolders().drives().at(0), "/");
}

} // namespace
} // namespace vantrel::test
