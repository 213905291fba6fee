// SPDX-License-Identifier: MIT
#include "screens/main/workedbefore.h"

#include "log/bands.h"
#include "log/qsoline.h"

#include <algorithm>
#include <utility>

namespace vantrel {

namespace {

constexpr int fewestTyped = 2;
constexpr std::size_t shortestEntry = 6; // "K1 20" and a blank
constexpr std::string_view between = "  ";

struct Worked {
    std::string_view call;
    std::vector<std::string_view> bands;
    bool dupe = false;
};

// "20" of "20M"; the kHz themselves outside the bands.
std::string_view bandName(std::string_view line) {
    const std::string_view khz = qso::frequency.of(line);
    const Band* band = bandOfKhz(khz);
    return band == nullptr ? trim(khz) : band->label.substr(0, band->label.size() - 1);
}

// The first `most` calls: no more are ever shown, and a key must not wait for thousands.
std::vector<Worked> workedWith(const Contacts& contacts, std::string_view typed,
                               std::string_view bandTag, std::size_t most) {
    std::vector<Worked> result;
    for (const std::string_view line : contacts) {
        if (mid(line, qso::hisCall.first, length(typed)) != typed)
            continue;
        const std::string_view call = trim(qso::hisCall.of(line));
        auto entry = std::find_if(result.begin(), result.end(),
                                  [&](const Worked& worked) { return worked.call == call; });
        if (entry == result.end() && result.size() == most)
            continue;
        if (entry == result.end())
            entry = result.insert(result.end(), {call, {}});
        const std::string_view band = bandName(line);
        if (std::find(entry->bands.begin(), entry->bands.end(), band) == entry->bands.end())
            entry->bands.push_back(band);
        entry->dupe = entry->dupe || qso::bandTag.of(line) == bandTag;
    }
    return result;
}

std::string textOf(const Worked& worked) {
    std::string text(worked.call);
    for (const std::string_view band : worked.bands)
        text += ' ' + std::string(band);
    return text;
}

} // namespace

std::vector<WorkedCall> workedBefore(const Contacts& contacts, std::string_view typed,
                                     std::string_view bandTag, int columns) {
    std::vector<WorkedCall> result;
    if (length(typed) < fewestTyped)
        return result;
    const auto most = static_cast<std::size_t>(columns) / shortestEntry + 1;
    int width = 0;
    for (const Worked& worked : workedWith(contacts, typed, bandTag, most)) {
        std::string text = textOf(worked);
        width += (result.empty() ? 0 : length(between)) + length(text);
        if (width > columns) {
            result.push_back({std::string(moreWorked), false});
            break;
        }
        result.push_back({std::move(text), worked.dupe});
    }
    return result;
}

} // namespace vantrel
