// SPDX-License-Identifier: MIT
// The contact being entered as it stands, and all that the page shows of it: computed from that,
// the log and the settings, and from nothing else.
#pragma once

#include "k3y/k3ystation.h"
#include "rig/catlink.h"
#include "screens/main/hints.h"
#include "screens/main/qsoentry.h"
#include "screens/main/workedcalls.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

class LogTally;
struct Member;
struct Module1;
struct UtcTime;

// The boxes that a lookup fills.
inline constexpr std::array lookupBoxes{&Entry::name, &Entry::state, &Entry::number};
using LookupBoxes = std::array<bool, lookupBoxes.size()>;
// The same in a contact line.
inline constexpr std::array lookupColumns{qso::hisName, qso::hisState, qso::hisNumber};

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
    std::string mhz{};        // last entered, read or stepped to: band and lists follow it
    std::string bandText{};   // of the sprint band that it was on last
    LookupBoxes lookedUp{};   // which of the boxes hold what the lookup of this call put there
    bool broughtBack = false; // was cleared before: SEARCH comes before LOG again
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
    LookupBoxes lookedUp{}; // slanted on a tinted ground
    std::string bandText{};
    bool onBand = true; // otherwise struck out: the frequency is on another
    std::string station{};
    std::string nextMarker{};
    Hint hint{};
    std::vector<WorkedCall> worked{};
    BandTable bands{};
    std::string_view autoRead{};
    ReadOutcome lastRead{};
};

EntryView viewOf(const Draft& draft, const Module1& shared, const LogTally& score,
                 const UtcTime& utc);

// What the member would bring if he were logged now.
std::string gainOf(const Member& member, const Draft& draft, const Module1& shared,
                   const LogTally& score, const UtcTime& utc);

} // namespace vantrel
