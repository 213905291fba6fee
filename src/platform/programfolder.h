// SPDX-License-Identifier: MIT
// The one folder that holds the program's files, and the lock that keeps a second program
// out of it.
#pragma once

#include "platform/diskfile.h"

#include <string>
#include <string_view>

namespace vantrel {

// The settings; where this file lies is a program folder.
inline constexpr std::string_view configurationFile = "Vantrel.CFG";

// The name by which a desktop knows the program.
inline constexpr const char* desktopEntry = "org.vantrel.Vantrel";

// The executable's folder when the user can write there; when he cannot and it holds no
// configuration and no log, or when the program is installed for all users, `userFolder`
// (created when missing). Both are real paths. Throws RuntimeError 70 when a folder with data
// cannot be written: that is no reason to start an empty world elsewhere; 75 when `userFolder`
// cannot be created, or its name came through text that could not hold it.
std::string chooseProgramFolder(const std::string& executableFolder, const std::string& userFolder);

// Holds the folder's lock while it lives; the system drops it when the program is killed.
// A file system without locks holds nobody up.
class FolderLock {
public:
    // Throws RuntimeError 70 or 75 when the lock file cannot be opened or locked, for whatever
    // other reason than that another program holds it.
    FolderLock(SystemCalls& calls, const std::string& folder);

    // False when another program holds it.
    bool held() const { return m_held; }

private:
    DiskFile m_file;
    bool m_held;
};

} // namespace vantrel
