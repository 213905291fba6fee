// SPDX-License-Identifier: MIT
// Any bytes as a roster file, any text in the call box: the lookups find what a plain look
// through the file finds.
#include "fakes/failingcalls.h"
#include "fuzz/fuzztarget.h"
#include "platform/files.h"
#include "roster/rosterlookup.h"
#include "shared/fixedtext.h"
#include "shared/itemreader.h"
#include "support/tempfolder.h"

namespace vantrel::test {
namespace {

template <typename Wanted>
std::optional<std::string> firstRecord(std::string_view bytes, Wanted wanted) {
    for (ItemReader reader(bytes); !reader.atEnd();) {
        const std::string_view record = reader.next();
        if (wanted(record))
            return std::string(record);
    }
    return std::nullopt;
}

void findsByCall(Roster& roster, const std::string& bytes, const std::string& typed) {
    std::string rosterFile;
    const auto member = roster.findByCall(typed, rosterFile);
    const auto record = firstRecord(
        bytes, [&](std::string_view text) { return trim(member::call.of(text)) == typed; });
    require(member.has_value() == record.has_value(), "a lookup finds who is there");
    if (!record)
        return;
    requireEqual(member->number, member::number.of(*record), "the first of that call is taken");
    requireEqual(member->name, member::name.of(*record), "the first of that call is taken");
    requireEqual(member->state, member::state.of(*record), "the first of that call is taken");
}

void findsByNumber(Roster& roster, const std::string& bytes, const std::string& typed) {
    const NumberMatch match = roster.findByNumber(typed);
    if (match.outcome == NumberLookup::notANumber) {
        require(countCapitals(upper(typed)) > 1, "only a call is no number");
        return;
    }
    const std::string key = numberKey(upper(trim(typed)));
    const auto record = firstRecord(bytes, [&](std::string_view text) {
        return !key.empty() && midToEnd(text, member::number.first).starts_with(key);
    });
    require((match.outcome == NumberLookup::found) == record.has_value(),
            "a number finds who has it");
    if (record)
        requireEqual(match.call, member::call.of(*record), "the first of that number is taken");
}

void numbersSettle(const std::string& number) {
    const std::string normalised = normalisedNumber(number);
    requireEqual(normalisedNumber(normalised), normalised, "a number in its form keeps it");
    requireEqual(numberKey(normalised), numberKey(number), "and is looked for likewise");
}

} // namespace
} // namespace vantrel::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantrel;
    using namespace vantrel::test;
    static const TempFolder folder;
    static FailingCalls calls;
    Input input(data, size);
    const std::string typed = input.text();
    const std::string bytes = input.rest();
    for (const std::string_view name : rosterFiles)
        calls.remove((folder.path() / name).string());
    folder.write(std::string(rosterFiles.at(rosterFileOf(typed))), bytes);

    const Files files(folder.string(), calls);
    Roster roster(files);
    findsByCall(roster, bytes, typed);
    findsByNumber(roster, bytes, typed);
    numbersSettle(typed);
    return 0;
}
