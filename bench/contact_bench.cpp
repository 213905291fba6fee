// SPDX-License-Identifier: MIT
// Logging a contact, looking a member up, checking for duplicates.
#include "log/log.h"
#include "platform/files.h"
#include "platform/systemcalls.h"
#include "roster/rosterlookup.h"
#include "screens/main/workedcalls.h"
#include "support/contacts.h"
#include "support/ratiotable.h"

#include <cstdlib>

namespace {

using namespace vantrel;

const std::string logName = "SKS061611.CBR";

std::string call(int number) {
    return "K" + std::to_string(number % 10) +
           std::string(1, static_cast<char>('A' + number % 26)) + std::to_string(number);
}

std::string logOf(int contacts) {
    std::string bytes = test::logHeaderLines;
    for (int i = 0; i < contacts; ++i)
        bytes += test::contactLine({.hisCall = call(i)}) + "\r\n";
    return bytes;
}

std::string rosterOf(int members) {
    std::string bytes;
    for (int i = 0; i < members; ++i)
        bytes += test::padded(call(i), 10) + test::padded(std::to_string(i) + "T", 10) +
                 test::padded("NAME", 10) + "MA \r\n";
    return bytes;
}

// One contact more into a log that holds `contacts`; the log is cut back before each.
void logging(bench::BenchFolder& folder, Files& files, int contacts) {
    auto ourLog = std::make_shared<Log>(files);
    const std::string contact = test::contactLine({});
    const std::string log = logOf(contacts);
    const bool worked = contacts < Log::workedCapacity;
    const auto prepare = [&folder, ourLog, log] {
        folder.write(logName, log);
        folder.write(std::string(workedStationsFile), "");
        ourLog->open(logName);
    };
    const auto ours = [ourLog, contact] {
        std::ignore = ourLog->append(contact);
        ourLog->reread();
    };
    const auto bound = [&folder, contact, worked] {
        const std::string line = contact + "\r\n";
        bench::bareAppend(folder.path / logName, line);
        bench::bareRead(folder.path / logName);
        if (worked)
            bench::bareAppend(folder.path / workedStationsFile, workedLine(line) + "\r\n");
    };
    // A log of thousands is read before and after; that is under a millisecond.
    bench::pair("one contact into " + std::to_string(contacts), worked ? 1.5 : 3, ours, bound,
                prepare);
}

} // namespace

int main(int argc, char** argv) {
    bench::BenchFolder folder;
    SystemCalls calls;
    Files files(folder.path.string(), calls);

    for (const int contacts : {100, 999, 11999})
        logging(folder, files, contacts);

    constexpr int members = 8000;
    for (const int number : {2, 3, 4, 5})
        folder.write("SKSDB" + std::to_string(number) + ".TXT", rosterOf(members));
    // The first lookup reads the files, and so does each within two seconds of a change.
    bench::single("first lookup in a file of 8,000", 5, [&] {
        if (!Roster(files).findByCall(call(members - 1)))
            std::abort();
    });
    bench::single("the first key: calls like none of 32,000", 5,
                  [&] { benchmark::DoNotOptimize(Roster(files).partialMatches("QQQ", 8)); });

    const std::string log = logOf(Log::capacity);
    const Contacts contacts = contactsIn(log);
    bench::single("dupe check over 12,000", 1,
                  [&] { benchmark::DoNotOptimize(duplicateOf(contacts, "W1NOTHERE", "14")); });
    return bench::run(argc, argv);
}
