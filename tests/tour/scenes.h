// SPDX-License-Identifier: MIT
// The tour's scenes, in the order in which they are played, and whom the operator works.
#pragma once

#include "support/contacts.h"

#include <string>

namespace vantrel::test {

class Stage;

// From the empty start page through a sprint of a dozen contacts to the main page on its log.
void playContest(Stage& stage);
// Then score and bonus count, ADIF files, print and lists.
void playAfterContest(Stage& stage);
// Then roster import, correction and undo, deletion, editor, backup.
void playUpkeep(Stage& stage);
// A log of the K3Y event: a DX event station under its tag, a duplicate logged, another
// dropped, both pages of the standings.
void playK3yEvent(Stage& stage);
// An evening with a radio on the cable that changes bands and takes its time to answer.
void playRadioEvening(Stage& stage);

inline constexpr const char* startPage = "frmVantrelStart";
inline constexpr const char* mainPage = "frmVantrelMain";
inline constexpr const char* filesPage = "frmVantrelFiles";
inline const std::string contestLog = "SKS061611.CBR";

struct Station {
    std::string call;
    std::string name;
    std::string state;
    std::string number;
    bool isMember = true; // in the roster that writeRoster() makes
};
inline const Station joe{"K1ABC", "JOE", "CT", "0123T"};
inline const Station club{"K9SKC", "CLUB", "IL", "5000S"};
inline const Station ann{"N4XYZ", "ANN", "NC", "8123C"};
inline const Station klaus{"DL1QRS", "KLAUS", "DL", "9010"};
inline const Station bob{"W5NEW", "BOB", "TX", "NONE", false};
inline const Station sue{"VE3ABC", "SUE", "ON", "4411T", false};
inline const Station ian{"G4AAA/P", "IAN", "G", "77S", false};

void writeRoster(const Stage& stage);

// What the log must gain by a contact.
inline std::string contactWith(const Station& station, const std::string& khz = "14050",
                               const std::string& marker = "      ") {
    return contactLine({.frequency = khz,
                        .hisCall = station.call,
                        .hisName = station.name,
                        .hisState = station.state,
                        .hisNumber = station.number,
                        .marker = marker}) +
           "\r\n";
}

} // namespace vantrel::test
