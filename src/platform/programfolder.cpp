// SPDX-License-Identifier: MIT
#include "platform/programfolder.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "platform/filenames.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <unistd.h>

namespace vantrel {

namespace fs = std::filesystem;

namespace {

constexpr const char* lockName = ".vantrel-lock";

bool holdsData(const std::string& folder) {
    std::error_code error;
    for (const fs::path& entry : entriesOf(folder, error)) {
        const std::string name = upper(entry.filename().string());
        if (name == upper(configurationFile) || name.ends_with(".CBR"))
            return true;
    }
    return false;
}

// An installation has the program in its "bin" and the desktop entry in the "share" beside;
// a folder that is taken along has not.
bool installedForAll(const fs::path& executableFolder) {
    const fs::path entries = executableFolder.parent_path() / "share/applications";
    std::error_code ignored;
    return executableFolder.filename() == "bin" &&
           fs::exists(entries / (std::string(desktopEntry) + ".desktop"), ignored);
}

bool keepsFilesBeside(const std::string& executableFolder) {
    // Whoever starts it once as the system's administrator could write among the system's
    // programs, and his files there would stop everybody else's start.
    if (installedForAll(executableFolder))
        return false;
    if (::access(executableFolder.c_str(), W_OK) == 0)
        return true;
    const std::string reason = std::strerror(errno);
    if (holdsData(executableFolder))
        throw RuntimeError(ErrorCode::permissionDenied, "the program's folder cannot be written: " +
                                                            shownText(executableFolder) + ": " +
                                                            reason);
    return false;
}

} // namespace

std::string chooseProgramFolder(const std::string& executableFolder,
                                const std::string& userFolder) {
    if (keepsFilesBeside(executableFolder))
        return executableFolder;
    std::error_code error;
    fs::create_directories(userFolder, error);
    if (error)
        throw RuntimeError(ErrorCode::pathFileAccess,
                           shownText(userFolder) + ": " + error.message());
    return userFolder;
}

FolderLock::FolderLock(const std::string& folder) {
    const std::string path = (fs::path(folder) / lockName).string();
    m_file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (m_file < 0)
        throw RuntimeError(ErrorCode::pathFileAccess,
                           shownText(path) + ": " + std::strerror(errno));
    m_held = ::flock(m_file, LOCK_EX | LOCK_NB) == 0;
}

FolderLock::~FolderLock() {
    ::close(m_file);
}

} // namespace vantrel
