// SPDX-License-Identifier: MIT
// A copy of the log in a folder of the operator's choice.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

class Files;

// What a backup did.
struct Backup {
    int contacts;     // written
    std::string kept; // path of the earlier copy that was kept, as text to show; empty: none
};

// "28 QSOS WRITTEN", and where the earlier copy is kept.
std::string backupText(const Backup& backup);

// The copy that is already in the folder typed: "THE COPY THERE: 28 QSOS, LAST 2026-11-21 1441";
// "NO COPY THERE YET"; empty without a folder. Throws as Files::read.
std::string copyThereText(const Files& files, std::string_view logFileName,
                          std::string_view folderTyped);

// Copies the whole log, under the last part of its name, into the folder typed (blanks around
// it do not matter), in place of an earlier copy. An earlier copy that is no beginning of the log
// is first kept as NAME.CBR.OLD (numbered): the log may have been started anew, or lines of it
// deleted. The copy is on the disk when this returns. Throws RuntimeError 76 for a folder that is
// empty or missing, 53 for a missing log, and as Files::rewrite; an earlier copy is then as it was.
// The log is never changed.
Backup backUpLog(Files& files, std::string_view logFileName, std::string_view folderTyped);

} // namespace vantrel
