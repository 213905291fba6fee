// SPDX-License-Identifier: MIT
// The start page's value lists: what each entry shows and what is stored for it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

struct ListEntry {
    std::string shown;
    std::string savedAs = shown;
};
using ValueList = std::vector<ListEntry>;

ValueList rigList();      // "None" and the rigs
ValueList portList();     // "None", "Com1" .. "Com10"
ValueList baudList();     // "None" and 8 rates
ValueList civList();      // "None" and an address for every Icom
ValueList offsetList();   // "-12" .. "12"
ValueList dupeModeList(); // "NO", "YES"

// The list's value for a saved offset: "5" for "05" and "+5". A text without digits is returned as
// it is.
std::string offsetByValue(std::string_view saved);

} // namespace vantrel
