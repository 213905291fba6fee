// SPDX-License-Identifier: MIT
// The one folder that holds the program's files, and the lock that keeps a second program
// out of it.
#pragma once

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
// cannot be created.
std::string chooseProgramFolder(const std::string& executableFolder, const std::string& userFolder);

// Holds the folder's lock while it lives; the system drops it when the program is killed.
class FolderLock {
public:
    // Throws RuntimeError 75 when the lock file cannot be opened.
    explicit FolderLock(const std::string& folder);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    // False when another program holds it.
    bool held() const { return m_held; }

private:
    int m_file;
    bool m_held;
};

} // namespace vantrel
