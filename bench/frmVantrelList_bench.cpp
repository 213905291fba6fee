// SPDX-License-Identifier: MIT
// Opening the list screen on a full log: time to the painted list.
#include "support/program.h"

#include <cstdio>

int main(int argc, char** argv) {
    using namespace vantrel;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    constexpr double mostMilliseconds = 100;
    std::printf("%-44s %9.1f ms %12s %8s %5.0f ms\n", "list of 12,000, to painted list",
                bench::openingMilliseconds(Screen::list, "frmVantrelList"), "", "",
                mostMilliseconds);
    return 0;
}
