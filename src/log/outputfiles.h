// SPDX-License-Identifier: MIT
// The names of the files written beside a log.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

class Files;

// "SKS0512.CBR" gives "SKS0512.ADI": the last three characters are replaced. Throws
// RuntimeError 5 for a name of less than three.
std::string adifFileName(std::string_view logFileName);
// "SKS0512-STRICT.ADI", "SKS0512-SCORE.PDF", "SKS0512-LOG.PDF".
std::string strictAdifFileName(std::string_view logFileName);
std::string scorePdfName(std::string_view logFileName);
std::string logPdfName(std::string_view logFileName);

// Throws RuntimeError 75 when writing `name` would replace the log itself.
void requireOtherThanLog(const Files& files, std::string_view name, std::string_view logFileName);

} // namespace vantrel
