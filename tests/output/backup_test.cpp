// SPDX-License-Identifier: MIT
#include "fakes/failingcalls.h"
#include "output/backup.h"
#include "platform/files.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <cerrno>

namespace vantrel::test {
namespace {

using ::testing::HasSubstr;

const std::string logName = "SKS061611.CBR";

class Backup : public ::testing::Test {
protected:
    Backup() {
        std::filesystem::create_directory(folder.path() / "Stick");
        log = " Contest: SKS\r\nQSO: a, b\r\n\r\nlast line without an end";
        folder.write(logName, log);
    }
    TempFolder folder;
    FailingCalls calls;
    Files files{folder.string(), calls};
    std::string log;
};

TEST_F(Backup, CopiesEveryByteUnderTheLogsNameHoweverTheFolderIsWritten) {
    const std::vector<std::string> ways{"Stick", "  stick  ", "STICK\\", "stick//",
                                        folder.string() + "/STICK/"};
    for (const std::string& typed : ways) {
        std::filesystem::remove(folder.path() / "Stick" / logName);
        backUpLog(files, logName, typed);
        EXPECT_EQ(folder.read("Stick/" + logName), log) << typed;
    }
    EXPECT_EQ(folder.names().size(), 2U);

    for (int i = 0; i < 13000; ++i) // more than the program itself counts
        log += "QSO: 14050 CW\r\n";
    folder.write(logName, log);
    backUpLog(files, folder.string() + "\\" + logName, "Stick");
    EXPECT_EQ(folder.read("Stick/" + logName), log);
}

TEST_F(Backup, IntoTheLogsOwnFolderLeavesTheLogAsItWas) {
    backUpLog(files, logName, folder.string());
    EXPECT_EQ(folder.read(logName), log);
}

TEST_F(Backup, WithoutAFolderOrLogIsAnErrorAndWritesNothing) {
    for (const char* typed : {"", "   ", "gone", "/gone/folder"})
        EXPECT_RUNTIME_ERROR(backUpLog(files, logName, typed), ErrorCode::pathNotFound,
                             HasSubstr(typed[0] == ' ' ? "" : typed));
    EXPECT_RUNTIME_ERROR(backUpLog(files, "OTHER.CBR", "Stick"), ErrorCode::fileNotFound,
                         HasSubstr("OTHER.CBR"));
    EXPECT_FALSE(std::filesystem::exists("/" + logName));
    EXPECT_TRUE(std::filesystem::is_empty(folder.path() / "Stick"));
}

TEST_F(Backup, OnAFullStickKeepsTheEarlierCopy) {
    folder.write("Stick/" + logName, "earlier");
    calls.failAt(Call::write, 1, ENOSPC);
    EXPECT_RUNTIME_ERROR(backUpLog(files, logName, "Stick"), ErrorCode::diskFull,
                         HasSubstr("Stick"));
    EXPECT_EQ(folder.read("Stick/" + logName), "earlier");
    EXPECT_EQ(folder.read(logName), log);
}

} // namespace
} // namespace vantrel::test
