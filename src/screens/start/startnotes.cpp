// SPDX-License-Identifier: MIT
#include "screens/start/startnotes.h"

#include "base/fixedtext.h"
#include "base/itemreader.h"
#include "base/runtimeerror.h"
#include "log/qsoline.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "roster/rosterview.h"
#include "screens/start/startlog.h"
#include "shared/utctime.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace vantrel {

namespace {

constexpr int headerLines = 4;
constexpr std::string_view contestHeading = " Contest: ";
constexpr int hourMinutes = 60;
constexpr int dayMinutes = 24 * hourMinutes;
constexpr int doubtfulMinutes = 30;

struct LogGlance {
    std::optional<std::string> contest; // as the header says it; nullopt: no header
    int contacts = 0;
    std::string_view last; // contact
};

LogGlance glanceAt(std::string_view logBytes) {
    LogGlance glance;
    LineReader lines(logBytes);
    for (int line = 0; line < headerLines && !lines.atEnd(); ++line) {
        const std::string_view text = lines.next();
        if (text.starts_with(contestHeading))
            glance.contest = trim(midToEnd(text, length(contestHeading) + 1));
    }
    ItemReader items(logBytes);
    while (!items.atEnd()) {
        const std::string_view item = items.next();
        if (!isContact(item))
            continue;
        ++glance.contacts;
        glance.last = item;
    }
    return glance;
}

std::string contactsText(const LogGlance& log) {
    if (log.contacts == 0)
        return "NO QSO YET";
    return std::to_string(log.contacts) + (log.contacts == 1 ? " QSO, LAST " : " QSOS, LAST ") +
           std::string(qso::date.of(log.last)) + ' ' + std::string(qso::time.of(log.last));
}

Note noteOn(std::string_view logBytes, std::string_view contestText) {
    if (logBytes.empty())
        return {"EMPTY: NO QSO YET", true};
    const LogGlance log = glanceAt(logBytes);
    if (!log.contest && log.contacts == 0)
        return {"NO LOG: NO HEADER, NO QSO", true};
    const std::string contest = log.contest.value_or("");
    if (!contest.empty() && upper(contest) != upper(trim(contestText)))
        return {"ITS HEADER SAYS " + contest, true, contactsText(log)};
    return {contactsText(log)};
}

} // namespace

Note logNote(const Files& files, std::string_view logFileName, std::string_view contestText) {
    // As START takes it.
    const std::string name(trim(withoutSeparatorsAndQuotes(logFileName)));
    if (name.empty())
        return {};
    try {
        refuseOwnFile(files, name);
        return noteOn(files.read(name), contestText);
    } catch (const RuntimeError& error) {
        if (error.code() == ErrorCode::fileNotFound)
            return {"NO SUCH FILE YET"};
        if (error.code() == ErrorCode::pathNotFound)
            return {"NO SUCH FOLDER", true, error.detail()};
        return {"CANNOT BE THE LOG", true, error.detail()};
    }
}

Note rosterNote(const Files& files) {
    try {
        const int members = countMembers(files);
        if (members == 0)
            return {"NO ROSTER YET", true};
        return {std::to_string(members) + (members == 1 ? " MEMBER" : " MEMBERS")};
    } catch (const RuntimeError& error) {
        return {"THE ROSTER CANNOT BE READ", true, error.detail()};
    }
}

Note utcNote(const Clock& clock, std::string_view gmtOffset) {
    const LocalTime local = clock.now();
    const TimeOfDay own = clock.utc();
    const UtcTime utc = utcTime(local, gmtOffset);
    const auto hour = static_cast<int>(numericValue(left(utc.time, 2)));
    const int apart =
        std::abs((hour - own.hour) * hourMinutes + local.minute - own.minute); // on one day
    Note note{utc.time + " UTC   " + utc.date};
    note.caution = std::min(apart, dayMinutes - apart) > doubtfulMinutes;
    if (note.caution)
        note.tip = "THE COMPUTER ITSELF SAYS " + zeroPadded(own.hour, 2) +
                   zeroPadded(own.minute, 2) + " UTC";
    return note;
}

std::string unknownSettingsText(const std::vector<std::string>& settings) {
    std::string text = "SAVED, BUT IN NO LIST: ";
    for (std::size_t i = 0; i < settings.size(); ++i)
        text += (i == 0 ? "" : ", ") + settings[i];
    return text;
}

} // namespace vantrel
