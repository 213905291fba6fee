// SPDX-License-Identifier: MIT
#include "screens/main/pace.h"

#include "log/qsoline.h"
#include "shared/utctime.h"

#include <algorithm>
#include <numeric>

namespace vantrel {

namespace {

constexpr int rateMinutes = 10;
constexpr int barMinutes = 5;

} // namespace

std::vector<Moment> momentsOf(const Contacts& contacts) {
    std::vector<Moment> moments;
    moments.reserve(contacts.size());
    for (const std::string_view contact : contacts)
        if (const auto moment = contactMoment(contact))
            moments.push_back(*moment);
    return moments;
}

Pace paceOf(const std::vector<Moment>& moments, Moment now) {
    Pace pace;
    auto& bars = pace.perFiveMinutes;
    std::array<Moment, std::tuple_size_v<decltype(pace.perFiveMinutes)>> firsts{};
    for (const Moment moment : moments) {
        const int ago = std::max(0, static_cast<int>((now - moment).count()));
        pace.minutesSinceLast = std::min(pace.minutesSinceLast.value_or(ago), ago);
        pace.lastTenMinutes += ago < rateMinutes ? 1 : 0;
        if (ago >= static_cast<int>(bars.size()) * barMinutes)
            continue;
        const std::size_t bar = bars.size() - 1 - static_cast<std::size_t>(ago / barMinutes);
        firsts[bar] = bars[bar] == 0 ? moment : std::min(firsts[bar], moment);
        ++bars[bar];
    }
    const auto best = std::max_element(bars.begin(), bars.end());
    if (*best > 0)
        pace.bestSince = firsts[static_cast<std::size_t>(best - bars.begin())];
    return pace;
}

std::optional<Moment> momentOf(const UtcTime& utc) {
    std::string line = leftAligned("", qso::date.first - 1) + utc.date + ' ' + utc.time;
    return contactMoment(line);
}

std::string rateText(const Pace& pace) {
    return std::to_string(pace.lastTenMinutes) + " (" +
           std::to_string(pace.lastTenMinutes * 60 / rateMinutes) + "/h)";
}

std::string lastText(const Pace& pace) {
    if (!pace.minutesSinceLast)
        return {};
    return "LAST " + std::to_string(*pace.minutesSinceLast) + " MIN AGO";
}

std::string hourText(const Pace& pace) {
    const auto& bars = pace.perFiveMinutes;
    const std::string text =
        std::to_string(std::accumulate(bars.begin(), bars.end(), 0)) + " contacts in the last hour";
    if (!pace.bestSince)
        return text;
    const auto day = std::chrono::floor<std::chrono::days>(*pace.bestSince);
    const std::chrono::hh_mm_ss time(*pace.bestSince - day);
    return text + ", most at " + zeroPadded(static_cast<int>(time.hours().count()), 2) +
           zeroPadded(static_cast<int>(time.minutes().count()), 2);
}

} // namespace vantrel
