// SPDX-License-Identifier: MIT
#include "screens/main/bandtable.h"

#include "log/bands.h"
#include "log/qsoline.h"

#include <array>

namespace vantrel {

namespace {

// The one call in the log that begins with the text; empty for none and for several.
std::string_view onlyCall(const Contacts& contacts, std::string_view typed) {
    std::string_view only;
    if (typed.empty())
        return only;
    for (const std::string_view contact : contacts) {
        const std::string_view call = trim(qso::hisCall.of(contact));
        if (!call.starts_with(typed) || call == only)
            continue;
        if (!only.empty())
            return {};
        only = call;
    }
    return only;
}

} // namespace

BandTable bandTable(const Contacts& contacts, std::string_view typed, std::string_view bandTag,
                    bool allBands) {
    const std::string_view call = onlyCall(contacts, typed);
    BandTable table{std::string(call), {}};
    std::array<int, bands.size()> counts{};
    std::array<bool, bands.size()> worked{};
    for (const std::string_view contact : contacts) {
        const Band* band = bandOfKhz(qso::bandTag.of(contact));
        if (band == nullptr)
            continue;
        const auto index = static_cast<std::size_t>(band - bands.data());
        counts[index] += isDupe(contact) ? 0 : 1;
        worked[index] = worked[index] || (!call.empty() && trim(qso::hisCall.of(contact)) == call);
    }
    for (std::size_t index = 0; index < bands.size(); ++index) {
        const Band& band = bands[index];
        if (!allBands && band.text.empty() && counts[index] == 0)
            continue;
        const bool present = band.bandTag == bandTag;
        const CallOnBand onBand = !worked[index] ? CallOnBand::notWorked
                                  : present      ? CallOnBand::dupe
                                                 : CallOnBand::worked;
        table.rows.push_back({std::string(band.label.substr(0, band.label.size() - 1)),
                              counts[index], present, onBand});
    }
    return table;
}

} // namespace vantrel
