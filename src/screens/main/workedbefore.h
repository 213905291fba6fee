// SPDX-License-Identifier: MIT
// Who was worked before, while the call is still being typed.
#pragma once

#include "log/log.h"

#include <string>
#include <string_view>

namespace vantrel {

// The logged calls that begin with what is typed, each with the bands it was worked on, in
// the order of the log: "K1ABC 20 40  K1ABD 80". Empty for fewer than two characters. At most
// as many calls as fit `columns` characters; "..." stands for the rest.
std::string workedBefore(const Contacts& contacts, std::string_view typed, int columns);

} // namespace vantrel
