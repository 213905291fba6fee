// SPDX-License-Identifier: MIT
#include "log/outputfiles.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "platform/files.h"

namespace vantrel {

namespace {

constexpr int extensionWidth = 3;

// The log's name without its extension, followed by `ending`.
std::string beside(std::string_view logFileName, std::string_view ending) {
    const std::size_t dot = logFileName.rfind('.');
    const std::size_t separator = logFileName.find_last_of("\\/");
    const bool extended =
        dot != std::string_view::npos && (separator == std::string_view::npos || dot > separator);
    return std::string(extended ? logFileName.substr(0, dot) : logFileName) + std::string(ending);
}

} // namespace

std::string adifFileName(std::string_view logFileName) {
    if (length(logFileName) < extensionWidth)
        throw RuntimeError(ErrorCode::invalidCall, "the log's name \"" + std::string(logFileName) +
                                                       "\" has no extension to replace");
    return std::string(left(logFileName, length(logFileName) - extensionWidth)) + "ADI";
}

std::string strictAdifFileName(std::string_view logFileName) {
    return beside(logFileName, "-STRICT.ADI");
}

std::string scorePdfName(std::string_view logFileName) {
    return beside(logFileName, "-SCORE.PDF");
}

std::string logPdfName(std::string_view logFileName) {
    return beside(logFileName, "-LOG.PDF");
}

void requireOtherThanLog(const Files& files, std::string_view name, std::string_view logFileName) {
    if (files.nativePath(name) == files.nativePath(logFileName))
        throw RuntimeError(ErrorCode::pathFileAccess,
                           files.path(name) + " is the log itself and is not written over");
}

} // namespace vantrel
