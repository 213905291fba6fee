// SPDX-License-Identifier: MIT
// Which device "com1" .. "com10" stand for on this machine now. Only looks at names: opening
// a port just to list it could key a radio.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

class Files;

// The ports one can choose, as the settings hold them: "com1" .. "com10".
inline constexpr int portCount = 10;
std::string portName(int number);

// Its number, 1 to 10, whatever the case; 0 for any other text.
int portNumber(std::string_view port);

// What tells the device behind `port` from another one that may take its place, as text to show; ""
// when there is none. Throws RuntimeError 75 when two files of the program folder are called so but
// for the case.
std::string serialIdentity(const Files& files, std::string_view port);

// What the start page shows beside the port: the device that it stands for ("/dev/ttyUSB0"), "no
// such port", or "" for no port. Throws as serialIdentity.
std::string serialDeviceShown(const Files& files, std::string_view port);

} // namespace vantrel
