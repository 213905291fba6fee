// SPDX-License-Identifier: MIT
#include "platform/posix/seriallinks.h"

#include "platform/filenames.h"
#include "platform/files.h"
#include "platform/serialnames.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <vector>

namespace vantrel {

namespace fs = std::filesystem;

namespace {

constexpr int mostLinks = 40; // as many as the system follows

std::vector<fs::path> sortedEntries(const std::string& folder) {
    std::error_code error;
    const std::vector<fs::directory_entry> entries = entriesOf(folder, error);
    std::vector<fs::path> paths(entries.begin(), entries.end());
    std::ranges::sort(paths);
    return paths;
}

// Consoles and pseudo-terminals have no device; the places the system keeps free for built-in
// ports have one, but of type 0, unknown.
bool hasHardware(const fs::path& tty) {
    std::error_code error;
    if (!fs::exists(tty / "device", error))
        return false;
    std::string type;
    std::ifstream(tty / "type") >> type;
    return type != "0";
}

fs::path target(const fs::path& device) {
    std::error_code error;
    const fs::path found = fs::canonical(device, error);
    return error ? fs::path() : found;
}

// Goes on from link to link until there is none, or one lies in `folder`.
fs::path endOfLinks(fs::path path, const fs::path& folder) {
    std::error_code error;
    for (int link = 0; link < mostLinks && fs::is_symlink(path, error); ++link) {
        if (path.parent_path() == folder)
            break;
        path = (path.parent_path() / fs::read_symlink(path, error)).lexically_normal();
    }
    return path;
}

std::vector<fs::path> allPorts(const SerialRoots& roots) {
    std::vector<fs::path> ports = sortedEntries(roots.byId);
    std::vector<fs::path> listed;
    std::ranges::transform(ports, std::back_inserter(listed), target);
    for (const fs::path& tty : sortedEntries(roots.classTty)) {
        const fs::path device = fs::path(roots.devices) / tty.filename();
        if (hasHardware(tty) && std::ranges::find(listed, target(device)) == listed.end())
            ports.push_back(device);
    }
    return ports;
}

} // namespace

std::string serialDevice(const std::string& programFolder, std::string_view port,
                         const SerialRoots& roots) {
    const int number = portNumber(port);
    if (number == 0)
        return {};
    const fs::path own = resolveName(programFolder, port);
    std::error_code error;
    if (fs::exists(fs::symlink_status(own, error)))
        return own.string();
    const std::vector<fs::path> ports = allPorts(roots);
    const auto index = static_cast<std::size_t>(number - 1);
    return index < ports.size() ? ports[index].string() : std::string();
}

std::string endOfLinks(const std::string& device) {
    return endOfLinks(device, {}).string();
}

std::string identityIn(const SerialRoots& roots, const Files& files, std::string_view port) {
    const fs::path device = serialDevice(files.programFolder(), port, roots);
    const fs::path end = target(device);
    const fs::path adapter = endOfLinks(device, roots.byId);
    return end.empty() || adapter.parent_path() != roots.byId ? end.string() : adapter.string();
}

std::string deviceShownIn(const SerialRoots& roots, const Files& files, std::string_view port) {
    if (portNumber(port) == 0)
        return {};
    const fs::path device = target(serialDevice(files.programFolder(), port, roots));
    return device.empty() ? "no such port" : shownText(device.string());
}

std::string serialIdentity(const Files& files, std::string_view port) {
    return identityIn({}, files, port);
}

std::string serialDeviceShown(const Files& files, std::string_view port) {
    return deviceShownIn({}, files, port);
}

} // namespace vantrel
