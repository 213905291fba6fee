// SPDX-License-Identifier: MIT
// The item that ADIF files are made of: "<NAME:4>JOHN".
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

// Appends the value's length (0 to 99), `>` and the value to what begins the item, "<NAME:".
void appendAdifItem(std::string& bytes, std::string_view head, std::string_view value);

// Appends the length and `>` alone.
void appendAdifLength(std::string& bytes, int length);

} // namespace vantrel
