// SPDX-License-Identifier: MIT
// Any bytes as the settings file, taken through the start page's lists and START: what START
// saved is what the next start reads.
#include "fakes/failingcalls.h"
#include "fuzz/fuzztarget.h"
#include "platform/files.h"
#include "screens/start/startlists.h"
#include "shared/fixedtext.h"
#include "shared/settings.h"
#include "support/tempfolder.h"

namespace vantrel::test {
namespace {

constexpr std::string OperatingSettings::*allFields[] = {
    &OperatingSettings::myCall,       &OperatingSettings::contestCode,
    &OperatingSettings::gmtOffset,    &OperatingSettings::civAddress,
    &OperatingSettings::myName,       &OperatingSettings::myState,
    &OperatingSettings::myNumber,     &OperatingSettings::rig,
    &OperatingSettings::comPort,      &OperatingSettings::baud,
    &OperatingSettings::contestText,  &OperatingSettings::logFileName,
    &OperatingSettings::bonusStation, &OperatingSettings::dupeMode};

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

void savedIsReadAgain(Files& files, const OperatingSettings& settings) {
    saveSettings(files, settings);
    const OperatingSettings again = loadSettings(files);
    for (const auto field : allFields)
        requireEqual(again.*field, trimRight(settings.*field), "a saved setting is read again");
    saveSettings(files, throughTheStartPage(again));
    const std::string first = files.read(configurationFile);
    saveSettings(files, throughTheStartPage(loadSettings(files)));
    requireEqual(files.read(configurationFile), first, "START without a change saves the same");
}

} // namespace
} // namespace vantrel::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantrel;
    using namespace vantrel::test;
    static const TempFolder folder;
    static FailingCalls calls;
    Files files(folder.string(), calls);
    files.rewrite(configurationFile, std::string(data, data + size));

    OperatingSettings settings;
    if (const auto error = errorOf([&] { settings = loadSettings(files); })) {
        require(error->code() == ErrorCode::inputPastEnd,
                "a short file says which line is missing");
        return 0;
    }
    if (const auto error = errorOf([&] { settings = throughTheStartPage(settings); })) {
        require(error->code() == ErrorCode::invalidCall, "a long text says which field it is");
        return 0;
    }
    savedIsReadAgain(files, settings);
    return 0;
}
