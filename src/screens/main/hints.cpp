// SPDX-License-Identifier: MIT
#include "screens/main/hints.h"

#include "log/bands.h"
#include "log/qsoline.h"

namespace vantrel {

namespace {

std::string field(Column column, std::string_view contact) {
    return std::string(trim(column.of(contact)));
}

// "20 METERS"; the kHz where the page has no name for the band.
std::string bandName(std::string_view contact) {
    const Band* band = bandOfKhz(qso::frequency.of(contact));
    if (band == nullptr || band->text.empty())
        return field(qso::frequency, contact) + " kHz";
    return upper(trim(band->text));
}

} // namespace

Hint lookupHint(LookupOutcome outcome, std::string_view typed, bool hasRoster) {
    switch (outcome) {
    case LookupOutcome::found:
        return {"ENTER LOGS"};
    case LookupOutcome::callOfNumber:
        return {"ENTER LOOKS HIM UP"};
    case LookupOutcome::nobody:
        return {"NO MEMBER " + std::string(trim(typed)), HintTone::caution};
    case LookupOutcome::notFound:
        break;
    }
    return {hasRoster ? "NOT IN THE ROSTER: NAME, STATE, SKCC#"
                      : "NO ROSTER FILES: UPDATE THE DATABASE ON THE START PAGE",
            HintTone::caution};
}

std::string filledIn(LookupOutcome outcome, const Entry& entry) {
    if (outcome == LookupOutcome::callOfNumber)
        return std::string(trim(entry.call));
    if (outcome != LookupOutcome::found)
        return {};
    std::string words;
    for (const std::string& box : {entry.name, entry.state, entry.number})
        if (const std::string_view text = trim(box); !text.empty())
            words += (words.empty() ? "" : ", ") + std::string(text);
    return words;
}

std::string spokenHint(const Hint& hint) {
    return hint.filledIn.empty() ? hint.text : hint.filledIn + ". " + hint.text;
}

Hint loggedHint(std::string_view contact, std::string_view repeated) {
    Hint hint{"LOGGED " + field(qso::hisCall, contact) + ' ' + field(qso::frequency, contact) +
              ' ' + field(qso::time, contact)};
    const struct {
        Column column;
        const char* missing;
    } fields[] = {
        {qso::hisName, "  NO NAME"}, {qso::hisState, "  NO STATE"}, {qso::hisNumber, "  NO SKCC#"}};
    for (const auto& [column, missing] : fields) {
        if (!field(column, contact).empty())
            continue;
        hint.text += missing;
        hint.tone = HintTone::caution;
    }
    if (!repeated.empty()) {
        hint.text += "  REPEATS " + field(qso::hisCall, repeated) + ' ' + bandName(repeated) + ' ' +
                     field(qso::time, repeated);
        hint.tone = HintTone::alarm;
    }
    return hint;
}

Hint refusedHint(std::string_view logged) {
    return {"REFUSED: " + field(qso::hisCall, logged) + ' ' + bandName(logged) + ' ' +
                field(qso::time, logged) + " IS IN THE LOG",
            HintTone::alarm};
}

Hint takenBackHint(std::string_view marker) {
    return {std::string(marker) + " TAKEN BACK BY SEARCH", HintTone::caution};
}

std::string nextMarkerText(std::string_view marker) {
    return marker == noMarker ? "" : "NEXT QSO: " + std::string(marker);
}

} // namespace vantrel
