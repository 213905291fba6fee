// SPDX-License-Identifier: MIT
// One wire between the port and a radio whose dial is turned: every 60 ms it tells everybody its
// frequency, and it answers a query that it hears whole. Whatever two send at once is lost. Time
// passes a byte at a time, in wait() only.
#pragma once

#include "fakes/radios.h"
#include "platform/serialport.h"

#include <string>
#include <utility>

namespace vantrel::test {

class CivBus : public SerialPort {
public:
    // phase: milliseconds that the radio has been sending for when the port is opened. latency: the
    // milliseconds for which an adapter collects what it hears.
    CivBus(int baud, int phase, int latency)
        : m_byteTime(10'000'000 / baud), m_latency(latency * 1000), m_openedAt(phase * 1000) {
        while (m_now < m_openedAt)
            passByte();
        m_collected.clear();
    }
    std::string device(const std::string&) const override { return ""; }
    void open(const std::string&, const std::string&, RtsLine) override {}
    void close() override {}
    void write(std::string_view bytes) override {
        m_query += bytes;
        ++queries;
    }
    bool wait(int milliseconds) override {
        for (const int end = m_now + milliseconds * 1000; m_now < end && m_arrived.empty();)
            passByte();
        return true;
    }
    std::string readAll() override { return std::exchange(m_arrived, {}); }
    int elapsed() const override { return (m_now - m_openedAt) / 1000; }

    int queries = 0;

private:
    static char taken(std::string& bytes) {
        const char first = bytes.front();
        bytes.erase(0, 1);
        return first;
    }
    void passByte() {
        constexpr int betweenBroadcasts = 60'000;
        if (m_now >= m_nextBroadcast) {
            m_radio += std::string("\xFE\xFE\x00\x6A\x00\x00\x00\x02\x14\x00\xFD", 11);
            m_nextBroadcast += betweenBroadcasts;
        }
        if (!m_query.empty() && !m_radio.empty()) {
            taken(m_query);
            taken(m_radio);
            m_heard.clear();
            m_collected += '\xFC'; // what a radio makes of it on purpose, and the wire by itself
        } else if (!m_query.empty()) {
            m_heard += taken(m_query);
            m_collected += m_heard.back();
            answerQuery();
        } else if (!m_radio.empty()) {
            m_collected += taken(m_radio);
        }
        m_now += m_byteTime;
        if (m_latency == 0 || m_now % m_latency < m_byteTime)
            m_arrived += std::exchange(m_collected, {});
    }
    void answerQuery() {
        const Radio& radio = radioNamed("IcomCiv");
        if (!m_heard.ends_with('\xFD'))
            return;
        if (std::exchange(m_heard, {}) == radio.query)
            m_radio += radio.reply(14'025'000).substr(radio.query.size());
    }

    int m_byteTime; // microseconds, as all times
    int m_latency;
    int m_openedAt;
    int m_now = 0;
    int m_nextBroadcast = 0;
    std::string m_query; // still to be sent, by the port and by the radio
    std::string m_radio;
    std::string m_heard;     // by the radio
    std::string m_collected; // by the adapter
    std::string m_arrived;
};

} // namespace vantrel::test
