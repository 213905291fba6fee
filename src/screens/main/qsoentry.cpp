// SPDX-License-Identifier: MIT
#include "screens/main/qsoentry.h"

#include "platform/clock.h"
#include "platform/files.h"
#include "roster/rosterlookup.h"
#include "screens/main/frequency.h"
#include "screens/main/workedstations.h"
#include "shared/logfile.h"
#include "shared/module1.h"
#include "shared/runtimeerror.h"

#include <optional>

namespace vantrel {

namespace {

constexpr int shortestCall = 3;

std::string fieldOf(std::string_view box, int width) {
    return fitLeft(withoutSeparators(box), width);
}

// A setting re-padded before each contact; one that a hand-edited file made too wide is
// refused instead of shifting the columns behind it.
std::string settingOf(std::string_view setting, int width, std::string_view field) {
    return padRight(trim(withoutSeparators(setting)), width, field);
}

} // namespace

bool isComplete(const Entry& entry) {
    return length(entry.number) > 1;
}

std::string callAsEntered(std::string_view box) {
    return std::string(trim(withoutSeparators(box)));
}

bool canLookUp(std::string_view call) {
    if (call.empty())
        return false;
    const bool startsWithLetter = static_cast<unsigned char>(call.front()) > '@';
    return length(call) >= shortestCall || !startsWithLetter;
}

LookupOutcome lookUp(Entry& entry, Module1& module, Roster& roster) {
    if (isDigit(entry.call.front())) {
        const NumberMatch match = roster.findByNumber(entry.call);
        if (match.outcome != NumberLookup::notANumber) {
            entry.call = match.call;
            return match.outcome == NumberLookup::found ? LookupOutcome::callOfNumber
                                                        : LookupOutcome::nobody;
        }
    }
    const auto member = roster.findByCall(entry.call, module.rosterFile);
    if (!member)
        return LookupOutcome::notFound;
    entry.name = member->name;
    entry.state = member->state;
    entry.number = member->number;
    return LookupOutcome::found;
}

void forgetLookup(Entry& entry, const Entry& lookedUp) {
    if (entry.name == lookedUp.name)
        entry.name.clear();
    if (entry.state == lookedUp.state)
        entry.state.clear();
    if (entry.number == lookedUp.number)
        entry.number.clear();
}

bool canBeLogged(const Entry& entry) {
    return length(callAsEntered(entry.call)) >= shortestCall;
}

Qso contactFrom(const Entry& entry, Module1& module, const Clock& clock) {
    const OperatingSettings& settings = module.settings;
    Qso contact;
    contact.hisCall = fitLeft(upper(callAsEntered(entry.call)), qso::hisCall.width);
    contact.hisName = fieldOf(entry.name, qso::hisName.width);
    contact.hisState = fieldOf(entry.state, qso::hisState.width);
    contact.hisNumber = fieldOf(entry.number, qso::hisNumber.width);
    contact.rstReceived = fieldOf(entry.rstReceived, qso::rstReceived.width);
    contact.rstSent = fieldOf(entry.rstSent, qso::rstSent.width);
    module.utc = utcTime(clock.now(), settings.gmtOffset);
    contact.date = module.utc.date;
    contact.time = module.utc.time;
    contact.myCall = settingOf(settings.myCall, qso::myCall.width, "my call");
    contact.myName = settingOf(settings.myName, qso::myName.width, "my name");
    contact.myState = settingOf(settings.myState, qso::myState.width, "my state");
    contact.myNumber = settingOf(settings.myNumber, qso::myNumber.width, "my SKCC number");
    contact.mode = "CW";
    contact.marker = module.marker;
    return contact;
}

FrequencyCheck enterFrequency(Qso& contact, std::string& mhz, const Module1& module) {
    mhz = completedFrequency(mhz);
    if (!module.settings.isK3y() && isOutsideSprintBands(mhz))
        return FrequencyCheck::outsideSprintBands;
    contact.frequency = khzField(mhz);
    return isLoggableKhz(contact.frequency) ? FrequencyCheck::good : FrequencyCheck::missing;
}

void openLog(Module1& module, Files& files) {
    module.qsoTable.clear();
    module.workedStations.clear();
    std::optional<RuntimeError> tooLong;
    try {
        loadLog(files, module.settings.logFileName, module.qsoTable);
    } catch (const RuntimeError& error) {
        if (error.code() != ErrorCode::subscriptOutOfRange)
            throw;
        tooLong = error;
    }
    rebuildWorkedStations(module, files);
    if (tooLong)
        throw RuntimeError(*tooLong);
}

void appendContact(const Module1& module, Files& files) {
    files.appendLine(module.settings.logFileName, module.currentLine);
}

std::optional<Message> bringUpToDate(Module1& module, Files& files) {
    try {
        loadLog(files, module.settings.logFileName, module.qsoTable);
        addWorkedStation(module, files, module.currentLine);
    } catch (const RuntimeError& error) {
        return Message{error.headline(), BoxIcon::critical,
                       error.detail() + '\n' + std::string(isLoggedText)};
    }
    return std::nullopt;
}

std::string countText(const Module1& module) {
    return zeroPadded(module.qsoTable.count().value(), 2);
}

} // namespace vantrel
