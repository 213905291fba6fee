// SPDX-License-Identifier: MIT
// A serial port with a scripted radio behind it and a clock of its own: time passes only in
// wait(), so a test says on which pass a reply comes and sees how long a read took.
#pragma once

#include "platform/serialport.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace vantrel::test {

// What the radio does on one query.
struct Answer {
    std::string query;     // the exact bytes that must come
    std::string reply;     // what it sends: cut short, echo and garbage are just other bytes
    int pass = 1;          // the wait after the query in which the first piece comes
    int pieces = 1;        // the reply comes over so many waits
    bool vanishes = false; // the device is unplugged after the reply
};

class FakeSerialPort : public SerialPort {
public:
    void open(const std::string& name, const std::string& settings) override;
    void close() override { m_open = false; }
    void write(std::string_view bytes) override;
    bool wait(int milliseconds) override;
    std::string readAll() override;
    int elapsed() const override { return m_now - m_openedAt; }

    bool isOpen() const { return m_open; }
    // Milliseconds all waits took together.
    int waited() const { return m_now; }

    std::deque<Answer> answers; // one a query; silent when there are no more
    std::optional<SerialPortError> refusal;
    std::string noise;    // arrives before the first query
    int closesOnWait = 0; // the program is closed in this wait (1 is the first); 0: never

    std::vector<std::string> opened; // "com1 9600,n,8,1"
    std::vector<std::string> sent;
    int waits = 0;

private:
    bool m_open = false;
    bool m_gone = false;
    int m_now = 0;
    int m_openedAt = 0;
    int m_passes = 0; // waits since the last query
    std::optional<Answer> m_answer;
    std::string m_input;
};

} // namespace vantrel::test
