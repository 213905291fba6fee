// SPDX-License-Identifier: MIT
// The machine's devices through Qt.
#pragma once

#include "platform/platform.h"

#include <QElapsedTimer>
#include <QSerialPort>

#include <memory>

class QEventLoop;
class QSoundEffect;

namespace vantrel {

// Yields to the window's event loop, at most once per display frame.
class QtEventLoop : public EventLoop {
public:
    void yield() override;

private:
    QElapsedTimer m_sinceLast;
};

// Starts another program and does not wait for it.
class QtLauncher : public Launcher {
public:
    void start(const std::string& path) override;
};

// The duplicate alarm through the system's sound device, if there is one.
class QtSound : public Sound {
public:
    QtSound();
    ~QtSound() override;
    void playDupeAlarm() override;

private:
    std::unique_ptr<QSoundEffect> m_alarm; // made at the first alarm: most logs never need it
};

// Prints lines on the system's default printer, or draws them as a PDF.
class QtPrinter : public Printer {
public:
    bool print(const std::vector<std::string>& lines) override;
    std::string pdf(const std::vector<std::string>& lines) override;
};

// The machine's serial port. The keying lines are set as soon as it is open, and are low when it is
// closed: a radio keyed by DTR or RTS must not transmit.
class QtSerialPort : public SerialPort {
public:
    // files: a link named "com1" in the program folder stands for that port.
    explicit QtSerialPort(const Files& files);
    ~QtSerialPort() override;

    std::string device(const std::string& name) const override;
    void open(const std::string& name, const std::string& settings, RtsLine rts) override;
    void close() override;
    void write(std::string_view bytes) override;
    bool wait(int milliseconds) override;
    std::string readAll() override;
    int elapsed() const override;

private:
    void checkThere() const;

    const Files& m_files;
    std::string m_name; // "com1 (/dev/ttyUSB0)", for messages
    QSerialPort m_port;
    QElapsedTimer m_sinceOpen;
    bool m_rtsRaised = false;
    QEventLoop* m_waiting = nullptr;
};

} // namespace vantrel
