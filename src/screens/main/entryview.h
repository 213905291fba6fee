// SPDX-License-Identifier: MIT
// Draft: the state of the contact being entered. EntryView: all that the page shows of it, computed
// from the draft, the log, the settings and the clock alone.
#pragma once

#include "k3y/k3ystation.h"
#include "rig/catlink.h"
#include "screens/main/hints.h"
#include "screens/main/qsoentry.h"
#include "screens/main/workedcalls.h"
#include "shared/utctime.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

class LogTally;
struct Member;
struct Module1;

// For each of the lookup fields: whether its box still holds what was filled in for this call.
using LookedUp = std::array<bool, lookupFields.size()>;

struct Draft {
    // What SEARCH found: the call in the roster, and a duplicate on this band in the log.
    struct Searched {
        LookupOutcome outcome;
        bool hasRoster;
        bool nameMissing; // after the lookup, whatever was typed since
        std::string bandTag{};
        bool marked = false; // a duplicate, to be logged as one
    };
    // What the hint line says of the last thing done, until the next key.
    struct Happened {
        Hint hint;
        std::string contact{}; // the line it is about; empty: it is about none
        bool inLog = true; // the hint holds while the line is in the log; false: while it is not
    };

    Entry boxes{};
    std::string mhz{};      // last entered, read or stepped to: band and lists follow it
    std::string bandText{}; // the last sprint band it was on
    LookedUp lookedUp{};
    bool broughtBack = false;           // Enter searches before it logs, though it is complete
    std::optional<Searched> searched{}; // until the call is edited
    std::optional<Happened> happened{}; // until the next key
    std::string takenBack{};            // the K3Y tag that SEARCH took back
    std::string station{noStationLabel};
    bool autoReads = true;
    ReadOutcome lastRead = ReadOutcome::noRadio;

    std::string bandTag() const;
};

// His last contact, when SEARCH found him in no roster and the contact can fill an empty box.
// Empty otherwise.
std::string_view lastContact(const Draft& draft, const Contacts& contacts);

// What the contact's line will end in: "DUPE" when SEARCH found one, otherwise the K3Y tag chosen,
// or six blanks.
std::string markerOf(const Draft& draft, const Module1& shared);

struct EntryView {
    Entry boxes{};
    LookedUp lookedUp{}; // these boxes are shown in italics on a tint
    std::string bandText{};
    bool onBand = true; // false: shown struck out, since the frequency is on no sprint band
    std::string station{};
    std::string nextMarker{}; // "NEXT QSO: K3Y/EU"; empty while it ends in six blanks
    Hint hint{};
    std::vector<WorkedCall> worked{};
    BandTable bands{};
    std::string_view autoRead{};
    ReadOutcome lastRead{};
};

// What the view is computed from besides the draft.
struct ViewContext {
    const Module1& shared;
    const LogTally& score;
    UtcTime utc;
};

EntryView viewOf(const Draft& draft, const ViewContext& context);

// What the member would add to the score if he were logged now; empty for nothing.
std::string gainOf(const Member& member, const Draft& draft, const ViewContext& context);

} // namespace vantrel
