// SPDX-License-Identifier: MIT
// The program on a folder of its own that holds a full log, and the time until something of
// it is painted.
#pragma once

#include "app/appscreens.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "platform/qt/qtdevices.h"
#include "platform/systemcalls.h"
#include "shared/module1.h"
#include "shared/settings.h"
#include "support/contacts.h"
#include "support/ratiotable.h"
#include "support/table.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QListView>

#include <functional>
#include <string>
#include <vector>

namespace vantrel::bench {

inline std::string fullLog() {
    std::string bytes = test::logHeaderLines;
    for (int i = 0; i < Log::capacity; ++i)
        bytes += test::contactLine({.hisCall = "K1A" + std::to_string(i)}) + "\r\n";
    return bytes;
}

// Everything main makes.
struct RunningProgram {
    explicit RunningProgram(const std::string& folder) : files(folder, calls) {}

    SystemCalls calls;
    Files files;
    SystemClock clock;
    QtMessages messages;
    QtEventLoop eventLoop;
    std::unique_ptr<SerialPort> serialPort = makeSerialPort(files);
    std::unique_ptr<Sound> sound = makeSound();
    QtPrinter printer;
    QtLauncher launcher;
    Platform platform{files, clock, messages, eventLoop, *serialPort, *sound, printer, launcher};
    Module1 module{files};
    AppScreens screens{module, platform};
};

inline const std::string fullLogName = "FULL.CBR";

struct FullFolder {
    FullFolder() { folder.write(fullLogName, fullLog()); }
    BenchFolder folder;
};

struct Program : FullFolder, RunningProgram {
    Program() : RunningProgram(folder.path.string()) { module.settings.logFileName = fullLogName; }
};

// Tells when a widget has been painted for the first time.
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

// Runs on no display unless one is asked for.
inline void useNoDisplay() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

inline double millisecondsOf(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

// The window with that objectName; ends the bench when there is none.
inline QWidget* windowNamed(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String(name))
            return window;
    qFatal("there is no %s", name);
}

inline void waitUntilPainted(QWidget* widget) {
    const PaintWatch watch(widget);
    while (!watch.painted)
        QCoreApplication::processEvents();
}

// Milliseconds of `open`, on a full log, until List1 of the form `name` is painted: the median
// of 15 openings.
inline double openingMilliseconds(const char* name, const std::function<void(Program&)>& open,
                                  const std::function<void(Program&)>& prepare = {}) {
    constexpr int openings = 15;
    std::vector<double> times;
    for (int i = 0; i < openings; ++i) {
        Program program;
        if (prepare)
            prepare(program);
        times.push_back(millisecondsOf([&] {
            open(program);
            const auto* list = windowNamed(name)->findChild<QListView*>(QStringLiteral("List1"));
            waitUntilPainted(list->viewport());
        }));
    }
    return median(times);
}

} // namespace vantrel::bench
