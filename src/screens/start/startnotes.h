// SPDX-License-Identifier: MIT
// The start page's checks: whether a name can be the log's, and the notes beside the boxes, which
// show a wrong entry before the contest.
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

// Throws RuntimeError 75 when the name is that of one of the program's own files, which the log
// would replace: settings, worked stations, roster, the program. Likewise when it is too long for
// the names of the files kept beside a log.
void refuseOwnFile(const Files& files, std::string_view logFileName);

// Reads the log. Returns fileNotFoundText or pathNotFoundText when it or its folder is not there,
// an empty text when it can be opened. An empty name is a file that is not found. Throws as
// refuseOwnFile, and as Files::read for other failures.
std::string_view notThereText(const Files& files, std::string_view logFileName);

// A line beside a box.
struct StatusNote {
    std::string text{};
    bool caution = false; // shown in amber
    std::string tip{};
};

// The note about the named log: "28 QSOS, LAST 2026-11-21 1441", or that the file does not exist
// yet, names another contest in its header, is no log, or cannot be opened (with the reason as
// tip). Empty without a name. Never throws a RuntimeError.
StatusNote logNote(const Files& files, std::string_view logFileName, std::string_view contestText);

// Before a new file replaces that log: "SKS061611.CBR HOLDS 28 QSOS, LAST ..." and where they are
// kept. Empty when it holds no contact. Never throws a RuntimeError.
std::string newFileWarning(const Files& files, std::string_view logFileName);

// How many members the roster holds. Never throws a RuntimeError.
StatusNote rosterNote(const Files& files);

// UTC and date by the offset. A caution, with the computer's own UTC, when the two are more than
// half an hour apart: summer time has changed, perhaps. (Half an hour is no fault: in a zone at the
// half hour no whole offset comes nearer.)
StatusNote utcNote(const Clock& clock, std::string_view gmtOffset);

// "SAVED, BUT IN NO LIST: RIG: FT-891, ...": for saved settings that the page's lists do not have.
// It shows the defaults instead, and START saves them.
std::string unknownSettingsText(const std::vector<std::string>& settings);

} // namespace vantrel
