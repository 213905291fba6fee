// SPDX-License-Identifier: MIT
// What the driver tells of its work before it may be killed: a line before each operation with
// what it is about to change, and a line after it.
#pragma once

#include <string_view>

namespace vantrel::test::diary {

inline constexpr std::string_view ready = "ready"; // the folder is open, work begins
inline constexpr std::string_view done = "done";   // the operation told last is finished

// What an operation is told with, fields behind it separated by tabs. A contact's line is done
// as soon as its boxes would have been cleared.
inline constexpr std::string_view log = "log";         // the contact's line
inline constexpr std::string_view correct = "correct"; // the line before and after
inline constexpr std::string_view erase = "erase";     // the line
inline constexpr std::string_view undo = "undo";       // nothing
inline constexpr std::string_view start = "start";     // the new log's name of the kept copy
inline constexpr std::string_view import = "import";   // the generation of its members
inline constexpr std::string_view sort = "sort";       // nothing
inline constexpr std::string_view adif = "adif";       // nothing
inline constexpr std::string_view backup = "backup";   // nothing
inline constexpr std::string_view save = "save";       // the bonus station

inline constexpr std::string_view logName = "SKS061611.CBR";
inline constexpr std::string_view backupFolder = "BACKUP";
inline constexpr int members = 40;

} // namespace vantrel::test::diary
