// SPDX-License-Identifier: MIT
#include "base/runtimeerror.h"
#include "platform/filenames.h"
#include "platform/files.h"
#include "platform/posix/seriallinks.h"
#include "platform/qt/qtdevices.h"
#include "platform/serialnames.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QSerialPort>
#include <QTimer>

#include <fcntl.h>
#include <filesystem>
#include <grp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

namespace vantrel {

namespace {

enum WaitResult { woken = 1, givenUp = 2 };

// The device behind the port as the system names it, links followed; throws where there is
// none.
std::string realDevice(const std::string& programFolder, const std::string& name) {
    std::string device;
    try {
        device = serialDevice(programFolder, name);
    } catch (const RuntimeError& error) {
        throw SerialPortError(error.detail(), true);
    }
    if (device.empty())
        throw SerialPortError(name + " is not there: no such serial port.", true);
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(device, error);
    if (error == std::errc::no_such_file_or_directory)
        throw SerialPortError(
            name + " leads to " + shownText(endOfLinks(device)) + ", which is not there.", true);
    if (error || !std::filesystem::is_character_file(real, error))
        throw SerialPortError(name + " (" + shownText(device) + ") is no serial port.", true);
    return real.string();
}

// The group that owns the device: who belongs to it may use the port.
std::string groupOf(const std::string& device) {
    struct stat info = {};
    if (::stat(device.c_str(), &info) != 0 || info.st_gid == 0)
        return "dialout"; // nobody joins root's
    const group* const owner = ::getgrgid(info.st_gid);
    return owner == nullptr ? "dialout" : owner->gr_name;
}

// name: with the device, for the operator.
SerialPortError openError(const QSerialPort& port, const std::string& device,
                          const std::string& name) {
    switch (port.error()) {
    case QSerialPort::DeviceNotFoundError:
        return SerialPortError(name + " is not there.", true);
    case QSerialPort::PermissionError:
        // A port one may use and cannot open is taken, and so is one whose lock is held.
        if (::access(device.c_str(), R_OK | W_OK) == 0)
            return SerialPortError(name + " is in use by another program, or its lock file in "
                                          "/var/lock cannot be made.");
        return SerialPortError(name + ": no permission. Join the group \"" + groupOf(device) +
                               "\" and log in again.");
    default:
        return SerialPortError(
            name + " cannot be used: " + port.errorString().toLatin1().toStdString() + ".");
    }
}

// Qt puts the former settings back when it closes, and hang-up on close or hardware flow
// control among them would move the keying lines. So it is given something else to close in
// the port's place, and the port itself is closed as it stands, without hanging up.
void closeQuietly(QSerialPort& port) {
    const int device = ::dup(port.handle());
    const int standIn = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    ::dup2(standIn, port.handle());
    ::close(standIn);
    port.close();
    termios settings = {};
    if (::tcgetattr(device, &settings) == 0) {
        settings.c_cflag &= ~static_cast<tcflag_t>(HUPCL);
        ::tcsetattr(device, TCSANOW, &settings);
    }
    ::ioctl(device, TIOCNXCL);
    ::close(device);
}

// The machine's serial port. The keying lines are set as soon as it is open, and are low when it is
// closed: a radio keyed by DTR or RTS must not transmit.
class QtSerialPort : public SerialPort {
public:
    explicit QtSerialPort(const Files& files) : m_files(files) {
        QObject::connect(&m_port, &QSerialPort::readyRead, &m_port, [this] {
            if (m_waiting != nullptr)
                m_waiting->exit(woken);
        });
    }

    ~QtSerialPort() override { QtSerialPort::close(); }

    std::string device(const std::string& name) const override {
        try {
            return shownText(serialIdentity(m_files, name));
        } catch (const RuntimeError&) { // two files are called so: opening it says that
            return {};
        }
    }

    void open(const std::string& name, const PortSettings& settings) override {
        if (m_port.isOpen())
            throw SerialPortError(name + " is being read already.");
        const std::string device = realDevice(m_files.programFolder(), name);
        m_name = name + " (" + shownText(device) + ")";
        m_port.setPortName(QString::fromStdString(device));
        m_port.setBaudRate(settings.baud);
        m_port.setDataBits(QSerialPort::Data8);
        m_port.setStopBits(settings.stopBits == 2 ? QSerialPort::TwoStop : QSerialPort::OneStop);
        m_port.setParity(QSerialPort::NoParity);
        m_port.setFlowControl(QSerialPort::NoFlowControl);
        if (!m_port.open(QIODevice::ReadWrite))
            throw openError(m_port, device, m_name);
        // A port without these lines (a pseudo-terminal) refuses, and has nothing to set.
        m_rtsRaised = settings.rts == RtsLine::high;
        m_port.setDataTerminalReady(false);
        m_port.setRequestToSend(m_rtsRaised);
        m_port.clearError();
        m_port.clear(QSerialPort::Input); // a late answer to an earlier query is no answer to this
        m_sinceOpen.start();
    }

    void close() override {
        if (m_waiting != nullptr)
            m_waiting->exit(givenUp);
        if (!m_port.isOpen())
            return;
        m_port.clear(QSerialPort::Input); // what is still being sent goes out: it is a query, too
        if (m_rtsRaised)
            m_port.setRequestToSend(false);
        closeQuietly(m_port);
    }

    void write(std::string_view bytes) override {
        m_port.write(bytes.data(), static_cast<qint64>(bytes.size()));
        m_port.flush();
    }

    bool wait(int milliseconds) override {
        if (!m_port.isOpen())
            return false;
        if (m_port.bytesAvailable() > 0)
            return true;
        QEventLoop loop;
        QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, [&loop] { loop.exit(woken); });
        m_waiting = &loop;
        const int result = loop.exec(); // another code: the program is quitting
        m_waiting = nullptr;
        return result == woken && m_port.isOpen();
    }

    std::string readAll() override {
        std::string bytes = m_port.readAll().toStdString();
        if (bytes.empty())
            checkThere();
        return bytes;
    }

    int elapsed() const override { return static_cast<int>(m_sinceOpen.elapsed()); }

private:
    // A device that is pulled out hangs up; reading it then yields nothing and is no error.
    void checkThere() const {
        pollfd state = {m_port.handle(), 0, 0};
        ::poll(&state, 1, 0);
        if ((state.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0)
            throw SerialPortError(m_name + " has been unplugged.");
    }

    const Files& m_files;
    std::string m_name; // "com1 (/dev/ttyUSB0)", for messages
    QSerialPort m_port;
    QElapsedTimer m_sinceOpen;
    bool m_rtsRaised = false;
    QEventLoop* m_waiting = nullptr;
};

} // namespace

std::unique_ptr<SerialPort> makeSerialPort(const Files& files) {
    return std::make_unique<QtSerialPort>(files);
}

} // namespace vantrel
