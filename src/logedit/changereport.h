// SPDX-License-Identifier: MIT
// What follows a change of the log, on all three pages alike.
#pragma once

#include "logedit/logedit.h"

namespace vantrel {

class Messages;

// Shows the change's notice, if it has one. When the change was made the open log
// follows it; what fails there is shown. Returns whether the change was made.
bool reportChange(const ChangeResult& result, LogEdit& log, Messages& messages);

} // namespace vantrel
