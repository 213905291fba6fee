// SPDX-License-Identifier: MIT
#include "screens/main/entryview.h"

#include "output/score/scoretext.h"
#include "roster/rosterlookup.h"
#include "screens/main/frequency.h"
#include "shared/module1.h"

#include <algorithm>

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
std::string gainOf(const std::string& line, const Module1& shared, const LogTally& score,
                   GainText text) {
    return shared.settings.isK3y() ? "" : scoreGain(score.tally(), line, text);
}

// What the next Enter does with the contact searched for, or why LOG will refuse it.
Hint nextStep(const Draft& draft, const Module1& shared, const LogTally& score,
              const UtcTime& utc) {
    ContactFields contact;
    std::string mhz = draft.mhz;
    switch (enterFrequency(contact, mhz, shared.settings)) {
    case FrequencyCheck::outsideSprintBands:
        return {mhz + " IS NO SPRINT BAND: LOG REFUSES IT", HintTone::caution};
    case FrequencyCheck::unloggable:
        return {khzFault(contact.frequency, draft.mhz), HintTone::caution};
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
    const std::string gain = gainOf(*line, shared, score, GainText::full);
    return {"ENTER LOGS" + (gain.empty() ? "" : "   " + gain), HintTone::plain, spokenBoxes(draft)};
}

Hint searchedHint(const Draft& draft, const Module1& shared, const LogTally& score,
                  const UtcTime& utc) {
    const Hint next = nextStep(draft, shared, score, utc);
    const std::string_view known = lastContact(draft, shared.log.contacts());
    const std::string missing =
        known.empty() ? missingText(draft.boxes, draft.searched->hasRoster) : inLogText(known);
    if (draft.searched->outcome != LookupOutcome::notFound || missing.empty())
        return next;
    return joined({missing, HintTone::caution}, next.tone == HintTone::plain ? Hint() : next);
}

Hint hintOf(const Draft& draft, const Module1& shared, const LogTally& score, const UtcTime& utc) {
    const Hint found = draft.searched ? searchedHint(draft, shared, score, utc) : Hint();
    const Hint happened = draft.happened ? draft.happened->hint : Hint();
    return joined(joined(found, happened), takenBackHint(draft.takenBack));
}

} // namespace

std::string Draft::bandTag() const {
    return bandTagOf(completedFrequency(mhz));
}

std::string_view lastContact(const Draft& draft, const Contacts& contacts) {
    if (!draft.searched || draft.searched->outcome != LookupOutcome::notFound)
        return {};
    const std::string_view call = trim(draft.boxes.call);
    const auto last = std::find_if(contacts.rbegin(), contacts.rend(), [&](std::string_view line) {
        return trim(qso::hisCall.of(line)) == call;
    });
    for (std::size_t i = 0; last != contacts.rend() && i < lookupBoxes.size(); ++i)
        if (trim(draft.boxes.*lookupBoxes[i]).empty() && !trim(lookupColumns[i].of(*last)).empty())
            return *last;
    return {};
}

std::string markerOf(const Draft& draft, const Module1& shared) {
    return draft.searched && draft.searched->marked ? std::string(dupeMarker) : shared.marker;
}

EntryView viewOf(const Draft& draft, const Module1& shared, const LogTally& score,
                 const UtcTime& utc) {
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
            .hint = hintOf(draft, shared, score, utc),
            .worked = workedBefore(contacts, call, bandTag, workedColumns),
            .bands = bandTable(contacts, call, bandTag, shared.settings.isK3y()),
            .autoRead = autoReadText(hasRadio ? ReadOutcome::read : ReadOutcome::noRadio),
            .lastRead = draft.lastRead};
}

std::string gainOf(const Member& member, const Draft& draft, const Module1& shared,
                   const LogTally& score, const UtcTime& utc) {
    Entry entry{member.call, member.name, member.state, member.number};
    entry.frequency = draft.mhz;
    const auto line = contactLine(entry, shared.settings, noMarker, utc);
    return line ? gainOf(*line, shared, score, GainText::brief) : "";
}

} // namespace vantrel
