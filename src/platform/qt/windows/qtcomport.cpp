// SPDX-License-Identifier: MIT
#include "platform/qt/qtdevices.h"
#include "platform/windows/comport.h"

#include <QEventLoop>
#include <QTimer>

namespace vantrel {

namespace {

bool pause(int milliseconds) {
    constexpr int over = 1; // another code: the program is quitting
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, [&loop] { loop.exit(over); });
    return loop.exec() == over;
}

} // namespace

std::unique_ptr<SerialPort> makeSerialPort(const Files& files) {
    return std::make_unique<ComPort>(files, std::make_unique<PortCalls>(), pause);
}

} // namespace vantrel
