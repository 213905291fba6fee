// SPDX-License-Identifier: MIT
#include "screens/start/startlog.h"

#include "platform/files.h"
#include "shared/fixedtext.h"
#include "shared/runtimeerror.h"

namespace vantrel {

LogProbe probeLog(const Files& files, std::string_view logFileName) {
    if (trim(logFileName).empty())
        return LogProbe::fileNotFound;
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
