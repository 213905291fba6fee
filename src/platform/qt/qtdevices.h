// SPDX-License-Identifier: MIT
// The machine's devices through Qt.
#pragma once

#include "platform/platform.h"

#include <QCoreApplication>

#include <memory>

class QLabel;

namespace vantrel {

// Message boxes as real windows over the form that is active.
class QtMessages : public Messages {
public:
    void show(const Message& message) override;
    bool ask(const Message& message) override;
};

// Yields to the window's event loop.
class QtEventLoop : public EventLoop {
public:
    void yield() override { QCoreApplication::processEvents(); }
};

// Starts another program and does not wait for it.
class QtLauncher : public Launcher {
public:
    void start(const std::string& path) override;
};

// Prints lines on the system's default printer, or draws them as a PDF.
class QtPrinter : public Printer {
public:
    bool print(const std::vector<std::string>& lines) override;
    std::string pdf(const std::vector<std::string>& lines) override;
};

// Where the operators' own alarm has always been kept, and the alarm built into the program.
inline constexpr const char* ownAlarmPath = "C:/Program Files/Quillmoor/Dupe.wav";
inline constexpr const char* builtInAlarmPath = ":/Dupe.wav";

// The doors that each kind of machine has its own way to open. The alarm sounds where there is a
// sound device.
std::unique_ptr<Sound> makeSound();
// files: a link named "com1" in the program folder stands for that port.
std::unique_ptr<SerialPort> makeSerialPort(const Files& files);
// A screen reader says the text of `notification`, a hidden label in `alert`.
void notifyReader(QLabel* alert, QLabel* notification);

} // namespace vantrel
