// SPDX-License-Identifier: MIT
#include "screens/start/startlog.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "log/log.h"
#include "platform/files.h"
#include "roster/rosterrecord.h"
#include "shared/settings.h"

#include <vector>

namespace vantrel {

namespace {
constexpr std::string_view programFile = "vantrel";
} // namespace

void refuseOwnFile(const Files& files, std::string_view logFileName) {
    const std::string path = files.path(logFileName);
    std::vector<std::string_view> ownFiles{configurationFile, workedStationsFile, programFile};
    ownFiles.insert(ownFiles.end(), rosterFiles.begin(), rosterFiles.end());
    for (const std::string_view name : ownFiles)
        if (upper(files.path(name)) == upper(path))
            throw RuntimeError(ErrorCode::pathFileAccess,
                               path + " is one of the program's own files and cannot be the log");
}

LogProbe probeLog(const Files& files, std::string_view logFileName) {
    if (trim(logFileName).empty())
        return LogProbe::fileNotFound;
    refuseOwnFile(files, logFileName);
    try {
        files.read(logFileName);
    } catch (const RuntimeError& error) {
        if (error.code() == ErrorCode::fileNotFound)
            return LogProbe::fileNotFound;
        if (error.code() == ErrorCode::pathNotFound)
            return LogProbe::pathNotFound;
        throw;
    }
    return LogProbe::opened;
}

} // namespace vantrel
