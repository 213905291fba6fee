// SPDX-License-Identifier: MIT
// START's last step: can the log be opened?
#pragma once

#include <string_view>

namespace vantrel {

class Files;

inline constexpr std::string_view fileNotFoundText =
    "      THIS FILE CANNOT BE FOUND.        PLEASE TRY ANOTHER FILE."
    "                                                               -OR-"
    "     START A NEW CONTEST FILE.";
inline constexpr std::string_view pathNotFoundText =
    "THIS PATH CANNOT BE FOUND.  PLEASE CREATE A NEW FILE";
inline constexpr std::string_view newFileQuestion =
    "  START A NEW FILE - ARE YOU SURE?          THE NEW FILE WILL START WITH NO QSOS         ";

enum class LogProbe { opened, fileNotFound, pathNotFound };

// Opens and reads the log. An empty name is a file that cannot be found. Throws as
// Files::read for whatever else keeps it from being opened.
LogProbe probeLog(const Files& files, std::string_view logFileName);

} // namespace vantrel
