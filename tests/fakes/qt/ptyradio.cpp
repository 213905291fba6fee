// SPDX-License-Identifier: MIT
#include "fakes/qt/ptyradio.h"

#include <QTimer>

#include <array>
#include <pty.h>
#include <stdexcept>
#include <unistd.h>

namespace vantrel::test {

PtyRadio::PtyRadio(const Radio& radio) {
    answer = [this, &radio](std::string_view query) {
        return query == radio.query ? radio.reply(hertz) : std::string();
    };
    termios raw{};
    ::cfmakeraw(&raw);
    ::cfsetspeed(&raw, B19200);
    raw.c_cflag |= HUPCL | CRTSCTS; // as another program may have left a real port
    if (::openpty(&m_master, &m_slave, nullptr, &raw, nullptr) != 0)
        throw std::runtime_error("no pseudo-terminal");
    m_device = ::ttyname(m_slave);
    m_notifier = std::make_unique<QSocketNotifier>(m_master, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &PtyRadio::hear);
}

termios PtyRadio::line() const {
    termios settings = {};
    ::tcgetattr(m_slave, &settings);
    return settings;
}

void PtyRadio::vanish() {
    m_notifier.reset();
    for (int* end : {&m_slave, &m_master})
        ::close(std::exchange(*end, -1));
}

void PtyRadio::hear() {
    std::array<char, 256> bytes{};
    const ssize_t count = ::read(m_master, bytes.data(), bytes.size());
    const std::string heard(bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    m_received += heard;
    m_query += heard;
    const std::string reply = answer ? answer(m_query) : std::string();
    if (reply.empty())
        return;
    m_query.clear();
    QTimer::singleShot(delay, Qt::PreciseTimer, this, [this, reply] { send(reply); });
}

void PtyRadio::send(std::string_view bytes) const {
    if (m_master >= 0 && ::write(m_master, bytes.data(), bytes.size()) < 0)
        throw std::runtime_error("the pseudo-terminal takes nothing");
}

} // namespace vantrel::test
