// SPDX-License-Identifier: MIT
// What is made from a full log: the score, the ADIF files, the sorted roster.
#include "fakes/fakeclock.h"
#include "log/log.h"
#include "output/adif/adif.h"
#include "output/adif/strictadif.h"
#include "output/score/score.h"
#include "platform/files.h"
#include "platform/systemcalls.h"
#include "roster/rosterfiles.h"
#include "shared/settings.h"
#include "support/contacts.h"
#include "support/ratiotable.h"

#include <array>
#include <random>

namespace {

using namespace vantrel;

const std::string logName = "SKS061611.CBR";

// A weekend's log: members with four digits and their award, some twice on other bands.
std::string fullLog() {
    constexpr std::array<const char*, 5> awards{"T", "S", "C", "", "T"};
    constexpr std::array<const char*, 8> states{"MA", "NY", "TX", "ON", "DL", "OH", "G", "FL"};
    constexpr std::array<const char*, 6> frequencies{"14050", " 7045", " 3550",
                                                     "21050", "28050", " 1825"};
    std::mt19937 random(1);
    const auto pick = [&random](const auto& choices) { return choices[random() % choices.size()]; };
    std::string bytes = test::logHeaderLines;
    for (int i = 0; i < Log::capacity; ++i) {
        const auto member = random() % 900;
        bytes += test::contactLine({.frequency = pick(frequencies),
                                    .hisCall = "K" + std::to_string(member) + "AB",
                                    .hisState = pick(states),
                                    .hisNumber = std::to_string(1000 + member) + awards[member % 5],
                                    .marker = random() % 20 == 0 ? "DUPE" : "      "}) +
                 "\r\n";
    }
    return bytes;
}

// The score alone, and with the reading that opening its screen takes, against one reading of
// the log from nothing.
void scoring(const Files& files, const Log& log, OperatingSettings& settings) {
    static std::string bytes;
    static Contacts contacts;
    const auto read = [&files, &log] {
        bytes = files.read(log.name());
        contacts = contactsIn(bytes);
    };
    for (const std::string_view contest : {contestSks, contestSkse}) {
        const std::string name(contest);
        const auto score = [&, name] {
            settings.contestCode = name;
            benchmark::DoNotOptimize(computeScore(contacts, settings).total);
        };
        read();
        bench::pair(name + " score of 12,000, against reading them", 3, score, read);
        bench::single(name + " score of 12,000, read and computed", 5, [read, score] {
            read();
            score();
        });
    }
}

void exporting(const bench::BenchFolder& folder, Files& files, Log& log) {
    static const test::FakeClock clock;
    const auto bound = [&folder](const std::string& bytes) {
        return [&folder, bytes] {
            bench::bareRead(folder.path / logName);
            bench::bareDurableWrite(folder.path / "BOUND.ADI", bytes);
        };
    };
    bench::pair(
        "ADIF of 12,000", 2, [&] { exportAdif(files, log); }, bound(adifText(log.contacts())));
    bench::pair(
        "ADIF for other loggers of 12,000", 3, [&] { exportStrictAdif(files, clock, "0", log); },
        bound(strictAdif(log.contacts(), "20110616 001230").bytes));
}

void sorting(const bench::BenchFolder& folder, Files& files) {
    std::string unsorted;
    for (int i = 8000; i > 0; --i)
        unsorted += test::padded("K1A" + std::to_string(i), 10) +
                    test::padded(std::to_string(i * 7919 % 8000) + "T", 10) + "NAME      MA \r\n";
    const auto prepare = [&folder, unsorted] {
        for (const std::string_view name : rosterFiles)
            folder.write(std::string(name), unsorted);
    };
    bench::single(
        "sort of five files of 8,000", 200, [&files] { sortRosterFiles(files); }, prepare);
}

} // namespace

int main(int argc, char** argv) {
    const bench::BenchFolder folder;
    SystemCalls calls;
    Files files(folder.path.string(), calls);
    folder.write(logName, fullLog());
    Log log(files);
    log.open(logName);
    OperatingSettings settings;
    settings.bonusStation = "W4BON     ";
    scoring(files, log, settings);
    exporting(folder, files, log);
    sorting(folder, files);
    return bench::run(argc, argv);
}
