// SPDX-License-Identifier: MIT
#include "output/score/contestpicture.h"

#include "log/qsoline.h"
#include "output/score/contactdate.h"

#include <map>

namespace vantrel {

namespace chrono = std::chrono;

namespace {

using Hour = chrono::sys_time<chrono::hours>;
using ContactsByBand = decltype(PictureHour::contacts);

std::size_t bandIndex(std::string_view contact) {
    const Band* band = bandOfKhz(qso::bandTag.of(contact));
    return band == nullptr ? bands.size() : static_cast<std::size_t>(band - bands.data());
}

int hourOfDay(Hour hour) {
    return static_cast<int>((hour - chrono::floor<chrono::days>(hour)).count());
}

} // namespace

std::vector<PictureHour> contactsPerHour(const Contacts& contacts) {
    std::map<Hour, ContactsByBand> hours;
    for (const std::string_view contact : contacts) {
        const auto day = contactDay(contact);
        const auto time = contactTime(contact);
        if (day && time && !isDupe(contact))
            ++hours[chrono::sys_days(*day) + chrono::hours(time->hour)][bandIndex(contact)];
    }
    while (hours.size() > pictureHours)
        hours.erase(hours.begin());

    std::vector<PictureHour> picture;
    Hour expected = hours.empty() ? Hour() : hours.begin()->first;
    for (const auto& [hour, counts] : hours) {
        picture.push_back({hourOfDay(hour), hour != expected, counts});
        expected = hour + chrono::hours(1);
    }
    return picture;
}

} // namespace vantrel
