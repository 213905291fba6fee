// SPDX-License-Identifier: MIT
// The contest log: its header, starting one, appending to it, reading it into the table.
#pragma once

#include "shared/settings.h"

#include <string>
#include <string_view>

namespace vantrel {

class Files;
class QsoTable;
struct LocalTime;

// "SKS061611.CBR": contest code, local month, day and last two digits of the year.
std::string defaultLogName(std::string_view contestCode, const LocalTime& local);

// The four header lines, CR LF after each. Values start in column 11; the number is padded
// to 6. Throws RuntimeError 5 for a number longer than that.
std::string logHeader(std::string_view contestText, std::string_view myCall,
                      std::string_view myNumber);

// Creates the log `settings.logFileName` with its header, in place of one of that name. A log
// with contacts is first kept beside it as NAME.OLD (numbered when there is one already).
// Returns the kept copy's name, empty when there was nothing to keep. Throws RuntimeError 75
// for an empty name, and as Files.
std::string startNewLog(Files& files, const OperatingSettings& settings);

// Reads the log's contacts into the table. Throws as Files::read and QsoTable::refill, the
// log's path in the detail.
void loadLog(const Files& files, std::string_view logFileName, QsoTable& table);

} // namespace vantrel
