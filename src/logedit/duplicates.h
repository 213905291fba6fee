// SPDX-License-Identifier: MIT
// What a change of one contact does to the duplicates of a log.
#pragma once

#include <string>
#include <vector>

namespace vantrel {

// Tells each contact that the change made a duplicate of an earlier one on its band without the
// mark (it would count twice), that is one no longer, or that still has the mark though it repeats
// none any more (it would not count at all). A sentence each; the contact removed or changed is
// the first that differs. byNumber: in the event, equal calls with different member numbers are
// no duplicates.
std::vector<std::string> duplicateNews(const std::vector<std::string>& before,
                                       const std::vector<std::string>& after, bool byNumber);

} // namespace vantrel
