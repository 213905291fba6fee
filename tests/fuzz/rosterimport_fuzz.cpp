// SPDX-License-Identifier: MIT
// Any bytes as one of the club's lists, merged into any roster: whoever is on the list is found
// afterwards, and merging it once more changes nothing.
#include "fakes/failingcalls.h"
#include "fuzz/fuzztarget.h"
#include "platform/files.h"
#include "roster/memberlist.h"
#include "roster/rosterimport.h"
#include "roster/rosterlookup.h"
#include "shared/itemreader.h"
#include "support/tempfolder.h"

#include <algorithm>

namespace vantrel::test {
namespace {

bool isCall(std::string_view call) {
    return !call.empty() && std::all_of(call.begin(), call.end(), [](char character) {
        return isDigit(character) || isCapital(character) || character == '/';
    });
}

ImportResult import(Files& files, MemberList list) {
    int lines = 0;
    ImportResult result = importMembers(files, list, memberListFile, [&](const ImportStep& step) {
        require(step.line == 0 || step.line == ++lines, "each line is told once");
        return true;
    });
    require(result.finished, "an import that nobody gives up is finished");
    require(result.added + result.fixed + result.skipped <= lines, "each line counts once");
    return result;
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
        std::string rosterFile;
        require(!isCall(call) || roster.findByCall(call, rosterFile).has_value(),
                "a member on the list is found");
    }
}

} // namespace
} // namespace vantrel::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantrel;
    using namespace vantrel::test;
    static const TempFolder folder;
    static FailingCalls calls;
    Input input(data, size);
    const MemberList list = input.choice(2) == 0 ? MemberList::data : MemberList::members;
    const std::string roster = input.text();
    const std::string bytes = input.rest();

    Files files(folder.string(), calls);
    for (const std::string_view name : rosterFiles)
        folder.write(std::string(name), roster);
    folder.write(std::string(memberListFile), bytes);
    import(files, list);
    const std::string first = rosterBytes(files);
    everyMemberIsFound(files, list, bytes);
    require(import(files, list).added == 0, "nobody is added twice");
    requireEqual(rosterBytes(files), first, "merging once more changes nothing");
    return 0;
}
