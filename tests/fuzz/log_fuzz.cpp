// SPDX-License-Identifier: MIT
// Any bytes as a log, read by everything that only looks at contacts: table, worked stations,
// dupe check, bonus count, picture of the hours, print.
#include "fuzz/fuzztarget.h"
#include "output/bonuscount.h"
#include "output/contactdate.h"
#include "output/contestpicture.h"
#include "output/printlog.h"
#include "platform/files.h"
#include "screens/main/dupecheck.h"
#include "screens/main/workedbefore.h"
#include "screens/main/workedstations.h"
#include "shared/qsoline.h"
#include "shared/qsotable.h"

#include <numeric>

namespace vantrel::test {
namespace {

bool isOneItem(std::string_view line) {
    return line.find(',') == std::string_view::npos;
}

void contactsSurviveBeingWritten(const QsoTable& table) {
    std::vector<std::string> lines;
    for (const std::string_view line : table.lines()) {
        require(isContact(line), "a contact begins as one");
        if (isOneItem(line)) // a quoted one need not be: nobody writes it
            lines.emplace_back(line);
    }
    QsoTable again;
    again.refill(joinLines(lines));
    require(std::equal(lines.begin(), lines.end(), again.lines().begin(), again.lines().end()),
            "contacts survive being written and read");
}

void contactsAreFound(const QsoTable& table) {
    for (const std::string_view line : table.lines()) {
        const std::string_view call = trimRight(qso::hisCall.of(line));
        require(isDuplicate(table, call, qso::bandTag.of(line)), "a contact is its own duplicate");
        require(length(call) < 2 || !workedBefore(table, call, 1000).empty(),
                "whoever is in the log was worked before");
        require(length(workedEntry(line)) <= 70, "entries have at most one width");
        if (const auto day = contactDay(line))
            require(day->ok(), "a day is one of the calendar");
        if (const auto time = contactTime(line))
            require(time->hour >= 0 && time->hour < 24 && time->minute < 60, "a time is of a day");
    }
}

void pictureIsOfTheseContacts(const QsoTable& table) {
    const std::vector<PictureHour> hours = contactsPerHour(table.lines());
    require(hours.size() <= pictureHours, "the picture has room");
    const int total =
        std::accumulate(hours.begin(), hours.end(), 0,
                        [](int sum, const PictureHour& hour) { return sum + hour.total(); });
    require(total <= table.count().value(), "no contact is drawn twice");
}

} // namespace
} // namespace vantrel::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantrel;
    using namespace vantrel::test;
    const std::string bytes(data, data + size);
    QsoTable table;
    table.refill(bytes);
    contactsSurviveBeingWritten(table);
    contactsAreFound(table);
    pictureIsOfTheseContacts(table);
    errorOf([&] { countBonusPoints(table.lines()); });
    require(logPrintLines("A.CBR", bytes).size() >= 2 + table.lines().size(),
            "every contact is printed");
    return 0;
}
