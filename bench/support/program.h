// SPDX-License-Identifier: MIT
// Everything main makes, on a folder of its own that holds a full log, and the time until a
// list of it is painted.
#pragma once

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
#include <QListView>

#include <algorithm>
#include <string>
#include <vector>

namespace vantrel::bench {

inline std::string fullLog() {
    std::string bytes = test::logHeaderLines;
    for (int i = 0; i < QsoTable::capacity; ++i)
        bytes += test::contactLine({.hisCall = "K1A" + std::to_string(i)}) + "\r\n";
    return bytes;
}

struct Program {
    Program() {
        folder.write("FULL.CBR", fullLog());
        module.settings.logFileName = "FULL.CBR";
    }

    BenchFolder folder;
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

// Milliseconds from opening the screen (its form's objectName is `name`) on a full log to its
// painted List1, the median of 15 openings.
inline double openingMilliseconds(Screen screen, const char* name) {
    constexpr int openings = 15;
    std::vector<double> times;
    for (int i = 0; i < openings; ++i) {
        Program program;
        QElapsedTimer timer;
        timer.start();
        program.screens.open(screen);
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() != QLatin1String(name))
                continue;
            PaintWatch watch(window->findChild<QListView*>(QStringLiteral("List1"))->viewport());
            while (!watch.painted)
                QCoreApplication::processEvents();
        }
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace vantrel::bench
