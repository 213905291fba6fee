// SPDX-License-Identifier: MIT
// Anything typed into the boxes: a contact is refused, or it becomes one line of the log with
// every field in its columns, and every reader finds it there.
#include "fakes/fakeclock.h"
#include "fuzz/fuzztarget.h"
#include "k3y/dupecheckk3y.h"
#include "k3y/k3ytag.h"
#include "platform/files.h"
#include "screens/main/dupecheck.h"
#include "screens/main/frequency.h"
#include "screens/main/qsoentry.h"
#include "screens/main/workedstations.h"
#include "screens/start/startlists.h"
#include "shared/logfile.h"
#include "shared/module1.h"

namespace vantrel::test {
namespace {

struct Typed {
    Module1 module;
    FakeClock clock;
    Entry entry;
};

// False when START would not take these settings.
bool take(Input& input, Typed& typed) {
    OperatingSettings& settings = typed.module.settings;
    settings.contestCode = input.choice(2) == 0 ? contestSks : contestK3y;
    settings.gmtOffset = offsetList()[input.choice(offsetList().size())].stored;
    const std::size_t tag = input.choice(k3yTags.size() + 1);
    typed.module.marker = tag == k3yTags.size() ? dupeMarker : k3yTags[tag].marker;
    typed.clock.time.day = 1 + static_cast<int>(input.choice(31));
    settings.myCall = input.text();
    settings.myName = input.text();
    settings.myState = input.text();
    settings.myNumber = input.text();
    settings.contestText = input.text();
    // In the order of the entry's members.
    typed.entry = {input.text(), input.text(), input.text(), input.text(),
                   input.text(), input.text(), input.text()};
    return !errorOf([&] { settings = storedSettings(settings); });
}

// What a box's text looks like in its columns.
std::string inColumns(std::string_view text, Column column) {
    return fitLeft(withoutSeparators(text), column.width);
}

void everyFieldIsInItsColumns(const std::string& line, const Typed& typed) {
    const Entry& entry = typed.entry;
    const OperatingSettings& settings = typed.module.settings;
    const struct {
        Column column;
        std::string value;
    } fields[] = {
        {qso::mode, "CW"},
        {qso::date, typed.module.utc.date},
        {qso::time, typed.module.utc.time},
        {qso::myCall, fitLeft(settings.myCall, qso::myCall.width)},
        {qso::myName, settings.myName},
        {qso::myState, settings.myState},
        {qso::myNumber, settings.myNumber},
        {qso::hisCall, fitLeft(upper(trim(withoutSeparators(entry.call))), qso::hisCall.width)},
        {qso::rstSent, inColumns(entry.rstSent, qso::rstSent)},
        {qso::rstReceived, inColumns(entry.rstReceived, qso::rstReceived)},
        {qso::hisName, inColumns(entry.name, qso::hisName)},
        {qso::hisState, inColumns(entry.state, qso::hisState)},
        {qso::hisNumber, inColumns(entry.number, qso::hisNumber)},
        {qso::marker, typed.module.marker},
    };
    for (const auto& field : fields)
        requireEqual(field.column.of(line), field.value, "a field stands in its columns");
    require(length(line) == qso::marker.first - 1 + length(typed.module.marker),
            "the line ends with its marker");
}

void everyReaderFindsIt(const std::string& line, const Typed& typed) {
    const OperatingSettings& settings = typed.module.settings;
    QsoTable table;
    table.refill(logHeader(settings.contestText, settings.myCall, settings.myNumber) + line +
                 "\r\n" + line + "\r\n");
    require(table.count() == 2, "a log of two contacts has two, and its header is none");
    requireEqual(table.line(2), line, "a contact is read as it was written");
    const std::string_view bandTag = qso::bandTag.of(line);
    const std::string_view call = trim(qso::hisCall.of(line));
    require(isDuplicate(table, call, bandTag), "a logged contact is found by the dupe check");
    require(isK3yDupe(table, line), "a logged contact is found by the event's dupe check");
    require(length(workedEntry(line)) == (isDupe(line) ? 68 : 70), "entries have one width");
    require(workedEntry(line).find(',') == std::string::npos, "an entry is one item");
}

} // namespace
} // namespace vantrel::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantrel;
    using namespace vantrel::test;
    Input input(data, size);
    Typed typed;
    if (!take(input, typed) || !canBeLogged(typed.entry))
        return 0;
    Qso contact = contactFrom(typed.entry, typed.module, typed.clock);
    std::string mhz = frequencyAsEntered(typed.entry.frequency);
    requireEqual(frequencyAsEntered(mhz), mhz, "the frequency box settles at once");
    if (enterFrequency(contact, mhz, typed.module) != FrequencyCheck::good)
        return 0;
    const std::string line = assembleLine(contact);
    everyFieldIsInItsColumns(line, typed);
    everyReaderFindsIt(line, typed);
    return 0;
}
