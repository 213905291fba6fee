// SPDX-License-Identifier: MIT
// Everything the program needs of the machine but its files, as interfaces with plain types, and
// all of it in one place to hand around.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace vantrel {

class Files;

struct LocalTime {
    int year = 0;   // four digits
    int month = 0;  // 1-12
    int day = 0;    // 1-31
    int hour = 0;   // 0-23
    int minute = 0; // 0-59
    int second = 0;
};

// The PC's clock.
class Clock {
public:
    virtual ~Clock() = default;
    virtual LocalTime now() const = 0;
    // What the machine takes for UTC, by the time zone that it is set to, in minutes since
    // midnight.
    virtual int utc() const = 0;
};

// The machine's clock in the machine's time zone.
class SystemClock : public Clock {
public:
    LocalTime now() const override;
    int utc() const override;
};

enum class BoxIcon { none, exclamation, critical };

struct Message {
    std::string text; // the system's own text, alone
    BoxIcon icon = BoxIcon::none;
    std::string informative{}; // what we add: file, device, reason, remedy
    std::string title{};       // "Vantrel" when empty
};

class Messages {
public:
    virtual ~Messages() = default;
    // Shows a modal box with an OK button and returns when it is closed.
    virtual void show(const Message& message) = 0;
    // Shows a modal box with Yes and No, which is the default; true for Yes, false for No and
    // Esc.
    virtual bool ask(const Message& message) = 0;
};

// Keeping the window alive during long work and waits.
class EventLoop {
public:
    virtual ~EventLoop() = default;
    // Lets the window paint and react. More often than once per display frame is of no use.
    virtual void yield() = 0;
};

// Playing a wave file without waiting for its end.
class Sound {
public:
    virtual ~Sound() = default;
    // The duplicate alarm: "C:/Program Files/Quillmoor/Dupe.wav" if that file exists,
    // otherwise the alarm built into the program. Returns at once; no sound device is no
    // error.
    virtual void playDupeAlarm() = 0;
};

// Starting another program without waiting for it.
class Launcher {
public:
    virtual ~Launcher() = default;
    // Starts the program at `path` (a real path of the machine) in its own process and returns at
    // once. Throws RuntimeError 53 when there is no such file, 70 when it cannot be executed.
    virtual void start(const std::string& path) = 0;
};

// A line printer: "Courier New" 12, smaller when a line is wider than the page, one line after the
// other, page breaks as needed.
class Printer {
public:
    virtual ~Printer() = default;
    // Prints the lines (ISO 8859-1) on the system's default printer; false where there is
    // none. Throws RuntimeError 75 when it takes no job.
    virtual bool print(const std::vector<std::string>& lines) = 0;
    // What it would print, as the bytes of a PDF file.
    virtual std::string pdf(const std::vector<std::string>& lines) = 0;
};

// Prints the lines; without a printer into the PDF `pdfName` (a name of the program folder).
// Returns what to tell the operator besides: empty when a printer took the job. Throws as
// Printer::print and Files::rewrite.
std::string sendToPrinter(Printer& printer, Files& files, const std::vector<std::string>& lines,
                          const std::string& pdfName);

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

// RTS while a port is open. DTR is low always: it keys many radios.
enum class RtsLine {
    low,
    high, // the radio sends only when it may
};

// How a port is set: 8 data bits, no parity, no flow control.
struct PortSettings {
    int baud;
    int stopBits; // 1 or 2
    RtsLine rts = RtsLine::low;
};

// One serial port, as the radio routines use it: opened, used and closed within one read.
class SerialPort {
public:
    virtual ~SerialPort() = default;
    // What tells the device behind the port `name` from another one that may take its place, as
    // text to show; "" when there is none. Opens nothing.
    virtual std::string device(const std::string& name) const = 0;
    // Opens the port `name` ("com1" .. "com10"), sets it, drops DTR, sets RTS, and discards what
    // was waiting. Throws SerialPortError when the port cannot be opened.
    virtual void open(const std::string& name, const PortSettings& settings) = 0;
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

struct Platform {
    Files& files;
    const Clock& clock;
    Messages& messages;
    EventLoop& eventLoop;
    SerialPort& serialPort;
    Sound& sound;
    Printer& printer;
    Launcher& launcher;
};

} // namespace vantrel
