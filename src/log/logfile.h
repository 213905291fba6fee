// SPDX-License-Identifier: MIT
// A log as a file: its name, its header, starting a new one, what one holds, and the names of the
// files written beside it.
#pragma once

#include "log/log.h"

#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

struct LocalTime;

// "SKS061611.CBR": contest code, local month, day and last two digits of the year.
std::string defaultLogName(std::string_view contestCode, const LocalTime& local);
// "2010-01-05-K3Y-03-W1ABC.CBR", of a call area in the K3Y event. utcDate as contacts carry it; the
// call in upper case, a `/` in it (it would name a folder) as `-`.
std::string k3yLogName(std::string_view utcDate, std::string_view areaCode,
                       std::string_view myCall);

// The four header lines, CR LF after each. Values start in column 11; the number is padded
// to 6. Throws RuntimeError 5 for a number longer than that.
std::string logHeader(std::string_view contestText, std::string_view myCall,
                      std::string_view myNumber);

// Creates the log `name` with its header, in place of one of that name. A log with contacts is
// first kept beside it as NAME.OLD (numbered when there is one already). Returns the kept
// copy's name, empty when there was nothing to keep. Throws RuntimeError 75 for an empty name,
// and as Files.
std::string startNewLog(Files& files, const std::string& name, std::string_view header);

// What a log holds, beyond the first 12,000 contacts too. Views into the bytes given.
struct LogSummary {
    std::optional<std::string_view> contest; // text in the header, trimmed; nothing without one
    Contacts contacts;
};
LogSummary summaryOf(std::string_view logBytes);

// "28 QSOS, LAST 2026-11-21 1441"; "0 QSOS".
std::string contactsText(const Contacts& contacts);

// Shown in place of what a file would hold.
inline constexpr std::string_view noSuchFileYet = "NO SUCH FILE YET";

// The last part of a file name: "SKS.CBR" of "LOGS\SKS.CBR".
std::string_view lastPart(std::string_view fileName);

// "SKS0512.CBR" gives "SKS0512.ADI": the last three characters are replaced. Throws
// RuntimeError 5 for a name of less than three.
std::string adifFileName(std::string_view logFileName);
// A file beside the log: "SKS0512-LOG.PDF" with the ending "-LOG.PDF".
std::string nameBeside(std::string_view logFileName, std::string_view ending);
std::string strictAdifFileName(std::string_view logFileName); // "SKS0512-STRICT.ADI"

// Throws RuntimeError 75 when the log's name is so long that a file beside it could not be named:
// the operator learns that at START and not when an export or a kept copy fails.
void requireRoomForNames(const Files& files, std::string_view logFileName);

// Throws RuntimeError 75 when writing `name` would replace the log itself.
void requireOtherThanLog(const Files& files, std::string_view name, std::string_view logFileName);

} // namespace vantrel
