// SPDX-License-Identifier: MIT
// The system's calls; its texts and errors as ours, and our texts as its.
#pragma once

#include <string>
#include <string_view>
#include <windows.h>

namespace vantrel {

// UTF-8 to what the system takes, and back.
std::wstring wideText(std::string_view utf8);
std::string narrowText(std::wstring_view wide);

// The errno that stands for the last call's error.
int lastErrno();

// What everybody may do meanwhile with a file that this program has open: another program's scanner
// or backup is no reason to fail, and an open file can be renamed.
inline constexpr DWORD sharedByAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Closes it at the end.
class Handle {
public:
    explicit Handle(HANDLE handle) : m_handle(handle) {}
    ~Handle() {
        if (opened())
            ::CloseHandle(m_handle);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    bool opened() const { return m_handle != INVALID_HANDLE_VALUE; }
    operator HANDLE() const { return m_handle; }

private:
    HANDLE m_handle;
};

} // namespace vantrel
