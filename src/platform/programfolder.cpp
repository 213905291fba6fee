// SPDX-License-Identifier: MIT
#include "platform/programfolder.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "platform/filenames.h"
#include "platform/machine.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace vantrel {

namespace fs = std::filesystem;

namespace {

constexpr const char* lockName = ".vantrel-lock";

bool holdsData(const std::string& folder) {
    std::error_code error;
    for (const fs::path& entry : entriesOf(pathOf(folder), error)) {
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
    if (installedForAll(pathOf(executableFolder)))
        return false;
    if (mayWrite(executableFolder))
        return true;
    const std::string reason = errorText(errno);
    if (holdsData(executableFolder))
        throw RuntimeError(ErrorCode::permissionDenied, "the program's folder cannot be written: " +
                                                            shownText(executableFolder) + ": " +
                                                            reason + chownHint(executableFolder));
    return false;
}

// Where bytes are no UTF-8, what comes in their place leads to another folder or to none.
void requireKnownName(const std::string& folder) {
    constexpr std::string_view replacement = "\xEF\xBF\xBD";
    if (folder.find(replacement) != std::string::npos)
        throw RuntimeError(ErrorCode::pathFileAccess,
                           "the folder's name is not UTF-8: rename " + shownText(folder));
}

// The lock file. Not open where another program holds it by the mere opening, as on Windows.
DiskFile openedLock(SystemCalls& calls, const std::string& path) {
    int file = calls.open(path, OpenFor::locking, DiskFile::newMode);
    if (file < 0 && errno != EWOULDBLOCK && exists(path))
        file = calls.open(path, OpenFor::reading, 0); // another user's
    if (file < 0 && errno != EWOULDBLOCK)
        throwSystemError(errno, path);
    return {calls, file, path};
}

} // namespace

std::string chooseProgramFolder(const std::string& executableFolder,
                                const std::string& userFolder) {
    if (keepsFilesBeside(executableFolder))
        return executableFolder;
    requireKnownName(userFolder);
    std::error_code error;
    fs::create_directories(pathOf(userFolder), error);
    if (error)
        throw RuntimeError(ErrorCode::pathFileAccess,
                           shownText(userFolder) + ": " + errorText(errnoOf(error)));
    if (!mayWrite(userFolder))
        throw RuntimeError(ErrorCode::permissionDenied,
                           shownText(userFolder) + " cannot be written" + chownHint(userFolder));
    return pathOf(userFolder).make_preferred().string();
}

FolderLock::FolderLock(SystemCalls& calls, const std::string& folder)
    : m_file(openedLock(calls, (pathOf(folder) / lockName).string())),
      m_held(m_file >= 0 && m_file.lock()) {}

} // namespace vantrel
