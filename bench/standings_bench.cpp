// SPDX-License-Identifier: MIT
// Both K3Y standings of a full log, and how what is done over the whole log grows with it.
#include "k3y/standings.h"
#include "log/log.h"
#include "output/adif/adif.h"
#include "output/score/score.h"
#include "platform/files.h"
#include "platform/systemcalls.h"
#include "screens/main/workedcalls.h"
#include "shared/settings.h"
#include "support/contacts.h"
#include "support/ratiotable.h"

#include <array>
#include <deque>

namespace {

using namespace vantrel;

std::string eventLog(int contacts) {
    constexpr std::array calls{"K3Y/5", "K3Y/KL7", "DL1ABC", "K3Y/0", "JA1XYZ"};
    constexpr std::array tags{"      ", "K3Y/EU", "      ", "K3Y/AS"};
    constexpr std::array frequencies{"14050", " 7040", "21050"};
    std::string bytes = test::logHeaderLines;
    for (std::size_t i = 0; i < static_cast<std::size_t>(contacts); ++i)
        bytes += test::contactLine({.frequency = frequencies[i % frequencies.size()],
                                    .hisCall = calls[i % calls.size()],
                                    .hisNumber = std::to_string(i % 300),
                                    .marker = tags[i % tags.size()]}) +
                 "\r\n";
    return bytes;
}

// Their screens read the log first: that is what they are measured by.
void bothStandings(const Files& files, const Log& log) {
    const auto read = [&] {
        const std::string bytes = files.read(log.name());
        benchmark::DoNotOptimize(contactsIn(bytes));
    };
    bench::pair(
        "standings by area of 12,000, against reading them", 2,
        [&] { benchmark::DoNotOptimize(areaStandings(log.contacts())); }, read);
    bench::pair(
        "standings by region of 12,000, against reading them", 2,
        [&] { benchmark::DoNotOptimize(regionStandings(log.contacts())); }, read);
}

void growth(Log& log, const std::string& contacts) {
    bench::single("opening a log of " + contacts, 100, [&] { log.open(log.name()); });
    bench::single("dupe check in " + contacts, 1, [&] {
        benchmark::DoNotOptimize(duplicateOf(log.contacts(), "W1NOTHERE", "14"));
    });
    bench::single("score of " + contacts, 5, [&] {
        benchmark::DoNotOptimize(computeScore(log.contacts(), OperatingSettings()));
    });
    bench::single("ADIF text of " + contacts, 20,
                  [&] { benchmark::DoNotOptimize(adifText(log.contacts())); });
}

} // namespace

int main(int argc, char** argv) {
    const bench::BenchFolder folder;
    SystemCalls calls;
    Files files(folder.path.string(), calls);
    std::deque<Log> logs;
    for (const int size : {100, 1000, Log::capacity}) {
        const std::string contacts = std::to_string(size);
        const std::string name = "K3Y" + contacts + ".CBR";
        folder.write(name, eventLog(size));
        logs.emplace_back(files).open(name);
        growth(logs.back(), contacts);
    }
    bothStandings(files, logs.back());
    return bench::run(argc, argv);
}
