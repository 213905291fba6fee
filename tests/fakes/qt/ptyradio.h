// SPDX-License-Identifier: MIT
// A radio on a pseudo-terminal: hears what is really sent, sees the line's real settings and
// answers through the event loop, at once, late or not at all.
#pragma once

#include "fakes/radios.h"

#include <QSocketNotifier>

#include <termios.h>

namespace vantrel::test {

class PtyRadio : public QObject {
public:
    explicit PtyRadio(const Radio& radio);
    ~PtyRadio() override { vanish(); }

    // The terminal to open: "/dev/pts/3".
    const std::string& device() const { return m_device; }
    // What has been received since the last forget().
    const std::string& received() const { return m_received; }
    void forget() { m_received.clear(); }
    // The line as it is now, the way the last one who opened it left it.
    termios line() const;
    // Sends without having been asked.
    void send(std::string_view bytes) const;
    // Pulls the plug; there is no radio and no port any more.
    void vanish();

    // The reply to what came since the last reply; "" while the query is not complete.
    std::function<std::string(std::string_view query)> answer;
    long hertz = 14'025'000;
    int delay = 0; // milliseconds before the reply

private:
    void hear();

    int m_master = -1;
    int m_slave = -1; // held open: a terminal without a user hangs up
    std::string m_device;
    std::string m_received;
    std::string m_query;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace vantrel::test
