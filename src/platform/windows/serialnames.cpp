// SPDX-License-Identifier: MIT
#include "platform/serialnames.h"

#include "base/fixedtext.h"
#include "platform/windows/win32.h"

#include <array>

namespace vantrel {

// What the system's name of the port stands for: "\Device\Serial0".
std::string serialIdentity(const Files&, std::string_view port) {
    std::array<wchar_t, MAX_PATH> device{};
    if (portNumber(port) == 0 || ::QueryDosDeviceW(wideText(upper(port)).c_str(), device.data(),
                                                   static_cast<DWORD>(device.size())) == 0)
        return {};
    return narrowText(device.data());
}

std::string serialDeviceShown(const Files& files, std::string_view port) {
    if (portNumber(port) == 0)
        return {};
    return serialIdentity(files, port).empty() ? "no such port" : upper(port);
}

} // namespace vantrel
