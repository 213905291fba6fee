// SPDX-License-Identifier: MIT
#include "platform/windows/comport.h"

#include "base/fixedtext.h"
#include "platform/filenames.h"
#include "platform/machine.h"
#include "platform/serialnames.h"
#include "platform/windows/win32.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vantrel {

namespace {

// No flow control; DTR low, RTS as the radio needs it.
DCB lineFor(const PortSettings& settings) {
    DCB line = {};
    line.DCBlength = sizeof line;
    line.BaudRate = static_cast<DWORD>(settings.baud);
    line.fBinary = 1;
    line.Parity = NOPARITY;
    line.ByteSize = 8;
    line.StopBits = settings.stopBits == 2 ? TWOSTOPBITS : ONESTOPBIT;
    line.fDtrControl = DTR_CONTROL_DISABLE;
    line.fRtsControl = settings.rts == RtsLine::high ? RTS_CONTROL_ENABLE : RTS_CONTROL_DISABLE;
    return line;
}

// name: with the port, for the operator.
SerialPortError openError(const std::string& name) {
    switch (::GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
        return SerialPortError(name + " is not there.", true);
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
        return SerialPortError(name + " is in use by another program.");
    default:
        return SerialPortError(name + " cannot be used: " + errorText(lastErrno()) + ".");
    }
}

} // namespace

HANDLE PortCalls::open(const wchar_t* path) {
    return ::CreateFileW(path, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
}
BOOL PortCalls::setLine(HANDLE port, DCB& line) {
    return ::SetCommState(port, &line);
}
BOOL PortCalls::setTimeouts(HANDLE port, COMMTIMEOUTS& timeouts) {
    return ::SetCommTimeouts(port, &timeouts);
}
BOOL PortCalls::escape(HANDLE port, DWORD function) {
    return ::EscapeCommFunction(port, function);
}
BOOL PortCalls::purge(HANDLE port, DWORD what) {
    return ::PurgeComm(port, what);
}
BOOL PortCalls::write(HANDLE port, const char* bytes, DWORD count, DWORD& written) {
    return ::WriteFile(port, bytes, count, &written, nullptr);
}
BOOL PortCalls::read(HANDLE port, char* bytes, DWORD count, DWORD& taken) {
    return ::ReadFile(port, bytes, count, &taken, nullptr);
}
BOOL PortCalls::close(HANDLE port) {
    return ::CloseHandle(port);
}

ComPort::ComPort(const Files& files, std::unique_ptr<PortCalls> calls, Pause pause)
    : m_files(files), m_calls(std::move(calls)), m_pause(std::move(pause)) {}

ComPort::~ComPort() {
    ComPort::close();
}

std::string ComPort::device(const std::string& name) const {
    return shownText(serialIdentity(m_files, name));
}

void ComPort::open(const std::string& name, const PortSettings& settings) {
    if (isOpen())
        throw SerialPortError(name + " is being read already.");
    if (portNumber(name) == 0)
        throw SerialPortError(name + " is not there: no such serial port.", true);
    m_name = name + " (" + upper(name) + ")";
    m_port = m_calls->open(wideText("\\\\.\\" + upper(name)).c_str()); // COM10 has no shorter name
    if (!isOpen())
        throw openError(m_name);
    m_rtsRaised = settings.rts == RtsLine::high;
    m_unplugged = false;
    m_input.clear();
    m_openedAt = std::chrono::steady_clock::now();
    setUp(lineFor(settings));
}

void ComPort::setUp(const DCB& wanted) {
    DCB line = wanted;
    COMMTIMEOUTS timeouts = {}; // what has come is there at once, and so is that nothing has
    timeouts.ReadIntervalTimeout = MAXDWORD;
    timeouts.WriteTotalTimeoutConstant = 1000; // milliseconds; a query takes less
    if (m_calls->setLine(m_port, line) == 0 || m_calls->setTimeouts(m_port, timeouts) == 0) {
        const SerialPortError error = openError(m_name);
        close();
        throw SerialPortError(error);
    }
    m_calls->purge(m_port, PURGE_RXCLEAR); // a late answer to an earlier query is no answer to this
}

void ComPort::close() {
    if (!isOpen())
        return;
    if (m_rtsRaised)
        m_calls->escape(m_port, CLRRTS);
    m_calls->close(std::exchange(m_port, INVALID_HANDLE_VALUE));
}

void ComPort::write(std::string_view bytes) {
    DWORD written = 0;
    m_calls->write(m_port, bytes.data(), static_cast<DWORD>(bytes.size()), written);
}

bool ComPort::wait(int milliseconds) {
    constexpr int look = 5; // milliseconds
    for (int left = milliseconds; isOpen(); left -= look) {
        takeInput();
        if (!m_input.empty() || m_unplugged || left <= 0)
            return true;
        if (!m_pause(std::min(left, look)))
            return false;
    }
    return false;
}

void ComPort::takeInput() {
    std::array<char, 256> bytes{};
    DWORD taken = 0;
    do {
        m_unplugged =
            m_calls->read(m_port, bytes.data(), static_cast<DWORD>(bytes.size()), taken) == 0;
        m_input.append(bytes.data(), m_unplugged ? 0 : taken);
    } while (!m_unplugged && taken == bytes.size());
}

std::string ComPort::readAll() {
    takeInput();
    if (m_input.empty() && m_unplugged)
        throw SerialPortError(m_name + " has been unplugged.");
    return std::exchange(m_input, {});
}

int ComPort::elapsed() const {
    using std::chrono::milliseconds;
    return static_cast<int>(
        std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - m_openedAt)
            .count());
}

} // namespace vantrel
