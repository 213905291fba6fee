// SPDX-License-Identifier: MIT
// The ADIF file for other loggers: strictly by ADIF 3.1, values in plain ASCII, a field
// without a valid value left out.
#pragma once

#include "log/log.h"

#include <string>
#include <string_view>

namespace vantrel {

class Clock;
class Files;
struct LocalTime;

struct StrictAdif {
    std::string bytes;
    std::size_t written = 0; // contacts
};

// A header, then a line per contact. Contacts without a call, a date or a time of day are left out:
// no logger could import them. `created`: "YYYYMMDD HHMMSS", UTC.
StrictAdif strictAdif(const Contacts& contacts, std::string_view created);

// "YYYYMMDD HHMMSS" in UTC, `gmtOffset` hours after local time.
std::string creationTime(const LocalTime& local, std::string_view gmtOffset);

struct StrictAdifFile {
    std::string path;    // to show
    std::size_t written; // contacts
    std::size_t leftOut; // contacts
};

// "27 WRITTEN, 1 LEFT OUT: NO CALL, DATE OR TIME"; "27 WRITTEN" when none was.
std::string contactsWritten(const StrictAdifFile& file);

// Reads the log again and writes NAME-STRICT.ADI beside it. Throws as Log::reread,
// requireOtherThanLog and Files::rewrite; the file is then as it was.
StrictAdifFile exportStrictAdif(Files& files, const Clock& clock, std::string_view gmtOffset,
                                Log& log);

} // namespace vantrel
