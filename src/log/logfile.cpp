// SPDX-License-Identifier: MIT
#include "log/logfile.h"

#include "base/itemreader.h"
#include "base/runtimeerror.h"
#include "log/qsoline.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr std::size_t headerLines = 4;
constexpr std::string_view contestHeading = " Contest: ";
constexpr int extensionWidth = 3;

} // namespace

std::string defaultLogName(std::string_view contestCode, const LocalTime& local) {
    return std::string(contestCode) + zeroPadded(local.month, 2) + zeroPadded(local.day, 2) +
           zeroPadded(local.year % 100, 2) + ".CBR";
}

std::string k3yLogName(std::string_view utcDate, std::string_view areaCode,
                       std::string_view myCall) {
    std::string call = upper(trim(myCall));
    std::ranges::replace(call, '/', '-');
    return std::string(utcDate) + "-K3Y-" + std::string(areaCode) + "-" + call + ".CBR";
}

std::string logHeader(std::string_view contestText, std::string_view myCall,
                      std::string_view myNumber) {
    // The last line reminds whoever reads the file where the other station's call starts.
    return joinLines(std::vector<std::string>{
        std::string(contestHeading) + std::string(contestText), " My Call: " + std::string(myCall),
        "My SKCC#: " + padded(myNumber, qso::myNumber.width, "the SKCC number"),
        "   Count: 66 to HisCall"});
}

std::string startNewLog(Files& files, const std::string& name, std::string_view header) {
    if (trim(name).empty())
        throw RuntimeError(ErrorCode::pathFileAccess,
                           "the new file needs a name: type one into the file name box");
    const std::string old = files.readOrEmpty(name);
    const std::string kept =
        contactsIn(old).empty() ? std::string() : files.keepCopy(name + ".OLD", old);
    files.rewrite(name, header);
    return kept;
}

LogSummary summaryOf(std::string_view logBytes) {
    LogSummary summary{{}, contactsIn(logBytes)};
    std::vector<std::string_view> lines = linesOf(logBytes);
    lines.resize(std::min(lines.size(), headerLines));
    for (const std::string_view line : lines)
        if (line.starts_with(contestHeading))
            summary.contest = trim(line.substr(contestHeading.size()));
    return summary;
}

std::string contactsText(const Contacts& contacts) {
    const std::string text = counted(static_cast<long long>(contacts.size()), "QSO");
    if (contacts.empty())
        return text;
    return text + ", LAST " + std::string(qso::date.of(contacts.back())) + ' ' +
           std::string(qso::time.of(contacts.back()));
}

std::string_view lastPart(std::string_view fileName) {
    return fileName.substr(fileName.find_last_of("/\\") + 1);
}

std::string adifFileName(std::string_view logFileName) {
    if (length(logFileName) < extensionWidth)
        throw RuntimeError(ErrorCode::invalidCall, "the log's name \"" + std::string(logFileName) +
                                                       "\" has no extension to replace");
    return std::string(left(logFileName, length(logFileName) - extensionWidth)) + "ADI";
}

std::string nameBeside(std::string_view logFileName, std::string_view ending) {
    const std::size_t nameLength = lastPart(logFileName).size();
    const std::size_t extension = lastPart(logFileName).rfind('.');
    logFileName.remove_suffix(nameLength - std::min(extension, nameLength));
    return std::string(logFileName) + std::string(ending);
}

std::string strictAdifFileName(std::string_view logFileName) {
    return nameBeside(logFileName, "-STRICT.ADI");
}

void requireRoomForNames(const Files& files, std::string_view logFileName) {
    for (const std::string& longest :
         {strictAdifFileName(logFileName), std::string(logFileName) + ".OLD99"})
        files.requireNameFits(longest);
}

void requireOtherThanLog(const Files& files, std::string_view name, std::string_view logFileName) {
    if (files.areSame(name, logFileName))
        throw RuntimeError(ErrorCode::pathFileAccess,
                           files.path(name) + " is the log itself and is not written over");
}

} // namespace vantrel
