// SPDX-License-Identifier: MIT
// The tour's evening in the K3Y event.
#pragma once

namespace vantrel::test {

class Stage;

// Opens a log of the event, works a DX event station under its tag, logs a duplicate, drops
// another, and looks at both pages of the standings.
void playK3yEvent(Stage& stage);

} // namespace vantrel::test
