// SPDX-License-Identifier: MIT
#include "base/runtimeerror.h"

#include <utility>

namespace vantrel {

std::string_view errorText(ErrorCode code) {
    switch (code) {
    case ErrorCode::invalidCall:
        return "Invalid procedure call or argument";
    case ErrorCode::overflow:
        return "Overflow";
    case ErrorCode::subscriptOutOfRange:
        return "Subscript out of range";
    case ErrorCode::fileNotFound:
        return "File not found";
    case ErrorCode::diskFull:
        return "Disk full";
    case ErrorCode::inputPastEnd:
        return "Input past end of file";
    case ErrorCode::permissionDenied:
        return "Permission denied";
    case ErrorCode::pathFileAccess:
        return "Path/File access error";
    case ErrorCode::pathNotFound:
        return "Path not found";
    }
    return "Application-defined or object-defined error";
}

namespace {
std::string headlineFor(ErrorCode code) {
    return "Run-time error " + std::to_string(static_cast<int>(code)) + ": " +
           std::string(errorText(code));
}
} // namespace

RuntimeError::RuntimeError(ErrorCode code, std::string detail)
    : std::runtime_error(headlineFor(code) + " (" + detail + ")"),
      m_code(code),
      m_detail(std::move(detail)) {}

std::string RuntimeError::headline() const {
    return headlineFor(m_code);
}

void requireCapacity(const std::string& table, std::size_t entries, int capacity) {
    if (entries > static_cast<std::size_t>(capacity))
        throw RuntimeError(ErrorCode::subscriptOutOfRange,
                           table + " holds at most " + std::to_string(capacity) + " entries");
}

} // namespace vantrel
