// SPDX-License-Identifier: MIT
// Any bytes as the settings file, taken through the start page's lists and START: what START
// saved is what the next start reads.
#include "fuzz/fuzztarget.h"
#include "screens/start/startlists.h"
#include "shared/settings.h"

namespace vantrel::test {
namespace {

std::string chosen(const std::vector<ListEntry>& list, std::string_view value,
                   std::string_view otherwise = noneSetting) {
    return list[static_cast<std::size_t>(positionOf(list, value, otherwise))].stored;
}

// The start page shows what was read and hands back what its lists can hold.
OperatingSettings throughTheStartPage(OperatingSettings settings) {
    settings.rig = chosen(rigList(), settings.rig);
    settings.comPort = chosen(portList(), settings.comPort);
    settings.baud = chosen(baudList(), settings.baud);
    settings.civAddress = chosen(civList(), settings.civAddress);
    settings.gmtOffset = chosen(offsetList(), settings.gmtOffset, "0");
    settings.dupeMode = chosen(dupeModeList(), settings.dupeMode, "NO");
    if (settings.contestCode != contestWes && settings.contestCode != contestK3y)
        settings.contestCode = contestSks;
    return storedSettings(settings);
}

} // namespace

void fuzz(Input& input) {
    Files& files = fuzzFolder().files;
    files.rewrite(configurationFile, input.rest());
    OperatingSettings settings;
    if (const auto error = errorOf([&] { settings = loadSettings(files); })) {
        require(error->code() == ErrorCode::inputPastEnd,
                "a short file says which line is missing");
        return;
    }
    if (const auto error = errorOf([&] { settings = throughTheStartPage(settings); })) {
        require(error->code() == ErrorCode::invalidCall, "a long text says which field it is");
        return;
    }
    saveSettings(files, settings);
    const std::string saved = files.read(configurationFile);
    saveSettings(files, throughTheStartPage(loadSettings(files)));
    requireEqual(files.read(configurationFile), saved, "START without a change saves the same");
}

} // namespace vantrel::test
