// SPDX-License-Identifier: MIT
#include "screens/main/rate.h"

#include <algorithm>
#include <numeric>

namespace vantrel {

namespace {

constexpr int rateMinutes = 10;
constexpr int barMinutes = 5;

} // namespace

std::vector<UtcMinute> contactMinutes(const Contacts& contacts) {
    std::vector<UtcMinute> moments;
    moments.reserve(contacts.size());
    for (const std::string_view contact : contacts)
        if (const auto moment = contactMinute(contact))
            moments.push_back(*moment);
    return moments;
}

Rate rateAt(const std::vector<UtcMinute>& moments, UtcMinute now) {
    Rate rate;
    auto& bars = rate.perFiveMinutes;
    std::array<UtcMinute, std::tuple_size_v<decltype(rate.perFiveMinutes)>> firsts{};
    for (const UtcMinute moment : moments) {
        std::chrono::minutes since = now - moment;
        if (since.count() < 0) // its date was not rolled back where its hour was
            since += std::chrono::days(1);
        if (since.count() < 0)
            continue;
        const int ago = static_cast<int>(since.count());
        rate.minutesSinceLast = std::min(rate.minutesSinceLast.value_or(ago), ago);
        rate.lastTenMinutes += ago < rateMinutes ? 1 : 0;
        if (ago >= static_cast<int>(bars.size()) * barMinutes)
            continue;
        const std::size_t bar = bars.size() - 1 - static_cast<std::size_t>(ago / barMinutes);
        firsts[bar] = bars[bar] == 0 ? now - since : std::min(firsts[bar], now - since);
        ++bars[bar];
    }
    const auto best = std::ranges::max_element(bars);
    if (*best > 0)
        rate.bestSince = firsts[static_cast<std::size_t>(best - bars.begin())];
    return rate;
}

std::string rateText(const Rate& rate) {
    return std::to_string(rate.lastTenMinutes) + " (" +
           std::to_string(rate.lastTenMinutes * 60 / rateMinutes) + "/h)";
}

std::string lastText(const Rate& rate) {
    if (!rate.minutesSinceLast)
        return {};
    constexpr int shownInMinutes = 120;
    const int minutes = *rate.minutesSinceLast;
    return "LAST " + (minutes < shownInMinutes ? std::to_string(minutes) + " MIN AGO"
                                               : std::to_string(minutes / 60) + " H AGO");
}

std::string hourText(const Rate& rate) {
    const auto& bars = rate.perFiveMinutes;
    const std::string text =
        std::to_string(std::accumulate(bars.begin(), bars.end(), 0)) + " contacts in the last hour";
    if (!rate.bestSince)
        return text;
    const auto day = std::chrono::floor<std::chrono::days>(*rate.bestSince);
    return text + ", most at " + timeText(*rate.bestSince - day);
}

} // namespace vantrel
