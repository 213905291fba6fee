// SPDX-License-Identifier: MIT
// Opening the main page on a full log: time to the painted list, and the memory of the whole
// process beside that of a window with one text box that links the same libraries.
#include "app/appscreens.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "platform/qt/qteventloop.h"
#include "platform/qt/qtlauncher.h"
#include "platform/qt/qtmessages.h"
#include "platform/qt/qtprinter.h"
#include "platform/qt/qtserialport.h"
#include "platform/qt/qtsound.h"
#include "platform/systemcalls.h"
#include "shared/module1.h"
#include "support/contacts.h"
#include "support/ratiotable.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListView>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

namespace {

using namespace vantrel;

constexpr int openings = 15;
constexpr double mostMilliseconds = 100;
constexpr double mostMemory = 1.5;

std::string fullLog() {
    std::string bytes = test::logHeaderLines;
    for (int i = 0; i < QsoTable::capacity; ++i)
        bytes += test::contactLine({.hisCall = "K1A" + std::to_string(i)}) + "\r\n";
    return bytes;
}

// Everything main makes, on a folder of its own.
struct Program {
    Program() {
        folder.write("FULL.CBR", fullLog());
        module.settings.logFileName = "FULL.CBR";
    }

    bench::BenchFolder folder;
    SystemCalls calls;
    Files files{folder.path.string(), calls};
    SystemClock clock;
    QtMessages messages;
    QtEventLoop eventLoop;
    QtSerialPort serialPort{files};
    QtSound sound;
    QtPrinter printer;
    QtLauncher launcher;
    Platform platform{files, clock, messages, eventLoop, serialPort, sound, printer, launcher};
    Module1 module;
    AppScreens screens{module, platform};
};

// Tells when the list has been painted for the first time.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget* watched) { watched->installEventFilter(this); }
    bool painted = false;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }
};

double openingMilliseconds() {
    Program program;
    QElapsedTimer timer;
    timer.start();
    program.screens.open(Screen::main);
    auto* page = dynamic_cast<QWidget*>(program.screens.mainPage());
    PaintWatch watch(page->findChild<QListView*>(QStringLiteral("List1"))->viewport());
    while (!watch.painted)
        QCoreApplication::processEvents();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

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
    std::vector<double> times;
    for (int i = 0; i < openings; ++i)
        times.push_back(openingMilliseconds());
    std::nth_element(times.begin(), times.begin() + openings / 2, times.end());
    const double program = memoryInAProcessOfItsOwn(QStringLiteral("program"));
    const double window = memoryInAProcessOfItsOwn(QStringLiteral("window"));

    std::printf("%-44s %12s %12s %8s %8s\n", "subject", "ours", "bound", "ratio", "at most");
    std::printf("%-44s %9.1f ms %12s %8s %5.0f ms\n", "main page on 12,000, to painted list",
                times[openings / 2], "", "", mostMilliseconds);
    std::printf("%-44s %9.1f MB %9.1f MB %8.2f %8.1f\n", "memory on 12,000, against one text box",
                program, window, program / window, mostMemory);
    return 0;
}
