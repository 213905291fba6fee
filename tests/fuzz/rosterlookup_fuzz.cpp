// SPDX-License-Identifier: MIT
// Any bytes as a roster file, any text in the call box: the lookups find what a plain look
// through the file finds.
#include "base/fixedtext.h"
#include "base/itemreader.h"
#include "fuzz/fuzztarget.h"
#include "roster/rosterlookup.h"

namespace vantrel::test {
namespace {

// The columns of the first record that is wanted; "nobody" when there is none.
template <typename Wanted>
std::string firstRecord(std::string_view bytes, Wanted wanted) {
    for (ItemReader reader(bytes); !reader.atEnd();) {
        const std::string_view record = reader.next();
        if (wanted(record))
            return std::string(left(record, member::width));
    }
    return "nobody";
}

void findsByCall(Roster& roster, const std::string& bytes, const std::string& typed) {
    const auto found = roster.findByCall(typed);
    requireEqual(
        found ? found->call + found->number + found->name + found->state : "nobody",
        firstRecord(bytes, [&](auto record) { return trim(member::call.of(record)) == typed; }),
        "the first of that call is found");
}

void findsByNumber(Roster& roster, const std::string& bytes, const std::string& typed) {
    const NumberMatch match = roster.findByNumber(typed);
    require((match.outcome == NumberLookup::notANumber) == (countCapitals(upper(typed)) > 1),
            "only a call is no number");
    if (match.outcome == NumberLookup::notANumber)
        return;
    const std::string key = numberKey(upper(trim(typed)));
    const std::string record = firstRecord(bytes, [&](auto text) {
        return !key.empty() && midToEnd(text, member::number.first).starts_with(key);
    });
    requireEqual(match.outcome == NumberLookup::found ? match.call : "nobody",
                 left(record, member::call.width), "the first of that number is found");
}

} // namespace

void fuzz(Input& input) {
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
