// SPDX-License-Identifier: MIT
// Anything typed into the boxes: a contact is refused, or it becomes one line of the log with
// every field in its columns, and every reader finds it there.
#include "fakes/fakeclock.h"
#include "fuzz/fuzztarget.h"
#include "k3y/k3ystation.h"
#include "log/log.h"
#include "log/logfile.h"
#include "screens/main/dupecheck.h"
#include "screens/main/frequency.h"
#include "screens/main/qsoentry.h"
#include "screens/start/startlists.h"
#include "shared/settings.h"
#include "shared/utctime.h"
#include "support/contacts.h"

namespace vantrel::test {
namespace {

void everyReaderFindsIt(const std::string& line, const OperatingSettings& settings) {
    const std::string log = logHeader(settings.contestText, settings.myCall, settings.myNumber) +
                            line + "\r\n" + line + "\r\n";
    const Contacts contacts = contactsIn(log);
    require(contacts.size() == 2, "a log of two contacts has two, and its header is none");
    requireEqual(contacts.back(), line, "a contact is read as it was written");
    const std::string_view call = trim(qso::hisCall.of(line));
    require(!duplicateOf(contacts, call, qso::bandTag.of(line)).empty(), "the dupe check finds it");
    require(isK3yDupe(contacts, line), "the event's dupe check finds it");
    require(length(workedLine(line)) == (isDupe(line) ? 68 : 70), "entries have one width");
    require(workedLine(line).find(',') == std::string::npos, "an entry is one item");
}

} // namespace

void fuzz(Input& input) {
    OperatingSettings settings;
    settings.contestCode = input.choice(2) == 0 ? contestSks : contestK3y;
    settings.gmtOffset = offsetList()[input.choice(offsetList().size())].stored;
    const std::size_t tag = input.choice(k3yStations.size() + 1);
    const std::string marker(tag == k3yStations.size() ? dupeMarker : k3yStations[tag].marker);
    FakeClock clock;
    clock.time.day = 1 + static_cast<int>(input.choice(31));
    for (std::string* setting : {&settings.myCall, &settings.myName, &settings.myState,
                                 &settings.myNumber, &settings.contestText})
        *setting = input.text();
    Entry entry;
    for (std::string* box : {&entry.call, &entry.name, &entry.state, &entry.number, &entry.rstSent,
                             &entry.rstReceived, &entry.frequency})
        *box = input.text();

    if (errorOf([&] { settings = storedSettings(settings); }) || !canBeLogged(entry))
        return;
    const UtcTime utc = utcTime(clock.now(), settings.gmtOffset);
    ContactFields contact = contactFrom(entry, settings, marker, utc);
    std::string mhz = frequencyAsEntered(entry.frequency);
    requireEqual(frequencyAsEntered(mhz), mhz, "the frequency box settles at once");
    if (enterFrequency(contact, mhz, settings) != FrequencyCheck::good)
        return;
    const std::string line = assembleLine(contact);
    requireEqual(line,
                 contactLine({.frequency = contact.frequency,
                              .date = utc.date,
                              .time = utc.time,
                              .myCall = settings.myCall,
                              .rstSent = withoutSeparators(entry.rstSent),
                              .myName = settings.myName,
                              .myState = settings.myState,
                              .myNumber = settings.myNumber,
                              .hisCall = upper(callAsEntered(entry.call)),
                              .rstReceived = withoutSeparators(entry.rstReceived),
                              .hisName = withoutSeparators(entry.name),
                              .hisState = withoutSeparators(entry.state),
                              .hisNumber = withoutSeparators(entry.number),
                              .marker = marker}),
                 "every field stands in its columns");
    everyReaderFindsIt(line, settings);
}

} // namespace vantrel::test
