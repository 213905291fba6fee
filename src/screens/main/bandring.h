// SPDX-License-Identifier: MIT
// The ring of the six sprint bands that the band buttons walk.
#pragma once

#include "log/bands.h"

#include <string_view>

namespace vantrel {

// The next higher / lower band of the one whose text the band label shows; 160 m for
// anything else, and round the ring at its ends.
const Band& bandUp(std::string_view bandText);
const Band& bandDown(std::string_view bandText);

} // namespace vantrel
