// SPDX-License-Identifier: MIT
// What follows a change of the log, on all three pages alike.
#pragma once

#include "logedit/logedit.h"

namespace vantrel {

class MainPage;
class Messages;

// Shows the change's notice, if it has one. When the change was made the QSO table, the
// worked-stations list and its file and the main page (if there is one) follow it; what fails
// there is shown. Returns whether the change was made.
bool reportChange(const ChangeResult& result, LogEdit& log, Messages& messages, MainPage* mainPage);

} // namespace vantrel
