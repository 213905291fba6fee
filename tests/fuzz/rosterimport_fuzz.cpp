// SPDX-License-Identifier: MIT
// Any bytes as one of the club's lists, merged into any roster: whoever is on the list is found
// afterwards, and merging it once more changes nothing.
#include "base/itemreader.h"
#include "fuzz/fuzztarget.h"
#include "roster/memberlist.h"
#include "roster/rosterimport.h"
#include "roster/rosterlookup.h"

#include <algorithm>

namespace vantrel::test {
namespace {

bool isCall(std::string_view call) {
    return !call.empty() && std::all_of(call.begin(), call.end(), [](char character) {
        return isDigit(character) || isCapital(character) || character == '/';
    });
}

ImportResult import(Files& files, MemberList list) {
    return importMembers(files, list, memberListFile, [](const ImportStep&) { return true; });
}

std::string rosterBytes(const Files& files) {
    std::string bytes;
    for (const std::string_view name : rosterFiles)
        bytes += std::string(name) + '\n' + files.read(name);
    return bytes;
}

void everyMemberIsFound(const Files& files, MemberList list, std::string_view bytes) {
    Roster roster(files);
    MemberListReader reader(list);
    for (LineReader lines(bytes); !lines.atEnd();) {
        if (reader.read(lines.next()) != ListLine::member)
            continue;
        require(length(reader.record()) == member::width, "a record has its columns");
        const std::string call(trim(member::call.of(reader.record())));
        require(!isCall(call) || roster.findByCall(call).has_value(),
                "a member on the list is found");
    }
}

} // namespace

void fuzz(Input& input) {
    const MemberList list = input.choice(2) == 0 ? MemberList::data : MemberList::members;
    const std::string roster = input.text();
    auto& [disk, calls, files] = fuzzFolder();
    for (const std::string_view name : rosterFiles)
        disk.write(std::string(name), roster);
    disk.write(std::string(memberListFile), input.rest());
    import(files, list);
    const std::string first = rosterBytes(files);
    everyMemberIsFound(files, list, input.rest());
    require(import(files, list).added == 0, "nobody is added twice");
    requireEqual(rosterBytes(files), first, "merging once more changes nothing");
}

} // namespace vantrel::test
