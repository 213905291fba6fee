// SPDX-License-Identifier: MIT
// The ADIF file of a log, byte for byte as the programs read it that operators feed with it.
#pragma once

#include "log/log.h"

#include <string>
#include <string_view>

namespace vantrel {

class Files;

// The file's bytes: "<EOH>", a line per contact (duplicates too), "<EOF>", CR LF after each.
std::string adifText(const Contacts& contacts);

// Shown above the path of an ADIF file that was written.
inline constexpr std::string_view adifCreated = "ADIF FILE CREATED AT:";

// Reads the log again and writes its ADIF file. Returns that file's full path, to show. Throws as
// Log::reread, adifFileName, requireOtherThanLog and Files::rewrite; the file is then as it was.
std::string exportAdif(Files& files, Log& log);

} // namespace vantrel
