// SPDX-License-Identifier: MIT
// One read of a radio that answers at once: from opening the port to the band text, with the
// line time at its baud rate beside it; from the last byte's arrival to the parsed text; and one
// read with ten frames in front of the answer that nobody asked for.
#include "fakes/qt/ptyradio.h"
#include "fakes/radios.h"
#include "platform/files.h"
#include "platform/qt/qtdevices.h"
#include "platform/systemcalls.h"
#include "rig/catlink.h"
#include "support/ratiotable.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using namespace vantrel;

constexpr int reads = 50;
constexpr double mostForARead = 60;
constexpr double mostForTheText = 5;

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Milliseconds that the bytes take on a real line, which a pseudo-terminal does not have.
double lineTime(const test::Radio& radio) {
    const double baud = std::atof(radio.lineSettings.c_str());
    const double bits = radio.lineSettings.ends_with(",2") ? 11 : 10;
    const std::size_t bytes = radio.query.size() + radio.reply(14'025'000).size();
    return 1000 * bits * static_cast<double>(bytes) / baud;
}

void measure(const test::Radio& radio) {
    test::PtyRadio simulated(radio);
    const bench::BenchFolder folder;
    SystemCalls calls;
    const Files files(folder.path.string(), calls);
    std::filesystem::create_symlink(simulated.device(), folder.path / "com1");
    const std::unique_ptr<SerialPort> port = makeSerialPort(files);
    const OperatingSettings settings = test::settingsFor(radio);

    std::string strays = test::straysOf(radio).front();
    for (int times = strays == radio.query ? 1 : 10; times > 1; --times)
        strays += test::straysOf(radio).front();

    QElapsedTimer clock;
    qint64 answered = 0;
    std::string inFront;
    simulated.answer = [&, answer = simulated.answer](std::string_view query) {
        answered = clock.nsecsElapsed();
        return inFront + answer(query);
    };
    std::vector<double> whole;
    std::vector<double> text;
    std::vector<double> disturbed;
    for (int i = 0; i < 2 * reads; ++i) {
        inFront = i < reads ? "" : strays;
        clock.start();
        if (readFrequency(settings, *port).outcome != ReadOutcome::read)
            std::abort();
        const qint64 end = clock.nsecsElapsed();
        (i < reads ? whole : disturbed).push_back(static_cast<double>(end) / 1e6);
        if (i < reads)
            text.push_back(static_cast<double>(end - answered) / 1e6);
    }
    std::printf("%-16s %10.2f ms %6.0f ms %10.2f ms %6.0f ms %10.1f ms %10.2f ms %6.0f ms\n",
                radio.name.c_str(), median(whole), mostForARead, median(text), mostForTheText,
                lineTime(radio), median(disturbed), mostForARead);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    std::printf("%-16s %13s %9s %13s %9s %13s %13s %9s\n", "radio", "one read", "at most",
                "last byte", "at most", "line time", "ten strays", "at most");
    for (const test::Radio& radio : test::radios())
        measure(radio);
    return 0;
}
