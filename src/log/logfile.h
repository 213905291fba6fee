// SPDX-License-Identifier: MIT
// A new contest log: its default name, its header, starting one.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

class Files;
struct LocalTime;

// "SKS061611.CBR": contest code, local month, day and last two digits of the year.
std::string defaultLogName(std::string_view contestCode, const LocalTime& local);

// The four header lines, CR LF after each. Values start in column 11; the number is padded
// to 6. Throws RuntimeError 5 for a number longer than that.
std::string logHeader(std::string_view contestText, std::string_view myCall,
                      std::string_view myNumber);

// Creates the log `name` with its header, in place of one of that name. A log with contacts is
// first kept beside it as NAME.OLD (numbered when there is one already). Returns the kept
// copy's name, empty when there was nothing to keep. Throws RuntimeError 75 for an empty name,
// and as Files.
std::string startNewLog(Files& files, const std::string& name, std::string_view header);

} // namespace vantrel
