// SPDX-License-Identifier: MIT
#include "fakes/qt/ptyradio.h"

#include <QTimer>

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <unistd.h>

namespace vantrel::test {

namespace {

struct Terminal {
    int master;
    std::string device;
};

Terminal newTerminal() {
    const int master = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    std::array<char, 64> name{};
    if (master < 0 || ::grantpt(master) != 0 || ::unlockpt(master) != 0 ||
        ::ptsname_r(master, name.data(), name.size()) != 0)
        throw std::runtime_error("no pseudo-terminal");
    return {master, name.data()};
}

// A test that pulled its radio's plug still holds the lock of a number that is free again.
bool isLocked(const Terminal& terminal) {
    const std::string number = terminal.device.substr(terminal.device.rfind('/') + 1);
    return std::filesystem::exists("/var/lock/LCK..pts_" + number);
}

Terminal freeTerminal() {
    const Terminal terminal = newTerminal();
    if (!isLocked(terminal))
        return terminal;
    const Terminal next = freeTerminal();
    ::close(terminal.master);
    return next;
}

} // namespace

PtyRadio::PtyRadio() {
    const Terminal terminal = freeTerminal();
    m_master = terminal.master;
    m_device = terminal.device;
    m_slave = ::open(m_device.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios raw = line();
    ::cfmakeraw(&raw);
    raw.c_cflag |= HUPCL | CRTSCTS; // as another program may have left a real port
    ::tcsetattr(m_slave, TCSANOW, &raw);
    m_notifier = std::make_unique<QSocketNotifier>(m_master, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { hear(); });
}

PtyRadio::PtyRadio(const Radio& radio) : PtyRadio() {
    answer = [this, &radio](std::string_view query) {
        return query == radio.query ? radio.reply(hertz) : std::string();
    };
}

PtyRadio::~PtyRadio() {
    vanish();
}

termios PtyRadio::line() const {
    termios settings = {};
    ::tcgetattr(m_slave, &settings);
    return settings;
}

void PtyRadio::vanish() {
    m_notifier.reset();
    for (int* end : {&m_slave, &m_master}) {
        if (*end >= 0)
            ::close(*end);
        *end = -1;
    }
}

void PtyRadio::hear() {
    std::array<char, 256> bytes{};
    const ssize_t count = ::read(m_master, bytes.data(), bytes.size());
    if (count <= 0)
        return;
    m_received.append(bytes.data(), static_cast<std::size_t>(count));
    m_query.append(bytes.data(), static_cast<std::size_t>(count));
    const std::string said = answer ? answer(m_query) : std::string();
    if (said.empty())
        return;
    m_query.clear();
    reply(said);
}

void PtyRadio::reply(const std::string& bytes) {
    const auto count = static_cast<std::size_t>(pieces);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t first = bytes.size() * i / count;
        const std::string piece = bytes.substr(first, bytes.size() * (i + 1) / count - first);
        const bool last = vanishesAfterFirstPiece;
        QTimer::singleShot(delay + static_cast<int>(i) * pause, Qt::PreciseTimer, this,
                           [this, piece, last] {
                               send(piece);
                               if (last)
                                   QTimer::singleShot(5, this, [this] { vanish(); });
                           });
    }
}

void PtyRadio::send(std::string_view bytes) {
    if (m_master >= 0 && ::write(m_master, bytes.data(), bytes.size()) < 0)
        throw std::runtime_error("the pseudo-terminal takes nothing");
}

} // namespace vantrel::test
