// SPDX-License-Identifier: MIT
// The ADIF file of a log, byte for byte as operators' other programs have always got it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class Files;
class Log;

// The file's bytes: "<EOH>", a line per contact (duplicates too), "<EOF>", CR LF after each.
std::string adifText(const std::vector<std::string_view>& contacts);

// Reads the log again and writes its ADIF file. Returns that file's full path, to
// show. Throws as Log::reread, adifFileName, requireOtherThanLog and Files::rewrite; the file is
// then as it was.
std::string exportAdif(Files& files, Log& log);

} // namespace vantrel
