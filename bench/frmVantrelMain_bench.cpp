// SPDX-License-Identifier: MIT
// From START to the painted main page on a full log.
#include "support/program.h"

#include <QPushButton>

int main(int argc, char** argv) {
    using namespace vantrel;
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
    return 0;
}
