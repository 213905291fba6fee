// SPDX-License-Identifier: MIT
// A serial port with a scripted radio behind it and a clock of its own: time passes only in
// wait(), so a test says on which pass a reply comes and sees how long a read took.
#pragma once

#include "platform/platform.h"
#include "support/testing.h"

#include <deque>

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
    std::string device(const std::string&) const override { return isDevice; }
    void open(const std::string& name, const PortSettings& settings) override {
        EXPECT_FALSE(m_open) << "opened twice";
        opened.push_back(name + ' ' + std::to_string(settings.baud) + ",n,8," +
                         std::to_string(settings.stopBits));
        if (refusal)
            throw *refusal;
        m_open = true;
        m_openedAt = m_now;
        m_answer = {};
        m_input.clear();
    }
    void close() override { m_open = false; }
    void write(std::string_view bytes) override {
        EXPECT_TRUE(m_open) << "written while closed";
        sent.emplace_back(bytes);
        m_passes = 0;
        m_answer = {};
        if (answers.empty())
            return;
        m_answer = answers.front();
        answers.pop_front();
        EXPECT_EQ(bytes, m_answer.query);
    }
    bool wait(int milliseconds) override {
        EXPECT_GT(milliseconds, 0);
        ++m_passes;
        ++waits;
        m_input += std::exchange(noise, {});
        const int piece = m_passes - m_answer.pass;
        if (piece >= 0 && piece < m_answer.pieces) {
            m_input +=
                m_answer.reply.substr(pieceStart(piece), pieceStart(piece + 1) - pieceStart(piece));
            m_gone = m_answer.vanishes && piece + 1 == m_answer.pieces;
        }
        m_now += m_input.empty() ? milliseconds : 1;
        return true;
    }
    std::string readAll() override {
        if (m_gone && m_input.empty())
            throw SerialPortError("com1 has been unplugged.");
        return std::exchange(m_input, {});
    }
    int elapsed() const override { return m_now - m_openedAt; }

    bool isOpen() const { return m_open; }
    // Milliseconds all waits took together.
    int waited() const { return m_now; }

    std::deque<Answer> answers; // one a query; silent when there are no more
    std::optional<SerialPortError> refusal;
    std::string isDevice; // at each read
    std::string noise;    // arrives before the first query

    std::vector<std::string> opened; // "com1 9600,n,8,1"
    std::vector<std::string> sent;
    int waits = 0;

private:
    std::size_t pieceStart(int piece) const {
        return m_answer.reply.size() * static_cast<std::size_t>(piece) /
               static_cast<std::size_t>(m_answer.pieces);
    }

    bool m_open = false;
    bool m_gone = false;
    int m_now = 0;
    int m_openedAt = 0;
    int m_passes = 0; // waits since the last query
    Answer m_answer;
    std::string m_input;
};

} // namespace vantrel::test
