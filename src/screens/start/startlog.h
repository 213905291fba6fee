// SPDX-License-Identifier: MIT
// The name that START or a new file gives the log: may it be one, and can it be opened?
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

// Throws RuntimeError 75 when the name stands for one of the program's own files: settings,
// worked stations, roster or the program itself would be lost to the log.
void refuseOwnFile(const Files& files, std::string_view logFileName);

enum class LogProbe { opened, fileNotFound, pathNotFound };

// Opens and reads the log. An empty name is a file that cannot be found. Throws as
// refuseOwnFile, and as Files::read for whatever else keeps it from being opened.
LogProbe probeLog(const Files& files, std::string_view logFileName);

} // namespace vantrel
