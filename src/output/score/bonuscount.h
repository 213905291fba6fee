// SPDX-License-Identifier: MIT
// Bonus points noted in the name field after a slash ("JOHN/25"), once per station.
#pragma once

#include "log/log.h"

namespace vantrel {

// The sum over a log's contact lines, duplicates included; the first contact with a slash
// decides for its station. Throws RuntimeError 9 at the 201st station with a slash, 6 when a
// value or the sum is beyond 32,767.
Integer16 countBonusPoints(const Contacts& contacts);

} // namespace vantrel
