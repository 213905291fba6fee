// SPDX-License-Identifier: MIT
// One wire between the port and a radio whose dial is turned: every 60 ms it tells everybody its
// frequency, and it answers a query that it hears whole. Whatever two send at once is lost. Time
// passes a byte at a time, in wait() only.
#pragma once

#include "fakes/radios.h"
#include "platform/platform.h"

#include <utility>

namespace vantrel::test {

class CivBus : public SerialPort {
public:
    // phase: milliseconds that the radio has been sending for when the port is opened. latency: the
    // milliseconds for which an adapter collects what it hears.
    CivBus(int baud, int phase, int latency)
        : m_byteTime(10'000'000 / baud), m_latency(latency * 1000 + 1), m_openedAt(phase * 1000) {}
    std::string device(const std::string&) const override { return ""; }
    void open(const std::string&, const std::string&, RtsLine) override {
        while (m_now < m_openedAt)
            passByte();
        readAll();
    }
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
    static std::string firstOf(std::string& bytes) {
        return std::exchange(bytes, bytes.substr(bytes.empty() ? 0 : 1)).substr(0, 1);
    }
    void passByte() {
        if (m_now >= m_nextBroadcast) {
            m_radio += std::string("\xFE\xFE\x00\x6A\x00\x00\x00\x02\x14\x00\xFD", 11);
            m_nextBroadcast += 60'000;
        }
        const std::string ours = firstOf(m_query);
        const std::string theirs = firstOf(m_radio);
        const bool collides = !ours.empty() && !theirs.empty();
        m_collected += collides ? "\xFC" : ours + theirs;
        m_heard = collides ? "" : m_heard + ours;
        if (const Radio& radio = radioNamed("IcomCiv"); m_heard.ends_with(radio.query)) {
            m_radio += radio.reply(14'025'000).substr(radio.query.size());
            m_heard.clear();
        }
        m_now += m_byteTime;
        if (m_now % m_latency < m_byteTime)
            m_arrived += std::exchange(m_collected, {});
    }

    int m_byteTime; // microseconds, as all times
    int m_latency;
    int m_openedAt;
    int m_now = 0;
    int m_nextBroadcast = 0;
    std::string m_query; // still to be sent, by the port and by the radio
    std::string m_radio;
    std::string m_heard;     // by the radio, of the query
    std::string m_collected; // by the adapter
    std::string m_arrived;
};

} // namespace vantrel::test
