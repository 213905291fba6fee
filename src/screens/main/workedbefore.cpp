// SPDX-License-Identifier: MIT
#include "screens/main/workedbefore.h"

#include "log/bands.h"
#include "log/qsoline.h"

#include <algorithm>
#include <vector>

namespace vantrel {

namespace {

constexpr int fewestTyped = 2;
constexpr std::string_view more = "...";

struct Worked {
    std::string_view call;
    std::vector<std::string_view> bands;
};

// "20" of "20M"; the kHz themselves outside the bands.
std::string_view bandName(std::string_view line) {
    const std::string_view khz = qso::frequency.of(line);
    const Band* band = bandOfKhz(khz);
    return band == nullptr ? trim(khz) : band->label.substr(0, band->label.size() - 1);
}

std::vector<Worked> workedWith(const Contacts& contacts, std::string_view typed) {
    std::vector<Worked> result;
    for (const std::string_view line : contacts) {
        if (mid(line, qso::hisCall.first, length(typed)) != typed)
            continue;
        const std::string_view call = trim(qso::hisCall.of(line));
        auto entry = std::find_if(result.begin(), result.end(),
                                  [&](const Worked& worked) { return worked.call == call; });
        if (entry == result.end())
            entry = result.insert(result.end(), {call, {}});
        const std::string_view band = bandName(line);
        if (std::find(entry->bands.begin(), entry->bands.end(), band) == entry->bands.end())
            entry->bands.push_back(band);
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

std::string workedBefore(const Contacts& contacts, std::string_view typed, int columns) {
    if (length(typed) < fewestTyped)
        return {};
    std::string result;
    for (const Worked& worked : workedWith(contacts, typed)) {
        std::string next = result.empty() ? "" : "  ";
        next += textOf(worked);
        if (length(result) + length(next) > columns)
            return result + std::string(more);
        result += next;
    }
    return result;
}

} // namespace vantrel
