// SPDX-License-Identifier: MIT
// Opening the main page on a full log: time to the painted list, and the memory of the whole
// process beside that of a window with one text box that links the same libraries.
#include "support/program.h"

#include <QLineEdit>
#include <QProcess>

#include <cstdio>
#include <fstream>

namespace {

using namespace vantrel;
using bench::Program;

constexpr double mostMilliseconds = 100;
constexpr double mostMemory = 1.5;

// Resident memory of this process in kB.
long residentMemory() {
    std::ifstream status("/proc/self/status");
    std::string word;
    long value = 0;
    while (status >> word)
        if (word == "VmRSS:")
            status >> value;
    return value;
}

void printMemoryOf(const QString& what) {
    if (what == QLatin1String("window")) {
        QLineEdit window;
        window.show();
        QCoreApplication::processEvents();
        std::printf("%ld\n", residentMemory());
        return;
    }
    Program program;
    program.screens.open(Screen::main);
    QCoreApplication::processEvents();
    std::printf("%ld\n", residentMemory());
}

double memoryInAProcessOfItsOwn(const QString& what) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--memory"), what});
    process.waitForFinished();
    return process.readAllStandardOutput().trimmed().toDouble() / 1024;
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (argc == 3 && std::string(argv[1]) == "--memory") {
        printMemoryOf(QString::fromLocal8Bit(argv[2]));
        return 0;
    }
    const double opening = bench::openingMilliseconds(Screen::main, "frmVantrelMain");
    const double program = memoryInAProcessOfItsOwn(QStringLiteral("program"));
    const double window = memoryInAProcessOfItsOwn(QStringLiteral("window"));

    std::printf("%-44s %12s %12s %8s %8s\n", "subject", "ours", "bound", "ratio", "at most");
    std::printf("%-44s %9.1f ms %12s %8s %5.0f ms\n", "main page on 12,000, to painted list",
                opening, "", "", mostMilliseconds);
    std::printf("%-44s %9.1f MB %9.1f MB %8.2f %8.1f\n", "memory on 12,000, against one text box",
                program, window, program / window, mostMemory);
    return 0;
}
