// SPDX-License-Identifier: MIT
#include "screens/main/hints.h"

#include "log/bands.h"
#include "log/qsoline.h"
#include "screens/main/qsoentry.h"

#include <algorithm>

namespace vantrel {

namespace {

std::string fieldText(Column column, std::string_view contact) {
    return std::string(trim(column.of(contact)));
}

// "20 METERS"; the kHz where the page has no name for the band.
std::string bandWords(std::string_view contact) {
    const Band* band = bandOfKhz(qso::frequency.of(contact));
    if (band == nullptr || band->text.empty())
        return fieldText(qso::frequency, contact) + " kHz";
    return upper(trim(band->text));
}

std::string callBandTime(std::string_view contact) {
    return fieldText(qso::hisCall, contact) + ' ' + bandWords(contact) + ' ' +
           fieldText(qso::time, contact);
}

std::string callKhzTime(std::string_view contact) {
    return fieldText(qso::hisCall, contact) + ' ' + fieldText(qso::frequency, contact) + ' ' +
           fieldText(qso::time, contact);
}

} // namespace

Hint joined(const Hint& one, const Hint& other) {
    const std::string_view between = one.text.empty() || other.text.empty() ? "" : "   ";
    return {one.text + std::string(between) + other.text, std::max(one.tone, other.tone),
            one.filledIn + other.filledIn};
}

std::string spokenHint(const Hint& hint) {
    return hint.filledIn.empty() ? hint.text : hint.filledIn + ". " + hint.text;
}

std::string missingText(const Entry& boxes, bool hasRoster) {
    std::string missing;
    for (const LookupField& field : lookupFields)
        if (trim(boxes.*field.box).empty())
            missing += (missing.empty() ? "" : ", ") + std::string(field.name);
    if (missing.empty())
        return {};
    return hasRoster ? "NOT IN THE ROSTER: " + missing
                     : "NO ROSTER FILES: UPDATE THE DATABASE ON THE START PAGE";
}

std::string inLogText(std::string_view contact) {
    std::string text = "IN THE LOG:";
    for (const LookupField& known : lookupFields)
        if (!fieldText(known.column, contact).empty())
            text += ' ' + fieldText(known.column, contact);
    return text + " - SPACE FILLS IN";
}

Hint loggedHint(std::string_view contact, std::string_view repeated) {
    Hint hint{"LOGGED " + callKhzTime(contact)};
    for (const LookupField& known : lookupFields)
        if (fieldText(known.column, contact).empty()) {
            hint.text += std::string("  NO ") + known.name;
            hint.tone = HintTone::caution;
        }
    if (!repeated.empty()) {
        hint.text += "  REPEATS " + callBandTime(repeated);
        hint.tone = HintTone::alarm;
    }
    return hint;
}

Hint refusedHint(std::string_view logged) {
    return {"REFUSED: " + callBandTime(logged) + " IS IN THE LOG", HintTone::alarm};
}

Hint changedHint(ContactChange change, std::string_view contact) {
    return {(change == ContactChange::corrected ? "CORRECTED " : "DELETED ") +
            callKhzTime(contact)};
}

Hint takenBackHint(std::string_view tag) {
    if (tag.empty())
        return {};
    return {std::string(tag) + " TAKEN BACK BY SEARCH", HintTone::caution};
}

} // namespace vantrel
