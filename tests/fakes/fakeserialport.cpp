// SPDX-License-Identifier: MIT
#include "fakes/fakeserialport.h"

#include <gtest/gtest.h>
#include <utility>

namespace vantrel::test {

void FakeSerialPort::open(const std::string& name, const std::string& settings) {
    EXPECT_FALSE(m_open) << "opened twice";
    opened.push_back(name + ' ' + settings);
    if (refusal)
        throw *refusal;
    m_open = true;
    m_openedAt = m_now;
    m_answer.reset();
    m_input.clear();
}

void FakeSerialPort::write(std::string_view bytes) {
    EXPECT_TRUE(m_open) << "written while closed";
    sent.emplace_back(bytes);
    m_passes = 0;
    m_answer.reset();
    if (answers.empty())
        return;
    m_answer = std::move(answers.front());
    answers.pop_front();
    EXPECT_EQ(sent.back(), m_answer->query);
}

bool FakeSerialPort::wait(int milliseconds) {
    EXPECT_GT(milliseconds, 0);
    ++waits;
    ++m_passes;
    if (waits == closesOnWait || !m_open)
        return false;
    m_input += std::exchange(noise, {});
    const int piece = m_answer ? m_passes - m_answer->pass : -1;
    if (piece >= 0 && piece < m_answer->pieces) {
        const std::size_t size = m_answer->reply.size();
        const auto pieces = static_cast<std::size_t>(m_answer->pieces);
        const auto index = static_cast<std::size_t>(piece);
        m_input += m_answer->reply.substr(size * index / pieces,
                                          size * (index + 1) / pieces - size * index / pieces);
        m_gone = m_answer->vanishes && piece + 1 == m_answer->pieces;
    }
    m_now += m_input.empty() ? milliseconds : 1;
    return true;
}

std::string FakeSerialPort::readAll() {
    if (m_gone && m_input.empty())
        throw SerialPortError(SerialPortError::Reason::lost, "com1 has been unplugged.");
    return std::exchange(m_input, {});
}

} // namespace vantrel::test
