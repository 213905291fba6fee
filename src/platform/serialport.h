// SPDX-License-Identifier: MIT
// One serial port, as the radio routines use it: opened, used and closed within one read.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vantrel {

// Why a port cannot be used. what() says it in plain words for the operator, port named.
class SerialPortError : public std::runtime_error {
public:
    explicit SerialPortError(const std::string& words, bool notThere = false)
        : std::runtime_error(words), m_notThere(notThere) {}
    // No such port; otherwise it is there and cannot be used.
    bool notThere() const { return m_notThere; }

private:
    bool m_notThere;
};

// The settings text "38400,n,8,2" taken apart.
struct LineSettings {
    int baud;
    char parity; // 'n', 'e' or 'o'
    int dataBits;
    int stopBits;
};

// Nothing when the text has another form ("None,n,8,1").
std::optional<LineSettings> lineSettings(std::string_view text);

// RTS while a port is open. DTR is low always: it keys many radios.
enum class RtsLine {
    low,
    high, // the radio sends only when it may
};

class SerialPort {
public:
    virtual ~SerialPort() = default;
    // What tells the device behind the port `name` from another one that may take its place, as
    // text to show; "" when there is none. Opens nothing.
    virtual std::string device(const std::string& name) const = 0;
    // Opens the port `name` ("com1" .. "com10") at `settings` ("38400,n,8,2": baud, parity
    // letter, data bits, stop bits), no flow control, drops DTR, sets RTS, and discards what was
    // waiting. Throws SerialPortError when the port cannot be opened.
    virtual void open(const std::string& name, const std::string& settings, RtsLine rts) = 0;
    virtual void close() = 0; // leaves both lines low
    // Sends the bytes. That nobody is there any more shows in readAll().
    virtual void write(std::string_view bytes) = 0;
    // Waits for input for at most `milliseconds` (events are served meanwhile), returning as
    // soon as any has come; 0 only looks. Returns false once the program is being closed: the
    // read is then given up.
    virtual bool wait(int milliseconds) = 0;
    // Takes all bytes that have arrived, possibly none. Throws SerialPortError when the
    // device is gone.
    virtual std::string readAll() = 0;
    // Milliseconds since the port was opened.
    virtual int elapsed() const = 0;
};

} // namespace vantrel
