// SPDX-License-Identifier: MIT
// The start page's value lists: what each entry shows and what is stored for it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

struct ListEntry {
    std::string shown;
    std::string stored;
};

// In list order; the first entry of each stands for "none chosen".
const std::vector<ListEntry>& rigList();      // 44
const std::vector<ListEntry>& portList();     // "None", "Com1" .. "Com10"
const std::vector<ListEntry>& baudList();     // 9
const std::vector<ListEntry>& civList();      // "None" and 28 addresses
const std::vector<ListEntry>& offsetList();   // "-12" .. "12"
const std::vector<ListEntry>& dupeModeList(); // "NO", "YES"

// Position (from 0) of the first entry stored as `value`; of the entry stored as
// `otherwise` when there is none.
int positionOf(const std::vector<ListEntry>& list, std::string_view value,
               std::string_view otherwise);

} // namespace vantrel
