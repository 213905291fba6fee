// SPDX-License-Identifier: MIT
#include "screens/main/qsoentry.h"

#include "log/log.h"
#include "roster/rosterlookup.h"
#include "screens/main/frequency.h"
#include "shared/settings.h"
#include "shared/utctime.h"

#include <utility>

namespace vantrel {

namespace {

// A setting that a hand-edited file made too wide is refused: it would shift the columns behind it.
std::string settingOf(std::string_view setting, int width, std::string_view field) {
    return padded(trim(withoutSeparators(setting)), width, field);
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

LookupOutcome lookUp(Entry& entry, Roster& roster) {
    if (isDigit(entry.call.front())) {
        if (const auto call = roster.callOfNumber(entry.call)) {
            entry.call = *call;
            return call->empty() ? LookupOutcome::nobody : LookupOutcome::callOfNumber;
        }
    }
    const auto member = roster.findByCall(entry.call);
    if (!member)
        return LookupOutcome::notFound;
    entry.name = member->name;
    entry.state = member->state;
    entry.number = member->number;
    return LookupOutcome::found;
}

bool canBeLogged(const Entry& entry) {
    return length(callAsEntered(entry.call)) >= shortestCall;
}

FrequencyCheck checkFrequency(std::string_view mhz, const OperatingSettings& settings) {
    const std::string khz = khzField(mhz);
    if (!settings.isK3y() && isOutsideSprintBands(mhz, khz))
        return FrequencyCheck::outsideSprintBands;
    return khzFault(khz, mhz).empty() ? FrequencyCheck::good : FrequencyCheck::unloggable;
}

std::string contactLine(const Entry& entry, const OperatingSettings& settings,
                        std::string_view marker, const UtcTime& utc) {
    const std::pair<Column, std::string> fields[] = {
        {qso::frequency, khzField(entry.frequency)},
        {qso::mode, "CW"},
        {qso::date, utc.date},
        {qso::time, utc.time},
        {qso::myCall, settingOf(settings.myCall, qso::myCall.width, "my call")},
        {qso::rstSent, withoutSeparators(entry.rstSent)},
        {qso::myName, settingOf(settings.myName, qso::myName.width, "my name")},
        {qso::myState, settingOf(settings.myState, qso::myState.width, "my state")},
        {qso::myNumber, settingOf(settings.myNumber, qso::myNumber.width, "my SKCC number")},
        {qso::hisCall, upper(callAsEntered(entry.call))},
        {qso::rstReceived, withoutSeparators(entry.rstReceived)},
        {qso::hisName, withoutSeparators(entry.name)},
        {qso::hisState, withoutSeparators(entry.state)},
        {qso::hisNumber, withoutSeparators(entry.number)}};
    std::string line = "QSO:";
    for (const auto& [column, value] : fields)
        line = withField(line, column, value);
    return line + std::string(marker); // not padded: "DUPE" stays the bare four
}

RuntimeError notLogged(const RuntimeError& error) {
    const std::string remedy = error.code() == ErrorCode::diskFull ? "MAKE ROOM ON THE DISK, "
                               : error.code() == ErrorCode::permissionDenied
                                   ? "ALLOW THE FILE TO BE WRITTEN, "
                                   : "";
    return {error.code(), error.detail() + "\nNOT LOGGED. THE BOXES ARE KEPT: " + remedy +
                              "THEN PRESS LOG AGAIN"};
}

Message lossNotice(const LogLoss& loss, const std::string& logPath) {
    constexpr std::string_view shrank = // and the contact is in the shorter one
        "THE LOG FILE HELD FEWER QSOS THAN BEFORE.  THIS QSO HAS BEEN ADDED TO IT";
    return {std::string(loss.vanished ? logStartedAgainText : shrank), BoxIcon::exclamation,
            logPath + (loss.kept.empty() ? "" : "\nWHAT IT HELD IS KEPT IN " + loss.kept)};
}

} // namespace vantrel
