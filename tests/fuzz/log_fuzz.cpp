// SPDX-License-Identifier: MIT
// Any bytes as a log, read by everything that only looks at contacts: table, worked stations,
// dupe check, bonus count, picture of the hours, print.
#include "fuzz/fuzztarget.h"
#include "log/log.h"
#include "log/qsoline.h"
#include "output/files/printlog.h"
#include "output/score/bonuscount.h"
#include "output/score/contactdate.h"
#include "output/score/contestpicture.h"
#include "screens/main/dupecheck.h"
#include "screens/main/workedbefore.h"

namespace vantrel::test {
namespace {

void isFound(std::string_view line, const Contacts& contacts) {
    const std::string_view call = trimRight(qso::hisCall.of(line));
    require(!duplicateOf(contacts, call, qso::bandTag.of(line)).empty(),
            "a contact is its own duplicate");
    require(length(call) < 2 || !workedBefore(contacts, call, 1000).empty(),
            "whoever is in the log was worked before");
    require(length(workedLine(line)) <= 70, "entries have at most one width");
    if (const auto day = contactDay(line))
        require(day->ok(), "a day is one of the calendar");
    if (const auto time = contactTime(line))
        require(time->hour >= 0 && time->hour < 24 && time->minute < 60, "a time is of a day");
}

} // namespace

void fuzz(Input& input) {
    const Contacts contacts = contactsIn(input.rest());
    for (const std::string_view line : contacts)
        isFound(line, contacts);
    require(contactsPerHour(contacts).size() <= pictureHours, "the picture has room");
    errorOf([&] { countBonusPoints(contacts); });
    require(logPrintLines("A.CBR", input.rest()).size() >= 2 + contacts.size(),
            "every contact is printed");
}

} // namespace vantrel::test
