// SPDX-License-Identifier: MIT
// Any bytes as a roster file, any text in the call box: the lookups find what a plain look
// through the file finds.
#include "fuzz/fuzztarget.h"
#include "roster/rosterlookup.h"
#include "shared/fixedtext.h"
#include "shared/itemreader.h"

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
    if (record)
        requireEqual(member->number + member->name + member->state,
                     left(midToEnd(*record, member::number.first), 23),
                     "the first of that call is taken");
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

} // namespace

void fuzz(Input input) {
    const std::string typed = input.text();
    auto& [disk, calls, files] = fuzzFolder();
    for (const std::string_view name : rosterFiles)
        calls.remove((disk.path() / name).string());
    disk.write(std::string(rosterFiles.at(rosterFileOf(typed))), input.rest());
    Roster roster(files);
    findsByCall(roster, input.rest(), typed);
    findsByNumber(roster, input.rest(), typed);
    const std::string number = normalisedNumber(typed);
    requireEqual(normalisedNumber(number), number, "a number in its form keeps it");
    requireEqual(numberKey(number), numberKey(typed), "and is looked for likewise");
}

} // namespace vantrel::test
