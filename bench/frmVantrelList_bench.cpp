// SPDX-License-Identifier: MIT
// Opening the list screen on a full log: time to the painted list.
#include "support/program.h"
#include "support/table.h"

int main(int argc, char** argv) {
    using namespace vantrel;
    bench::useNoDisplay();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    bench::printHead();
    bench::printValue(
        "list of 12,000, to painted list",
        bench::openingMilliseconds(
            "frmVantrelList",
            [](bench::Program& program) { program.screens.openList(ListedFile::log); },
            [](bench::Program& program) { program.module.log.open(bench::fullLogName); }),
        "ms", 100);
    return 0;
}
