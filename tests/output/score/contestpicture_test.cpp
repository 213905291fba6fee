// SPDX-License-Identifier: MIT
#include "base/fixedtext.h"
#include "output/score/contacts.h"
#include "output/score/contestpicture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

using ::testing::ElementsAre;

// "00Z 40M:1 20M:2", a break before it as "... ".
std::vector<std::string> shown(const std::vector<std::string>& lines) {
    std::vector<std::string> result;
    for (const PictureHour& hour : contactsPerHour(views(lines))) {
        std::string text = (hour.afterBreak ? "... " : "") + zeroPadded(hour.hour, 2) + 'Z';
        for (std::size_t i = 0; i < hour.contacts.size(); ++i)
            if (hour.contacts[i] != 0)
                text += ' ' + (i < bands.size() ? std::string(bands[i].label) : "other") + ':' +
                        std::to_string(hour.contacts[i]);
        result.push_back(text);
    }
    return result;
}

TEST(ContestPicture, ContactsPerHourAndBandInTimeOrder) {
    EXPECT_THAT(shown({line({.date = "07-01-2011", .time = "0000"}), // after a month end
                       line({.date = "2011-06-30", .time = "2359"}),
                       line({.frequency = "7040", .date = "2011-06-30", .time = "2300"}),
                       line({.date = "2011-06-30", .time = "2301"}),
                       line({.frequency = "50125", .date = "2011-06-30", .time = "0659"}),
                       line({.date = "2011-06-30", .time = "2302", .marker = "DUPE"}),
                       // No dates or times of day:
                       line({.date = "2011-13-01"}), line({.date = "0000-01-01"}),
                       line({.time = "2400"}), line({.time = "12 0"}), "QSO: 14050 CW"}),
                ElementsAre("06Z other:1", "... 23Z 40M:1 20M:2", "00Z 20M:1"));
}

TEST(ContestPicture, TheLastFortyEightHoursWithContacts) {
    std::vector<std::string> lines;
    for (int i = 0; i < 49; ++i)
        lines.push_back(line({.date = "2011-06-" + std::to_string(10 + i / 24),
                              .time = zeroPadded(i % 24, 2) + "00"}));
    EXPECT_EQ(shown(lines).size(), 48U);
    EXPECT_EQ(shown(lines).front(), "01Z 20M:1");
}

} // namespace
} // namespace vantrel::test
