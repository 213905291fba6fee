// SPDX-License-Identifier: MIT
// What the start page checks: whether the log's name can be a log, and the notes beside its boxes,
// so that a wrong entry shows before the contest and not after it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class Clock;
class Files;

inline constexpr std::string_view fileNotFoundText =
    "      THIS FILE CANNOT BE FOUND.        PLEASE TRY ANOTHER FILE."
    "                                                               -OR-"
    "     START A NEW CONTEST FILE.";
inline constexpr std::string_view pathNotFoundText =
    "THIS PATH CANNOT BE FOUND.  PLEASE CREATE A NEW FILE";
inline constexpr std::string_view newFileQuestion =
    "  START A NEW FILE - ARE YOU SURE?          THE NEW FILE WILL START WITH NO QSOS         ";

// Throws RuntimeError 75 when the name stands for one of the program's own files: a log of that
// name would replace the settings, the worked stations, the roster or the program itself. The same
// when it leaves no room for the names of the files beside a log.
void refuseOwnFile(const Files& files, std::string_view logFileName);

enum class OpenResult { opened, fileNotFound, pathNotFound };

// Opens and reads the log. An empty name is a file that cannot be found. Throws as
// refuseOwnFile, and as Files::read for whatever else keeps it from being opened.
OpenResult tryToOpen(const Files& files, std::string_view logFileName);

// A line beside a box.
struct StatusNote {
    std::string text{};
    bool caution = false; // shown in amber
    std::string tip{};
};

// What the named log is: "28 QSOS, LAST 2026-11-21 1441"; that there is no such file yet; that its
// header names another contest; that it is no log, or cannot be opened and why. Empty without a
// name. Never throws a RuntimeError.
StatusNote logNote(const Files& files, std::string_view logFileName, std::string_view contestText);

// What a new start over that log keeps: "SKS061611.CBR HOLDS 28 QSOS, LAST ...". Empty where it
// holds no contact. Never throws a RuntimeError.
std::string newFileWarning(const Files& files, std::string_view logFileName);

// How many members the roster holds. Never throws a RuntimeError.
StatusNote rosterNote(const Files& files);

// UTC and date by the offset; a caution with the computer's own UTC when the two are more than
// half an hour apart, as they are after a change of summer time. (Where the zone is at the half
// hour, no whole offset is nearer.)
StatusNote utcNote(const Clock& clock, std::string_view gmtOffset);

// "SAVED, BUT IN NO LIST: RIG: FT-891, ...": for settings that no list of the page has. The page
// shows the default in their place, and START saves that.
std::string unknownSettingsText(const std::vector<std::string>& settings);

} // namespace vantrel
