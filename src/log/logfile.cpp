// SPDX-License-Identifier: MIT
#include "log/logfile.h"

#include "base/fixedtext.h"
#include "base/itemreader.h"
#include "base/runtimeerror.h"
#include "log/qsoline.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace vantrel {

namespace {

// By the same reading as the open log's: whatever was counted is worth keeping.
bool holdsContacts(std::string_view logBytes) {
    ItemReader reader(logBytes);
    while (!reader.atEnd())
        if (isContact(reader.next()))
            return true;
    return false;
}

} // namespace

std::string defaultLogName(std::string_view contestCode, const LocalTime& local) {
    return std::string(contestCode) + zeroPadded(local.month, 2) + zeroPadded(local.day, 2) +
           zeroPadded(local.year % 100, 2) + ".CBR";
}

std::string logHeader(std::string_view contestText, std::string_view myCall,
                      std::string_view myNumber) {
    // The last line reminds whoever reads the file where the other station's call starts.
    return joinLines(std::vector<std::string>{
        " Contest: " + std::string(contestText), " My Call: " + std::string(myCall),
        "My SKCC#: " + padded(myNumber, qso::myNumber.width, "the SKCC number"),
        "   Count: 66 to HisCall"});
}

std::string startNewLog(Files& files, const std::string& name, std::string_view header) {
    if (trim(name).empty())
        throw RuntimeError(ErrorCode::pathFileAccess,
                           "the new file needs a name: type one into the file name box");
    const std::string old = files.readOrEmpty(name);
    const std::string kept =
        holdsContacts(old) ? files.keepCopy(name + ".OLD", old) : std::string();
    files.rewrite(name, header);
    return kept;
}

} // namespace vantrel
