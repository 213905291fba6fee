// SPDX-License-Identifier: MIT
#include "fakes/failingcalls.h"
#include "platform/files.h"
#include "screens/start/startlog.h"
#include "support/errors.h"
#include "support/tempfolder.h"

namespace vantrel::test {
namespace {

using ::testing::HasSubstr;

TEST(LogName, OwnFilesOfTheProgramAreNoLogs) {
    TempFolder folder;
    FailingCalls calls;
    const Files files(folder.string(), calls);
    folder.write("Vantrel.CFG", "W1ABC\r\n");
    folder.write("vantrel", "the program");
    // Those that are not there yet, too: a contest must not begin in them.
    for (const char* name :
         {"VANTREL.CFG", "stnsworked.txt", "SKSDB1.TXT", "\\sksdb5.txt", "VANTREL"}) {
        EXPECT_RUNTIME_ERROR(refuseOwnFile(files, name), ErrorCode::pathFileAccess,
                             HasSubstr("own files"));
        EXPECT_RUNTIME_ERROR(probeLog(files, name), ErrorCode::pathFileAccess, HasSubstr("own"));
    }
    EXPECT_NO_THROW(refuseOwnFile(files, "VANTREL.CBR"));
    EXPECT_NO_THROW(refuseOwnFile(files, "LOGS\\SKSDB1.TXT"));
}

} // namespace
} // namespace vantrel::test
