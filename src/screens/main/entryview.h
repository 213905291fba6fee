// SPDX-License-Identifier: MIT
// The contact being entered as it stands, and all that the page shows of it: computed from that,
// the log, the settings and the clock, and from nothing else.
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

// Which of the lookup fields' boxes hold what the lookup of this call put there.
using LookedUp = std::array<bool, lookupFields.size()>;

struct Draft {
    // What SEARCH found of the call and, on this band, in the log.
    struct Searched {
        LookupOutcome outcome;
        bool hasRoster;
        bool nameMissing; // when the lookup was done
        std::string bandTag{};
        bool marked = false; // a duplicate, to be logged as one
    };
    // What was done last, while there is nothing in the boxes.
    struct Happened {
        Hint hint;
        std::string contact{}; // holds as long as this line
        bool inLog = true;     // is in the log, or is not
    };

    Entry boxes{};
    std::string mhz{};      // last entered, read or stepped to: band and lists follow it
    std::string bandText{}; // of the sprint band that it was on last
    LookedUp lookedUp{};
    bool broughtBack = false;           // was cleared before: SEARCH comes before LOG again
    std::optional<Searched> searched{}; // until the call is edited
    std::optional<Happened> happened{}; // until the next key
    std::string takenBack{};            // the K3Y tag that SEARCH took back
    std::string station{noStationLabel};
    bool autoReads = true;
    ReadOutcome lastRead = ReadOutcome::noRadio;

    std::string bandTag() const;
};

// The last contact with him whom SEARCH found in no roster, while it says something for a box that
// is empty.
std::string_view lastContact(const Draft& draft, const Contacts& contacts);

// What the contact will end in: "DUPE" as SEARCH found it, otherwise the tag chosen.
std::string markerOf(const Draft& draft, const Module1& shared);

struct EntryView {
    Entry boxes{};
    LookedUp lookedUp{}; // those boxes are slanted on a tinted ground
    std::string bandText{};
    bool onBand = true; // otherwise struck out: the frequency is on another
    std::string station{};
    std::string nextMarker{}; // "NEXT QSO: K3Y/EU"; empty while it ends in six blanks
    Hint hint{};
    std::vector<WorkedCall> worked{};
    BandTable bands{};
    std::string_view autoRead{};
    ReadOutcome lastRead{};
};

// What else than the draft it is computed from.
struct ViewContext {
    const Module1& shared;
    const LogTally& score;
    UtcTime utc;
};

EntryView viewOf(const Draft& draft, const ViewContext& context);

// What the member would add to the score if he were logged now; empty for nothing.
std::string gainOf(const Member& member, const Draft& draft, const ViewContext& context);

} // namespace vantrel
