// SPDX-License-Identifier: MIT
#include "output/score/contestpicture.h"

#include "log/contactdate.h"
#include "log/qsoline.h"

#include <map>

namespace vantrel {

namespace chrono = std::chrono;

namespace {

constexpr chrono::hours shortLog{3};
constexpr chrono::minutes hour{60};
constexpr chrono::minutes shortStep{10};

using ContactsByBand = decltype(PictureBar::contacts);
using ContactsByMoment = std::map<UtcMinute, ContactsByBand>;

UtcMinute stepOf(UtcMinute moment, chrono::minutes step) {
    return moment - moment.time_since_epoch() % step;
}

// The contacts of each step, under its beginning.
ContactsByMoment bySteps(const ContactsByMoment& minutes, chrono::minutes step) {
    ContactsByMoment steps;
    for (const auto& [moment, counts] : minutes)
        for (std::size_t i = 0; i < counts.size(); ++i)
            steps[stepOf(moment, step)][i] += counts[i];
    return steps;
}

int minuteOfDay(UtcMinute moment) {
    return static_cast<int>((moment - chrono::floor<chrono::days>(moment)).count());
}

} // namespace

ContestPicture contestPicture(const Contacts& contacts) {
    ContactsByMoment minutes;
    for (const std::string_view contact : contacts)
        if (const auto moment = contactMinute(contact); moment && !isDupe(contact))
            ++minutes[*moment][bandIndexOf(qso::frequency.of(contact))];
    if (minutes.empty())
        return {};

    const UtcMinute first = minutes.begin()->first;
    const UtcMinute last = minutes.rbegin()->first;
    const bool isShort = last - first < shortLog;
    const chrono::minutes step = isShort ? shortStep : hour;
    ContactsByMoment steps = bySteps(minutes, step);
    if (isShort)
        for (UtcMinute moment = stepOf(first, step); moment < last; moment += step)
            steps[moment]; // a pause shows as bars of no height
    while (steps.size() > pictureHours)
        steps.erase(steps.begin());

    ContestPicture picture{static_cast<int>(step.count()), {}};
    UtcMinute expected = steps.begin()->first;
    for (const auto& [moment, counts] : steps) {
        picture.bars.push_back({minuteOfDay(moment), moment != expected, counts});
        expected = moment + step;
    }
    return picture;
}

} // namespace vantrel
