// SPDX-License-Identifier: MIT
#include "screens/start/startnotes.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "log/contactdate.h"
#include "log/logfile.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "roster/rosterfiles.h"
#include "shared/settings.h"
#include "shared/utctime.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr std::string_view programFile = "vantrel";

std::string heldText(const Contacts& contacts) {
    return contacts.empty() ? "NO QSO YET" : contactsText(contacts);
}

StatusNote noteOn(std::string_view logBytes, std::string_view contestText) {
    if (logBytes.empty())
        return {"EMPTY: NO QSO YET", true};
    const LogSummary log = summaryOf(logBytes);
    if (!log.contest && log.contacts.empty())
        return {"NO LOG: NO HEADER, NO QSO", true};
    const std::string contest(log.contest.value_or(""));
    if (!contest.empty() && upper(contest) != upper(trim(contestText)))
        return {"ITS HEADER SAYS " + contest, true, heldText(log.contacts)};
    return {heldText(log.contacts)};
}

} // namespace

void refuseOwnFile(const Files& files, std::string_view logFileName) {
    std::vector<std::string_view> ownFiles{configurationFile, workedStationsFile, programFile};
    ownFiles.insert(ownFiles.end(), rosterFiles.begin(), rosterFiles.end());
    for (const std::string_view name : ownFiles)
        if (files.areSame(name, logFileName))
            throw RuntimeError(ErrorCode::pathFileAccess,
                               files.path(logFileName) +
                                   " is one of the program's own files and cannot be the log");
    requireRoomForNames(files, logFileName);
}

std::string_view notThereText(const Files& files, std::string_view logFileName) {
    if (trim(logFileName).empty())
        return fileNotFoundText;
    refuseOwnFile(files, logFileName);
    try {
        files.read(logFileName);
    } catch (const RuntimeError& error) {
        if (error.code() == ErrorCode::fileNotFound)
            return fileNotFoundText;
        if (error.code() == ErrorCode::pathNotFound)
            return pathNotFoundText;
        throw;
    }
    return {};
}

StatusNote logNote(const Files& files, std::string_view logFileName, std::string_view contestText) {
    // START turns the box's text into a name in the same way.
    const std::string name(trim(withoutSeparatorsAndQuotes(logFileName)));
    if (name.empty())
        return {};
    try {
        refuseOwnFile(files, name);
        return noteOn(files.read(name), contestText);
    } catch (const RuntimeError& error) {
        if (error.code() == ErrorCode::fileNotFound)
            return {std::string(noSuchFileYet)};
        if (error.code() == ErrorCode::pathNotFound)
            return {"NO SUCH FOLDER", true, error.detail()};
        return {"CANNOT BE THE LOG", true, error.detail()};
    }
}

std::string newFileWarning(const Files& files, std::string_view logFileName) {
    try {
        const std::string name(trim(withoutSeparatorsAndQuotes(logFileName)));
        const std::string bytes = files.readOrEmpty(name);
        const LogSummary log = summaryOf(bytes);
        if (log.contacts.empty())
            return {};
        return files.path(name) + " HOLDS " + contactsText(log.contacts) +
               ".\nTHEY ARE KEPT BESIDE IT AS " + std::string(lastPart(name)) +
               ".OLD (NUMBERED WHEN THERE IS ONE)";
    } catch (const RuntimeError&) {
        return {}; // starting the new file will report it
    }
}

StatusNote rosterNote(const Files& files) {
    try {
        const int members = countMembers(files);
        if (members == 0)
            return {"NO ROSTER YET", true};
        return {counted(members, "MEMBER")};
    } catch (const RuntimeError& error) {
        return {"THE ROSTER CANNOT BE READ", true, error.detail()};
    }
}

StatusNote utcNote(const Clock& clock, std::string_view gmtOffset) {
    constexpr std::chrono::minutes doubtful(30);
    const UtcTime utc = utcTime(clock.now(), gmtOffset);
    const std::chrono::minutes own(clock.utc());
    const auto apart = std::chrono::abs(readTime(utc.time).value_or(own) - own); // on one day
    StatusNote note{utc.time + " UTC   " + utc.date};
    note.caution = std::min(apart, std::chrono::days(1) - apart) > doubtful;
    if (note.caution)
        note.tip = "THE COMPUTER ITSELF SAYS " + timeText(own) + " UTC";
    return note;
}

std::string unknownSettingsText(const std::vector<std::string>& settings) {
    std::string text = "SAVED, BUT IN NO LIST: ";
    for (std::size_t i = 0; i < settings.size(); ++i)
        text += (i == 0 ? "" : ", ") + settings[i];
    return text;
}

} // namespace vantrel
