// SPDX-License-Identifier: MIT
// What the start page tells beside its boxes, so that a wrong entry shows before the contest
// and not after it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class Clock;
class Files;

struct Note {
    std::string text{};
    bool caution = false; // shown in amber
    std::string tip{};
};

// What the named log is: how many contacts it holds and when the last one was; that it would be
// a new one, is another contest's (its header names another contest text), or is no log. Empty
// without a name. Never throws a RuntimeError: what keeps the log from being opened is told.
Note logNote(const Files& files, std::string_view logFileName, std::string_view contestText);

// How many members the roster holds. Never throws a RuntimeError.
Note rosterNote(const Files& files);

// UTC and date by the offset; a caution with the computer's own UTC when the two are more than
// half an hour apart, as they are after a change of summer time. (Where the zone is at the half
// hour, no whole offset is nearer.)
Note utcNote(const Clock& clock, std::string_view gmtOffset);

// Of saved settings that no list of the page has: the page shows the default in their place, and
// START saves that. Each as "RIG: FT-891".
std::string unknownSettingsText(const std::vector<std::string>& settings);

} // namespace vantrel
