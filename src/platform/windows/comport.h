// SPDX-License-Identifier: MIT
// A serial port by the system's own calls.
#pragma once

#include "platform/platform.h"

#include <chrono>
#include <functional>
#include <memory>
#include <windows.h>

namespace vantrel {

// The system's calls for a port, one virtual function each, so that a test sees their order. They
// return what the system returns; GetLastError() tells why.
class PortCalls {
public:
    virtual ~PortCalls() = default;
    virtual HANDLE open(const wchar_t* path);
    virtual BOOL setLine(HANDLE port, DCB& line);
    virtual BOOL setTimeouts(HANDLE port, COMMTIMEOUTS& timeouts);
    virtual BOOL escape(HANDLE port, DWORD function);
    virtual BOOL purge(HANDLE port, DWORD what);
    virtual BOOL write(HANDLE port, const char* bytes, DWORD count, DWORD& written);
    virtual BOOL read(HANDLE port, char* bytes, DWORD count, DWORD& taken);
    virtual BOOL close(HANDLE port);
};

// The keying lines are set by the first call after it is open, and are low when it is closed: a
// radio keyed by DTR or RTS must not transmit.
class ComPort : public SerialPort {
public:
    // Lets the window live for so many milliseconds; false once the program is being closed.
    using Pause = std::function<bool(int milliseconds)>;

    ComPort(const Files& files, std::unique_ptr<PortCalls> calls, Pause pause);
    ~ComPort() override;

    std::string device(const std::string& name) const override;
    void open(const std::string& name, const PortSettings& settings) override;
    void close() override;
    void write(std::string_view bytes) override;
    bool wait(int milliseconds) override;
    std::string readAll() override;
    int elapsed() const override;

private:
    bool isOpen() const { return m_port != INVALID_HANDLE_VALUE; }
    void setUp(const DCB& line);
    void takeInput();

    const Files& m_files;
    std::unique_ptr<PortCalls> m_calls;
    Pause m_pause;
    HANDLE m_port = INVALID_HANDLE_VALUE;
    std::string m_name; // "com1 (COM1)", for messages
    std::string m_input;
    bool m_unplugged = false;
    bool m_rtsRaised = false;
    std::chrono::steady_clock::time_point m_openedAt;
};

} // namespace vantrel
