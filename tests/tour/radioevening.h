// SPDX-License-Identifier: MIT
// The tour's evening with a radio on the cable.
#pragma once

namespace vantrel::test {

class Stage;

// Chooses rig and port on the start page, works stations while the radio changes bands and
// takes its time to answer, and logs one more after it has been switched off.
void playRadioEvening(Stage& stage);

} // namespace vantrel::test
