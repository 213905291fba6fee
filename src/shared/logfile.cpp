// SPDX-License-Identifier: MIT
#include "shared/logfile.h"

#include "platform/clock.h"
#include "platform/files.h"
#include "shared/fixedtext.h"
#include "shared/itemreader.h"
#include "shared/qsoline.h"
#include "shared/qsotable.h"
#include "shared/runtimeerror.h"

namespace vantrel {

namespace {

// By the same reading as the QSO table's: whatever was counted is worth keeping.
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
        "My SKCC#: " + padRight(myNumber, numberWidth, "the SKCC number"),
        "   Count: 66 to HisCall"});
}

std::string startNewLog(Files& files, const OperatingSettings& settings) {
    const std::string& name = settings.logFileName;
    if (trim(name).empty())
        throw RuntimeError(ErrorCode::pathFileAccess,
                           "the new file needs a name: type one into the file name box");
    const std::string header = logHeader(settings.contestText, settings.myCall, settings.myNumber);
    const std::string old = files.readOrEmpty(name);
    const std::string kept =
        holdsContacts(old) ? files.keepCopy(name + ".OLD", old) : std::string();
    files.rewrite(name, header);
    return kept;
}

void loadLog(const Files& files, std::string_view logFileName, QsoTable& table) {
    files.readInto(logFileName, table.spare());
    try {
        table.refillFromSpare();
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.code(), files.path(logFileName) + ": " + error.detail());
    }
}

} // namespace vantrel
