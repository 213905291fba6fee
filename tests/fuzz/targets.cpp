// SPDX-License-Identifier: MIT
// Every reader of what others have written, and what must hold whatever that is. The fuzzing
// engine, or the replay of a corpus, calls one target with one input after the other; a property
// that does not hold ends the program.
#include "base/itemreader.h"
#include "fakes/failingcalls.h"
#include "fakes/fakeclock.h"
#include "fakes/fakeserialport.h"
#include "fakes/radios.h"
#include "k3y/k3ystation.h"
#include "k3y/standings.h"
#include "log/contactdate.h"
#include "log/logfile.h"
#include "logedit/boxes.h"
#include "logedit/contacttext.h"
#include "logedit/logedit.h"
#include "output/adif/adif.h"
#include "output/adif/strictadif.h"
#include "output/files/filetexts.h"
#include "output/score/ratesheet.h"
#include "output/score/scoretext.h"
#include "platform/files.h"
#include "rig/catlink.h"
#include "roster/rosterfiles.h"
#include "roster/rosterimport.h"
#include "roster/rosterlookup.h"
#include "screens/main/frequency.h"
#include "screens/main/qsoentry.h"
#include "screens/main/workedcalls.h"
#include "screens/start/startlists.h"
#include "shared/utctime.h"
#include "support/testing.h"

#include <cstdio>
#include <cstdlib>

#undef NDEBUG // a property is no debugging aid
#include <cassert>

namespace vantrel::test {
namespace {

// The input begins with texts that end at a tab each, so that inputs can be written by hand: takes
// the next one off.
std::string take(std::string& input) {
    const std::string text = input.substr(0, input.find('\t'));
    input.erase(0, text.size() + 1);
    return text;
}

// The first character of the next one as a choice: 0 to count - 1.
std::size_t choice(std::string& input, std::size_t count) {
    return static_cast<unsigned char>(take(input).c_str()[0]) % count;
}

// The run-time error that the step ended with, if it did. No other exception may leave it.
template <typename Step>
std::optional<ErrorCode> errorOf(Step step) {
    try {
        step();
        return std::nullopt;
    } catch (const RuntimeError& error) {
        return error.code();
    }
}

// A program folder; what an input leaves there the next one finds.
const TempFolder disk;
FailingCalls calls; // which do not wait for the disk
Files files(disk.string(), calls);

// A log, read by everything that only looks at contacts: table, worked stations, dupe check,
// bonus count, picture of the hours, standings, print.
void log(std::string input) {
    const Contacts contacts = contactsIn(input);
    for (const std::string_view line : contacts) {
        const std::string_view call = trimRight(qso::hisCall.of(line));
        assert(!duplicateOf(contacts, call, qso::bandTag.of(line)).empty()); // a contact is its own
        assert(length(call) < 2 || !workedBefore(contacts, call, "", 1000).empty());
        assert(length(workedLine(line)) <= 70);
        if (const auto day = readDate(qso::date.of(line)))
            assert(day->ok() && readDate(dateText(*day)) == day);
        if (const auto time = readTime(qso::time.of(line)))
            assert(timeText(*time) == qso::time.of(line));
    }
    assert(rateSheet(contacts).bars.size() <= rateSheetHours);
    errorOf([&] { countBonusPoints(contacts); });
    for (const Standings& standings : {areaStandings(contacts), regionStandings(contacts)})
        assert(standings.total() <= static_cast<int>(contacts.size())); // each counts once at most
    assert(logPrintLines("A.CBR", input).size() >= 2 + contacts.size());
}

// A log, scored by each contest's rules: figures that agree with each other, or why they end.
void score(std::string input) {
    constexpr std::string_view contests[] = {contestSks, contestSkse, contestWes, contestK3y};
    OperatingSettings settings;
    settings.contestCode = contests[choice(input, std::size(contests))];
    settings.bonusStation = take(input);
    const Contacts contacts = contactsIn(input);
    const Score score = computeScore(contacts, settings);
    assert(score.total.has_value() != score.stoppedBy.has_value());
    scoreReport(score, "A.CBR");
    if (score.stoppedBy)
        return;
    assert(*score.qsos == std::count_if(contacts.begin(), contacts.end(), std::not_fn(isDupe)));
    assert(*score.total - *score.bonusPoints == score.qsos->value() * score.multipliers->value());
    int sum = 0; // of what the bands brought
    for (const BandScore& band : bandScores(contacts, settings))
        sum += 1000 * band.qsos + band.newMultipliers;
    assert(sum == 1000 * score.qsos->value() + score.multipliers->value());
}

bool isPlain(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

// A log, exported as ADIF: whatever stands in it, every contact that a logger can take in is one
// record on a line of its own, in plain characters.
void adif(std::string input) {
    // The offset comes from the settings file, where somebody may have written anything.
    const std::string offset = take(input);
    std::string created = "20110616 001230";
    errorOf([&] { created = creationTime(FakeClock().now(), offset); });
    assert(created.size() == 15 && created[8] == ' ');

    const Contacts contacts = contactsIn(input);
    const std::string customary = adifText(contacts);
    assert(std::count(customary.begin(), customary.end(), '\n') ==
           static_cast<long>(contacts.size()) + 2);
    const std::string strictFile = strictAdif(contacts, created).bytes;
    const std::vector<std::string_view> strictLines = linesOf(strictFile);
    assert(strictLines.at(0).starts_with("Contacts") && strictLines.at(1).starts_with("<ADIF_VER"));
    auto next = strictLines.begin() + 2;
    for (const std::string_view line : contacts) {
        const std::string_view call = trim(qso::hisCall.of(line));
        if (call.empty() || !contactMinute(line)) // no logger could take it in
            continue;
        const std::string_view record = *next++;
        const std::string value =
            ":" + std::to_string(call.size()) + '>' + std::string(call) + " <";
        assert(!isPlain(call) || record.find(value) == 5);
        assert(isPlain(record) && record.starts_with("<CALL:") && record.ends_with("<EOR>"));
    }
    assert(next == strictLines.end());
}

// Anything typed into the boxes: a contact is refused, or it becomes one line of the log with
// every field in its columns, and every reader finds it there.
void contact(std::string input) {
    OperatingSettings settings;
    settings.contestCode = choice(input, 2) == 0 ? contestSks : contestK3y;
    settings.gmtOffset = offsetList()[choice(input, offsetList().size())].savedAs;
    const std::size_t tag = choice(input, k3yStations.size() + 1);
    const std::string marker(tag == k3yStations.size() ? dupeMarker : k3yStations[tag].marker);
    FakeClock clock;
    clock.time.day = 1 + static_cast<int>(choice(input, 31));
    Entry entry;
    for (std::string* text :
         {&settings.myCall, &settings.myName, &settings.myState, &settings.myNumber,
          &settings.contestText, &entry.call, &entry.name, &entry.state, &entry.number,
          &entry.rstSent, &entry.rstReceived, &entry.frequency})
        *text = take(input);
    if (errorOf([&] { settings = storedSettings(settings); }) || !canBeLogged(entry))
        return;
    const UtcTime utc = utcTime(clock.now(), settings.gmtOffset);
    const std::string mhz = frequencyAsEntered(entry.frequency);
    assert(frequencyAsEntered(mhz) == mhz);
    entry.frequency = completedFrequency(mhz);
    if (checkFrequency(entry.frequency, settings) != FrequencyCheck::good)
        return;
    const std::string line = vantrel::contactLine(entry, settings, marker, utc);
    for (std::string* box :
         {&entry.name, &entry.state, &entry.number, &entry.rstSent, &entry.rstReceived})
        *box = withoutSeparators(*box);
    const std::string khz(qso::frequency.of(line));
    assert(line ==
           contactLine({khz, utc.date, utc.time, settings.myCall, entry.rstSent, settings.myName,
                        settings.myState, settings.myNumber, upper(callAsEntered(entry.call)),
                        entry.rstReceived, entry.name, entry.state, entry.number, marker}));

    const std::string bytes = logHeader(settings.contestText, settings.myCall, settings.myNumber) +
                              line + "\r\n" + line + "\r\n";
    assert(contactsIn(bytes) == Contacts({line, line})); // and its header is none
    log(bytes);
    assert(isK3yDupe(contactsIn(bytes), qso::hisCall.of(line), qso::hisNumber.of(line),
                     qso::bandTag.of(line)));
}

// A box left alone is an empty text; a cleared one is a blank.
Boxes typedOver(Boxes boxes, std::string& input) {
    for (std::string& box : boxes)
        if (const std::string text = take(input); !text.empty())
            box = text;
    return boxes;
}

bool staysOneContact(std::string_view after, std::string_view before) {
    return isContact(after) && after.find('\n') == after.npos &&
           (before.find(',') != before.npos || after.find(',') == after.npos);
}

// Anything typed into the correction page and the editor over any contact line: the line stays a
// contact, and nothing changes when it is saved once more.
void logEdit(std::string input) {
    const std::string line = "QSO" + take(input);
    if (line.find('\n') != std::string::npos)
        return;
    assert(length(deletionCallText(line)) <= 33 && length(deletionDetailText(line)) <= 35);

    std::string forEditor = input;
    const Boxes boxes = tidiedBoxes(typedOver(editorBoxes(line), forEditor));
    assert(tidiedBoxes(boxes) == boxes);
    const std::string rebuilt = rebuiltLine(line, boxes);
    assert(staysOneContact(rebuilt, line) && length(rebuilt) == qso::dupeColumns.last());
    assert(qso::hisCall.of(rebuilt) == boxes[9]);

    const Boxes shown = correctionBoxes(take(input), line);
    const Boxes typed = typedOver(shown, input);
    const Correction result = corrected(line, shown, typed);
    assert(staysOneContact(result.line, line));
    assert(corrected(result.line, result.boxes, result.boxes).line == result.line);
}

// A radio's reply, in pieces: each family reads a frequency that can be logged, or none and says
// so.
void radioReply(std::string input) {
    const Radio& radio = radios().at(choice(input, radios().size()));
    const int pieces = 1 + static_cast<int>(choice(input, 40));
    FakeSerialPort port;
    for (int query = 0; query < radio.queries; ++query)
        port.answers.push_back({radio.query, input, 1, pieces});
    const auto [outcome, mhz, message] = readFrequency(settingsFor(radio), port);
    assert(port.waited() <= 2000 * radio.queries);
    assert((outcome == ReadOutcome::read) == !mhz.empty());
    assert(!mhz.empty() || !message.text.empty());
    const std::size_t point = mhz.find('.');
    assert(mhz.empty() || ((point == 1 || point == 2) && mhz.size() == point + 4 &&
                           khzField(mhz).find_first_not_of(" 0123456789") == mhz.npos));
}

// One of the club's lists, merged into any roster: merging it once more changes nothing.
void rosterImport(std::string input) {
    const MemberList list = choice(input, 2) == 0 ? MemberList::data : MemberList::members;
    const std::string before = take(input);
    disk.write(std::string(memberListFile), input);
    for (const std::string_view name : rosterFiles)
        disk.write(std::string(name), before);
    int added = 0;
    const auto import = [&] {
        added = importMembers(files, list, memberListFile, [](auto&) { return true; }).added;
        std::string merged;
        for (const std::string_view name : rosterFiles)
            merged += std::string(name) + '\n' + files.read(name);
        return merged;
    };
    const std::string once = import();
    assert(import() == once && added == 0);
    assert(!before.empty() || std::none_of(once.begin(), once.end(), [](char character) {
        return isControl(character) && character != '\r' && character != '\n';
    }));
}

// Any text in the call box, looked up in any roster file: a call is found where a plain look
// through the file finds it, a number yields a call of the file.
void rosterLookup(std::string input) {
    const std::string typed = take(input);
    for (const std::string_view name : rosterFiles)
        calls.remove((disk.path() / name).string());
    disk.write(std::string(rosterFiles.at(rosterFileOf(typed))), input);
    Roster roster(files);
    std::string plain = "nobody";
    for (ItemReader reader(input); plain == "nobody" && !reader.atEnd();)
        if (const std::string_view record = reader.next(); trim(member::call.of(record)) == typed)
            plain = left(record, member::width);
    const auto found = roster.findByCall(typed);
    assert((found ? found->call + found->number + found->name + found->state : "nobody") == plain);

    const auto call = roster.callOfNumber(typed);
    assert(call.has_value() == (countCapitals(upper(typed)) <= 1));
    assert(!call || input.find(*call) != input.npos);
    const std::string number = normalisedNumber(typed);
    assert(normalisedNumber(number) == number && numberKey(number) == numberKey(typed));
}

// A settings file, read and saved: a fault has its error, and what was saved can be read.
void settings(std::string input) {
    files.rewrite(configurationFile, input);
    const auto error = errorOf([] { saveSettings(files, storedSettings(loadSettings(files))); });
    assert(!error || *error == ErrorCode::invalidCall || *error == ErrorCode::inputPastEnd);
    assert(error || !errorOf([] { loadSettings(files); }));
}

constexpr std::pair<std::string_view, void (*)(std::string)> targets[] = {
    {"adif", adif},
    {"contact", contact},
    {"log", log},
    {"logedit", logEdit},
    {"radioreply", radioReply},
    {"rosterimport", rosterImport},
    {"rosterlookup", rosterLookup},
    {"score", score},
    {"settings", settings}};

} // namespace
} // namespace vantrel::test

// What the fuzzing engine calls, for the target that the environment names.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const char* const name = std::getenv("VANTREL_FUZZ_TARGET");
    for (const auto& [target, run] : vantrel::test::targets)
        if (name != nullptr && target == name) {
            run(std::string(data, data + size));
            return 0;
        }
    std::fputs("VANTREL_FUZZ_TARGET names no target\n", stderr);
    std::abort();
}
