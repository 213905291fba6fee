// SPDX-License-Identifier: MIT
#include "screens/main/bandring.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace vantrel {

namespace {

// The sprint bands, in the order in which `up` walks them.
std::vector<const Band*> ring(bool up) {
    std::vector<const Band*> result;
    for (const Band& band : bands)
        if (!band.text.empty())
            result.push_back(&band);
    if (!up)
        std::reverse(result.begin(), result.end());
    return result;
}

const Band& nextBand(std::string_view bandText, bool up) {
    const std::vector<const Band*> order = ring(up);
    const auto now = std::find_if(order.begin(), order.end(),
                                  [&](const Band* band) { return band->text == bandText; });
    if (now == order.end())
        return bands.front();
    const auto next = std::next(now);
    return next == order.end() ? *order.front() : **next;
}

} // namespace

const Band& bandUp(std::string_view bandText) {
    return nextBand(bandText, true);
}

const Band& bandDown(std::string_view bandText) {
    return nextBand(bandText, false);
}

} // namespace vantrel
