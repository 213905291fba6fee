// SPDX-License-Identifier: MIT
#include "platform/windows/win32.h"

#include "platform/filenames.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace vantrel {

std::wstring wideText(std::string_view utf8) {
    return pathOf(utf8).wstring();
}

std::string narrowText(std::wstring_view wide) {
    return std::filesystem::path(wide).string();
}

int lastErrno() {
    const auto error = static_cast<int>(::GetLastError());
    switch (error) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return EBUSY;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
        return ENOENT;
    case ERROR_WRITE_PROTECT:
        return EROFS;
    default:
        break;
    }
    const std::error_condition condition = std::system_category().default_error_condition(error);
    return condition.category() == std::generic_category() ? condition.value() : EIO;
}

} // namespace vantrel
