// SPDX-License-Identifier: MIT
#include "output/adif/strictadif.h"

#include "base/integer16.h"
#include "base/version.h"
#include "log/contactdate.h"
#include "log/logfile.h"
#include "log/qsoline.h"
#include "output/adif/adif.h"
#include "output/score/regioncodes.h"
#include "platform/files.h"
#include "platform/platform.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

namespace vantrel {

namespace {

namespace chrono = std::chrono;

constexpr std::size_t typicalStrictRecord = 320; // bytes
constexpr std::string_view adifVersion = "3.1.4";
constexpr std::string_view programId = "VANTREL"; // our own fields' names begin APP_VANTREL_

// ADIF's numbers of the countries that divide into states.
constexpr std::string_view unitedStates = "291";
constexpr std::string_view alaska = "6";
constexpr std::string_view hawaii = "110";
constexpr std::string_view canada = "1";

// --- Values -----------------------------------------------------------------------------------

// What the characters 0xC0 to 0xFF of ISO 8859-1 are without their accents.
constexpr std::array<std::string_view, 64> unaccented{
    "A", "A", "A", "A", "A", "A", "AE", "C", "E", "E", "E", "E", "I", "I", "I",  "I",
    "D", "N", "O", "O", "O", "O", "O",  "x", "O", "U", "U", "U", "U", "Y", "TH", "ss",
    "a", "a", "a", "a", "a", "a", "ae", "c", "e", "e", "e", "e", "i", "i", "i",  "i",
    "d", "n", "o", "o", "o", "o", "o",  "/", "o", "u", "u", "u", "u", "y", "th", "y"};

// A field trimmed and in printable ASCII; `?` for what has no plain letter.
std::string plainText(std::string_view field) {
    std::string text;
    for (const char character : trim(field)) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte >= 0xC0)
            text += unaccented[byte - 0xC0U];
        else
            text += character >= ' ' && character <= '~' ? character : '?';
    }
    return text;
}

// "20110616"
std::string adifDate(const chrono::year_month_day& date) {
    std::string text = dateText(date);
    std::erase(text, '-');
    return text;
}

// 0 for a field that holds no frequency.
int kilohertz(std::string_view field) {
    const std::string_view khz = trim(field);
    return allDigits(khz) ? static_cast<int>(numericValue(khz)) : 0;
}

// "14.050"
std::string megahertz(int khz) {
    return std::to_string(khz / 1000) + '.' + zeroPadded(khz % 1000, 3);
}

// ADIF's own list of bands, as far as contests are run on them. A logger refuses a contact
// whose band does not hold its frequency.
struct AdifBand {
    std::string_view name;
    int first; // kHz
    int last;
};
constexpr std::array<AdifBand, 9> adifBands{{{"160m", 1800, 2000},
                                             {"80m", 3500, 4000},
                                             {"40m", 7000, 7300},
                                             {"30m", 10100, 10150},
                                             {"20m", 14000, 14350},
                                             {"17m", 18068, 18168},
                                             {"15m", 21000, 21450},
                                             {"12m", 24890, 24990},
                                             {"10m", 28000, 29700}}};

// Empty when the frequency lies in none.
std::string_view bandName(int khz) {
    for (const AdifBand& band : adifBands)
        if (khz >= band.first && khz <= band.last)
            return band.name;
    return {};
}

// Digits, and the award letter if any. "100W" is a non-member's power and "NONE" nobody's.
bool isMemberNumber(std::string_view number) {
    return !number.empty() && isDigit(number.front()) && !number.ends_with('W') &&
           std::ranges::all_of(number, [](char character) {
               return isDigit(character) || isCapital(upper(character));
           });
}

// --- States and provinces ---------------------------------------------------------------------

// The first two characters of a country's calls: "K9SKC" lies between "K" and "K\xFF".
struct Prefixes {
    std::string_view first;
    std::string_view last;
};
constexpr Prefixes unitedStatesPrefixes[] = {
    {"AA", "AL"}, {"K", "K\xFF"}, {"N", "N\xFF"}, {"W", "W\xFF"}};
constexpr Prefixes canadianPrefixes[] = {{"CF", "CK"}, {"CY", "CZ"}, {"VA", "VG"},
                                         {"VO", "VO"}, {"VX", "VY"}, {"XJ", "XO"}};

// True when any of the call's parts ("VE3/W1ABC", "W1ABC/7") begins so.
bool anyPart(std::string_view call, std::span<const Prefixes> country) {
    for (;;) {
        const std::size_t slash = call.find('/');
        const std::string_view prefix = left(call.substr(0, slash), 2);
        for (const auto& [first, last] : country)
            if (first <= prefix && prefix <= last)
                return true;
        if (slash == std::string_view::npos)
            return false;
        call.remove_prefix(slash + 1);
    }
}

// ADIF's number of the country that `code` is a state or province of; empty when it is none.
// The call decides as well: members elsewhere send their prefix as code, and "OK" is Oklahoma
// for K5ABC but the Czech Republic for OK1ABC, "ON" Ontario or Belgium.
std::string_view countryOfState(std::string_view code, std::string_view call) {
    if (anyPart(call, unitedStatesPrefixes)) {
        if (code == "AK")
            return alaska;
        if (code == "HI")
            return hawaii;
        if (code == "DC" || isAdjoiningState(code))
            return unitedStates;
    }
    if (anyPart(call, canadianPrefixes) && (code == "YT" || isCanadianProvince(code)))
        return canada;
    return {};
}

// --- Records ----------------------------------------------------------------------------------

// "<NAME:4>JOHN " for a value, nothing without one. head: "<NAME:".
void appendField(std::string& bytes, std::string_view head, std::string_view value) {
    if (value.empty())
        return;
    appendAdifItem(bytes, head, value);
    bytes += ' ';
}

// Parts of his exchange without an ADIF field: a prefix sent for a state, a power for a number.
std::string notesOf(std::string_view prefix, std::string_view number) {
    std::string notes(prefix);
    if (!isMemberNumber(number) && !number.empty())
        notes.append(notes.empty() ? "" : " ").append(number);
    return notes;
}

void appendMarker(std::string& bytes, std::string_view contact) {
    const std::string marker = plainText(qso::marker.of(contact));
    if (isDupe(contact))
        appendField(bytes, "<APP_VANTREL_DUPE:", "Y");
    else if (marker.starts_with("K3Y"))
        appendField(bytes, "<APP_VANTREL_K3Y:", marker);
}

void appendHisSide(std::string& bytes, std::string_view contact, std::string_view call) {
    const std::string state = plainText(qso::hisState.of(contact));
    const std::string number = plainText(qso::hisNumber.of(contact));
    const std::string_view country = countryOfState(state, call);
    appendField(bytes, "<RST_RCVD:", plainText(qso::rstReceived.of(contact)));
    appendField(bytes, "<NAME:", plainText(qso::hisName.of(contact)));
    appendField(bytes, "<STATE:", country.empty() ? std::string_view() : state);
    appendField(bytes, "<DXCC:", country);
    appendField(bytes, "<SKCC:", isMemberNumber(number) ? number : std::string_view());
    appendField(bytes, "<NOTES:", notesOf(country.empty() ? state : std::string_view(), number));
}

void appendMySide(std::string& bytes, std::string_view contact) {
    const std::string call = plainText(qso::myCall.of(contact));
    const std::string state = plainText(qso::myState.of(contact));
    const std::string_view country = countryOfState(state, call);
    appendField(bytes, "<RST_SENT:", plainText(qso::rstSent.of(contact)));
    appendField(bytes, "<STATION_CALLSIGN:", call);
    appendField(bytes, "<OPERATOR:", call);
    appendField(bytes, "<MY_STATE:", country.empty() ? std::string_view() : state);
    appendField(bytes, "<MY_DXCC:", country);
}

void appendContact(std::string& bytes, std::string_view contact,
                   const chrono::year_month_day& date) {
    const std::string call = plainText(qso::hisCall.of(contact));
    const int khz = kilohertz(qso::frequency.of(contact));
    appendField(bytes, "<CALL:", call);
    appendField(bytes, "<QSO_DATE:", adifDate(date));
    appendField(bytes, "<TIME_ON:", qso::time.of(contact));
    appendField(bytes, "<BAND:", bandName(khz));
    appendField(bytes, "<FREQ:", khz == 0 ? std::string() : megahertz(khz));
    appendField(bytes, "<MODE:", plainText(qso::mode.of(contact)));
    appendHisSide(bytes, contact, call);
    appendMySide(bytes, contact);
    appendMarker(bytes, contact);
    bytes += "<EOR>\r\n";
}

// The date of a contact that can be written; nothing when it has no call, date or time.
std::optional<chrono::year_month_day> dayToWrite(std::string_view contact) {
    if (trim(qso::hisCall.of(contact)).empty() || !readTime(qso::time.of(contact)))
        return {};
    return readDate(qso::date.of(contact));
}

} // namespace

// The sprints and the K3Y event are not in ADIF's list of contests: no CONTEST_ID.
StrictAdif strictAdif(const Contacts& contacts, std::string_view created) {
    StrictAdif file{"Contacts logged with Vantrel\r\n"};
    std::string& bytes = file.bytes;
    bytes.reserve((contacts.size() + 1) * typicalStrictRecord);
    appendField(bytes, "<ADIF_VER:", adifVersion);
    appendField(bytes, "<PROGRAMID:", programId);
    appendField(bytes, "<PROGRAMVERSION:", version);
    appendField(bytes, "<CREATED_TIMESTAMP:", created);
    bytes += "<EOH>\r\n";
    for (const std::string_view contact : contacts)
        if (const auto day = dayToWrite(contact)) {
            appendContact(bytes, contact, *day);
            ++file.written;
        }
    return file;
}

std::string creationTime(const LocalTime& local, std::string_view gmtOffset) {
    const auto utc = chrono::sys_days(chrono::year(local.year) / local.month / local.day) +
                     chrono::hours(local.hour + Integer16(numericValue(gmtOffset)).value()) +
                     chrono::minutes(local.minute);
    const auto day = chrono::floor<chrono::days>(utc);
    return adifDate(day) + ' ' + timeText(utc - day) + zeroPadded(local.second, 2);
}

std::string contactsWritten(const StrictAdifFile& file) {
    return std::to_string(file.written) + " WRITTEN" +
           (file.leftOut == 0
                ? ""
                : ", " + std::to_string(file.leftOut) + " LEFT OUT: NO CALL, DATE OR TIME");
}

StrictAdifFile exportStrictAdif(Files& files, const Clock& clock, std::string_view gmtOffset,
                                Log& log) {
    log.reread();
    const Contacts& contacts = log.contacts();
    const std::string name = strictAdifFileName(log.name());
    requireOtherThanLog(files, name, log.name());
    const StrictAdif file = strictAdif(contacts, creationTime(clock.now(), gmtOffset));
    files.rewrite(name, file.bytes);
    return {files.path(name), file.written, contacts.size() - file.written};
}

} // namespace vantrel
