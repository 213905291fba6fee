// SPDX-License-Identifier: MIT
// One serial port, as the radio routines use it: opened, used and closed within one read.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

class SerialPort {
public:
    virtual ~SerialPort() = default;
    // Opens the port `name` ("com1" .. "com10") at `settings` ("38400,n,8,2": baud, parity
    // letter, data bits, stop bits), no flow control, and drops DTR and RTS. Throws
    // SerialPortError when the port cannot be opened.
    virtual void open(const std::string& name, const std::string& settings) = 0;
    virtual void close() = 0;
    // Sends the bytes. Throws SerialPortError when the device is gone.
    virtual void write(std::string_view bytes) = 0;
    // Waits for input for at most `milliseconds` (events are served meanwhile, keys and
    // clicks are kept for later), returning as soon as any has come; 0 only looks. Returns
    // false once the program is being closed: the read is then given up.
    virtual bool wait(int milliseconds) = 0;
    // Takes all bytes that have arrived, possibly none. Throws SerialPortError when the
    // device is gone.
    virtual std::string readAll() = 0;
};

} // namespace vantrel
