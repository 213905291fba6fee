// SPDX-License-Identifier: MIT
// The machine's serial port through Qt.
#pragma once

#include "platform/platform.h"

#include <QElapsedTimer>
#include <QSerialPort>

class QEventLoop;

namespace vantrel {

// The keying lines are set as soon as it is open, and are low when it is
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
