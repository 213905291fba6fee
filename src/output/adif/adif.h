// SPDX-License-Identifier: MIT
// The customary ADIF file of a log, byte for byte as the programs that operators load it into
// expect it, and the item that ADIF files are made of.
#pragma once

#include "log/log.h"

#include <string>
#include <string_view>

namespace vantrel {

class Files;

// Appends "<NAME:4>JOHN": `head` is "<NAME:".
void appendAdifItem(std::string& bytes, std::string_view head, std::string_view value);

// The file's bytes: "<EOH>", a line per contact (duplicates too), "<EOF>", CR LF after each.
std::string adifText(const Contacts& contacts);

// Rereads the log and writes its ADIF file. Returns that file's full path, to show. Throws as
// Log::reread, adifFileName, requireOtherThanLog and Files::rewrite; the file is then as it was.
std::string exportAdif(Files& files, Log& log);

} // namespace vantrel
