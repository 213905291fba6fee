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

// Where the machine keeps its list of ports; a test has its own.
struct SerialRoots {
    std::string byId = "/dev/serial/by-id";
    std::string classTty = "/sys/class/tty";
    std::string devices = "/dev";
};

// The device behind `port`: the file or link of that name (any case) in
// the program folder if there is one, otherwise the n-th of the adapters by their lasting name
// and then of the ports with hardware behind them. "" for none or another name. Throws
// RuntimeError 75 when two entries of the folder differ from the name by case only.
std::string serialDevice(const std::string& programFolder, std::string_view port,
                         const SerialRoots& roots = {});

// Where the links that begin at `device` end, whether anything is there or not.
std::string endOfLinks(const std::string& device);

// What tells the device behind `port` from another one that may take its place: the first lasting
// name of an adapter that the links behind the port lead over, otherwise the device itself; "" when
// there is none. Throws as serialDevice.
std::string serialIdentity(const Files& files, std::string_view port,
                           const SerialRoots& roots = {});

// What the start page shows beside the port: the device where its links lead to
// ("/dev/ttyUSB0"), "no such port", or "" for no port. Throws as serialDevice.
std::string serialDeviceShown(const Files& files, std::string_view port,
                              const SerialRoots& roots = {});

} // namespace vantrel
