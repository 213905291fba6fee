// SPDX-License-Identifier: MIT
// The files behind "com1" .. "com10" where devices are files, and links may lead to them.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

class Files;

// Where the machine keeps its list of ports; a test has its own.
struct SerialRoots {
    std::string byId = "/dev/serial/by-id";
    std::string classTty = "/sys/class/tty";
    std::string devices = "/dev";
};

// The device behind `port`: the file or link of that name (any case) in the program folder if there
// is one, otherwise the n-th of a list: the adapters by their lasting names, then the ports with
// hardware behind them. "" for none, and for a text that is no port. Throws RuntimeError 75 when
// two entries of the folder differ from the name by case only.
std::string serialDevice(const std::string& programFolder, std::string_view port,
                         const SerialRoots& roots = {});

// Where the links that begin at `device` end, whether anything is there or not.
std::string endOfLinks(const std::string& device);

// As serialIdentity and serialDeviceShown, on a machine with these roots. The identity is the first
// lasting name of an adapter that the links behind the port lead over, otherwise the device itself.
std::string identityIn(const SerialRoots& roots, const Files& files, std::string_view port);
std::string deviceShownIn(const SerialRoots& roots, const Files& files, std::string_view port);

} // namespace vantrel
