// SPDX-License-Identifier: MIT
#include "screens/main/entryview.h"

#include "output/score/scoretext.h"
#include "screens/main/frequency.h"
#include "shared/module1.h"

namespace vantrel {

namespace {

constexpr int workedColumns = 80;

// What the lookup has put into the boxes: "CLUB, IL, 5000S", or the call of a number.
std::string spokenBoxes(const Draft& draft) {
    if (draft.searched->outcome == LookupOutcome::callOfNumber)
        return std::string(trim(draft.boxes.call));
    std::string words;
    for (std::size_t i = 0; i < lookupBoxes.size(); ++i)
        if (const auto text = trim(draft.boxes.*lookupBoxes[i]); draft.lookedUp[i] && !text.empty())
            words += (words.empty() ? "" : ", ") + std::string(text);
    return words;
}

// Of the line as it would be logged; the event has no score.
std::string gainOf(const std::string& line, const Module1& shared) {
    if (shared.settings.isK3y())
        return {};
    const Contacts& contacts = shared.log.contacts();
    return scoreGain(contacts, computeScore(shared.log, shared.settings), line, shared.settings);
}

// What the next Enter does with the contact searched for, or why LOG will refuse it.
Hint nextStep(const Draft& draft, const Module1& shared, const UtcTime& utc) {
    ContactFields contact;
    std::string mhz = draft.mhz;
    switch (enterFrequency(contact, mhz, shared.settings)) {
    case FrequencyCheck::outsideSprintBands:
        return {mhz + " IS NO SPRINT BAND: LOG REFUSES IT", HintTone::caution};
    case FrequencyCheck::unloggable:
        return {khzFault(contact.frequency), HintTone::caution};
    case FrequencyCheck::good:
        break;
    }
    if (!isComplete(draft.boxes))
        return {"ENTER LOOKS HIM UP", HintTone::plain, spokenBoxes(draft)};
    Entry entry = draft.boxes;
    entry.frequency = mhz;
    const auto line = contactLine(entry, shared.settings, markerOf(draft, shared), utc);
    if (!line)
        return {};
    const std::string gain = gainOf(*line, shared);
    return {"ENTER LOGS" + (gain.empty() ? "" : "   " + gain), HintTone::plain, spokenBoxes(draft)};
}

Hint searchedHint(const Draft& draft, const Module1& shared, const UtcTime& utc) {
    const Hint next = nextStep(draft, shared, utc);
    const std::string missing = missingText(draft.boxes, draft.searched->hasRoster);
    if (draft.searched->outcome != LookupOutcome::notFound || missing.empty())
        return next;
    return joined({missing, HintTone::caution}, next.tone == HintTone::plain ? Hint() : next);
}

Hint hintOf(const Draft& draft, const Module1& shared, const UtcTime& utc) {
    const Hint hint = draft.searched   ? searchedHint(draft, shared, utc)
                      : draft.happened ? draft.happened->hint
                                       : Hint();
    return joined(hint, takenBackHint(draft.takenBack));
}

} // namespace

std::string Draft::bandTag() const {
    return bandTagOf(completedFrequency(mhz));
}

std::string markerOf(const Draft& draft, const Module1& shared) {
    return draft.searched && draft.searched->marked ? std::string(dupeMarker) : shared.marker;
}

EntryView viewOf(const Draft& draft, const Module1& shared, const UtcTime& utc) {
    const Contacts& contacts = shared.log.contacts();
    const std::string_view call = trim(draft.boxes.call);
    const std::string bandTag = draft.bandTag();
    const bool hasRadio = draft.autoReads && shared.settings.hasRadio();
    return {.boxes = draft.boxes,
            .lookedUp = draft.lookedUp,
            .bandText = draft.bandText,
            .onBand = !bandTextOf(draft.mhz, "").empty(),
            .station = draft.station,
            .nextMarker = nextMarkerText(markerOf(draft, shared)),
            .hint = hintOf(draft, shared, utc),
            .worked = workedBefore(contacts, call, bandTag, workedColumns),
            .bands = bandTable(contacts, call, bandTag, shared.settings.isK3y()),
            .autoRead = autoReadText(hasRadio ? ReadOutcome::read : ReadOutcome::noRadio),
            .lastRead = draft.lastRead};
}

} // namespace vantrel
