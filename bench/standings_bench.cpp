// SPDX-License-Identifier: MIT
// Both K3Y standings of a full log, and how what is done over the whole log grows with it.
#include "k3y/standings.h"
#include "log/logfile.h"
#include "output/adif/adif.h"
#include "output/score/score.h"
#include "platform/files.h"
#include "platform/systemcalls.h"
#include "screens/main/dupecheck.h"
#include "screens/main/qsoentry.h"
#include "shared/module1.h"
#include "support/contacts.h"
#include "support/ratiotable.h"

#include <array>

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
void bothStandings(Module1& module, const Files& files) {
    const auto read = [&] { loadLog(files, module.settings.logFileName, module.qsoTable); };
    bench::pair(
        "standings by area of 12,000, against reading them", 2,
        [&] { benchmark::DoNotOptimize(areaStandings(module.qsoTable)); }, read);
    bench::pair(
        "standings by region of 12,000, against reading them", 2,
        [&] { benchmark::DoNotOptimize(regionStandings(module.qsoTable)); }, read);
}

void growth(Module1& module, Files& files, const std::string& contacts) {
    bench::single("opening a log of " + contacts, 100, [&] { openLog(module, files); });
    bench::single("dupe check in " + contacts, 1, [&] {
        benchmark::DoNotOptimize(isDuplicate(module.qsoTable, "W1NOTHERE", "14"));
    });
    bench::single("score of " + contacts, 5, [&] {
        benchmark::DoNotOptimize(computeScore(module.qsoTable.lines(), module.settings));
    });
    bench::single("ADIF text of " + contacts, 20,
                  [&] { benchmark::DoNotOptimize(adifText(module.qsoTable.lines())); });
}

} // namespace

int main(int argc, char** argv) {
    const bench::BenchFolder folder;
    SystemCalls calls;
    Files files(folder.path.string(), calls);
    std::array<Module1, 3> modules;
    constexpr std::array sizes{100, 1000, QsoTable::capacity};
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        const std::string contacts = std::to_string(sizes[i]);
        modules[i].settings.logFileName = "K3Y" + contacts + ".CBR";
        folder.write(modules[i].settings.logFileName, eventLog(sizes[i]));
        openLog(modules[i], files);
        growth(modules[i], files, contacts);
    }
    bothStandings(modules.back(), files);
    return bench::run(argc, argv);
}
