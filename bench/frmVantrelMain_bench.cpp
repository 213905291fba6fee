// SPDX-License-Identifier: MIT
// The main page on a full log: from START to its paint, a key in the call box, its panel.
#include "output/score/score.h"
#include "roster/rosterfiles.h"
#include "screens/main/widgets/contestpanel.h"
#include "support/program.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <chrono>
#include <thread>

namespace {

using namespace vantrel;

// Five files at their capacity: 32,000 members.
void writeRoster(const bench::BenchFolder& folder) {
    for (std::size_t file = 0; file < rosterFiles.size(); ++file) {
        std::string bytes;
        for (int i = 0; i < rosterCapacities[file]; ++i)
            bytes += test::padded(std::string(1, "AKNWD"[file]) + std::to_string(i % 10) + "B" +
                                      std::to_string(i),
                                  10) +
                     test::padded(std::to_string(i), 10) + "NAME      MA \r\n";
        folder.write(std::string(rosterFiles[file]), bytes);
    }
}

void typing() {
    bench::Program program;
    writeRoster(program.folder);
    std::this_thread::sleep_for(std::chrono::milliseconds(2200)); // then it counts as unchanged
    program.screens.open(Screen::main);
    QWidget* page = bench::windowNamed("frmVantrelMain");
    auto* box = page->findChild<QLineEdit*>(QStringLiteral("Text2"));
    bench::waitUntilPainted(page);
    QApplication::processEvents(); // the roster is read behind the first paint
    const auto press = [&](int key, const QString& text) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(box, &event);
        QApplication::processEvents();
    };
    std::vector<double> times;
    for (int i = 0; i < 9; ++i) {
        for (const char letter : std::string("k1a12x"))
            times.push_back(bench::millisecondsOf([&] { press(0, QString(QLatin1Char(letter))); }));
        press(Qt::Key_Escape, {});
    }
    bench::printValue("a key in the call box, to painted lists", bench::median(times), "ms", 5);
    bench::printValue("the slowest of them", *std::max_element(times.begin(), times.end()), "ms",
                      5);
    times.clear();
    for (int i = 0; i < 9; ++i) {
        press(Qt::Key_Escape, {});
        box->setText(QStringLiteral("K1A1"));
        program.module.log.reread();
        QApplication::processEvents(); // the operator sees the contact in the list first
        times.push_back(bench::millisecondsOf([&] { press(0, QStringLiteral("2")); }));
    }
    bench::printValue("the first key after a change of the log", bench::median(times), "ms", 5);
    auto* panel = page->findChild<ContestPanel*>();
    times.clear();
    for (int i = 0; i < 9; ++i)
        times.push_back(bench::millisecondsOf([&] {
            const LogTally score(program.module.log, program.module.settings);
            panel->followLog(program.module.log, program.module.settings, score);
            QApplication::processEvents();
        }));
    bench::printValue("the panel after a contact", bench::median(times), "ms", 2);
}

} // namespace

int main(int argc, char** argv) {
    bench::useNoDisplay();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const auto showStartPage = [](bench::Program& program) {
        program.screens.open(Screen::start);
        bench::waitUntilPainted(bench::windowNamed("frmVantrelStart"));
    };
    const auto start = [](bench::Program&) {
        QWidget* page = bench::windowNamed("frmVantrelStart");
        page->findChild<QPushButton*>(QStringLiteral("Command2"))->click();
    };
    bench::printHead();
    bench::printValue("START to painted main page of 12,000",
                      bench::openingMilliseconds("frmVantrelMain", start, showStartPage), "ms",
                      100);
    typing();
    return 0;
}
