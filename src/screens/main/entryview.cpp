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
    for (std::size_t i = 0; i < lookupFields.size(); ++i)
        if (const auto text = trim(draft.boxes.*lookupFields[i].box);
            draft.lookedUp[i] && !text.empty())
            words += (words.empty() ? "" : ", ") + std::string(text);
    return words;
}

// What logging these boxes would add to the score, empty in the event, which has none. Nothing when
// LOG would refuse them.
std::optional<std::string> gainIfLogged(Entry entry, std::string_view marker, const Draft& draft,
                                        const ViewContext& context, GainText text) {
    const OperatingSettings& settings = context.shared.settings;
    entry.frequency = completedFrequency(draft.mhz);
    if (!canBeLogged(entry) || checkFrequency(entry.frequency, settings) != FrequencyCheck::good)
        return std::nullopt;
    try {
        const std::string line = contactLine(entry, settings, marker, context.utc);
        return settings.isK3y() ? "" : scoreGain(context.score.tally(), line, text);
    } catch (const RuntimeError& error) {
        if (error.code() != ErrorCode::invalidCall)
            throw;
        return std::nullopt; // a setting is too wide: LOG says which
    }
}

// What the next Enter does after the search, or why LOG will refuse the contact.
Hint nextStep(const Draft& draft, const ViewContext& context) {
    const std::string mhz = completedFrequency(draft.mhz);
    const FrequencyCheck check = checkFrequency(mhz, context.shared.settings);
    if (check == FrequencyCheck::outsideSprintBands)
        return {mhz + " IS NO SPRINT BAND: LOG REFUSES IT", HintTone::caution};
    if (check == FrequencyCheck::unloggable)
        return {khzFault(khzField(mhz), draft.mhz), HintTone::caution};
    if (!isComplete(draft.boxes))
        return {"ENTER LOOKS HIM UP", HintTone::plain, spokenBoxes(draft)};
    const auto gain =
        gainIfLogged(draft.boxes, markerOf(draft, context.shared), draft, context, GainText::full);
    if (!gain)
        return {};
    return {"ENTER LOGS" + (gain->empty() ? "" : "   " + *gain), HintTone::plain,
            spokenBoxes(draft)};
}

Hint searchedHint(const Draft& draft, const ViewContext& context) {
    const Hint next = nextStep(draft, context);
    const std::string_view known = lastContact(draft, context.shared.log.contacts());
    const std::string missing =
        known.empty() ? missingText(draft.boxes, draft.searched->hasRoster) : inLogText(known);
    if (draft.searched->outcome != LookupOutcome::notFound || missing.empty())
        return next;
    return joined({missing, HintTone::caution}, next.tone == HintTone::plain ? Hint() : next);
}

Hint hintOf(const Draft& draft, const ViewContext& context) {
    const Hint found = draft.searched ? searchedHint(draft, context) : Hint();
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
    if (last == contacts.rend())
        return {};
    const bool saysMore = std::ranges::any_of(lookupFields, [&](const LookupField& field) {
        return trim(draft.boxes.*field.box).empty() && !trim(field.column.of(*last)).empty();
    });
    return saysMore ? *last : std::string_view();
}

std::string markerOf(const Draft& draft, const Module1& shared) {
    return draft.searched && draft.searched->marked ? std::string(dupeMarker) : shared.marker;
}

EntryView viewOf(const Draft& draft, const ViewContext& context) {
    const Module1& shared = context.shared;
    const Contacts& contacts = shared.log.contacts();
    const std::string_view call = trim(draft.boxes.call);
    const std::string bandTag = draft.bandTag();
    const std::string marker = markerOf(draft, shared);
    const bool hasRadio = draft.autoReads && shared.settings.hasRadio();
    return {.boxes = draft.boxes,
            .lookedUp = draft.lookedUp,
            .bandText = draft.bandText,
            .onBand = !bandTextOf(draft.mhz, "").empty(),
            .station = draft.station,
            .nextMarker = marker == noMarker ? "" : "NEXT QSO: " + marker,
            .hint = hintOf(draft, context),
            .worked = workedBefore(contacts, call, bandTag, workedColumns),
            .bands = bandTable(contacts, call, bandTag, shared.settings.isK3y()),
            .autoRead = autoReadText(hasRadio ? ReadOutcome::read : ReadOutcome::noRadio),
            .lastRead = draft.lastRead};
}

std::string gainOf(const Member& member, const Draft& draft, const ViewContext& context) {
    const Entry entry{member.call, member.name, member.state, member.number};
    return gainIfLogged(entry, noMarker, draft, context, GainText::brief).value_or("");
}

} // namespace vantrel
