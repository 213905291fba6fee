// SPDX-License-Identifier: MIT
#include "shared/settings.h"

#include "base/itemreader.h"
#include "base/runtimeerror.h"
#include "log/qsoline.h"
#include "platform/files.h"

#include <array>

namespace vantrel {

namespace {

struct SettingLine {
    std::string OperatingSettings::*field;
    std::string_view name;
};

// The file's lines, first to last.
constexpr std::array<SettingLine, 14> settingLines{{
    {&OperatingSettings::myCall, "my call"},
    {&OperatingSettings::contestCode, "contest code"},
    {&OperatingSettings::gmtOffset, "GMT offset"},
    {&OperatingSettings::civAddress, "CI-V address"},
    {&OperatingSettings::myName, "my name"},
    {&OperatingSettings::myState, "my state"},
    {&OperatingSettings::myNumber, "my SKCC number"},
    {&OperatingSettings::rig, "rig"},
    {&OperatingSettings::comPort, "COM port"},
    {&OperatingSettings::baud, "baud rate"},
    {&OperatingSettings::contestText, "contest name"},
    {&OperatingSettings::logFileName, "log file name"},
    {&OperatingSettings::bonusStation, "bonus station"},
    {&OperatingSettings::dupeMode, "dupe mode"},
}};

std::string normalised(std::string_view typed) {
    return upper(trim(withoutSeparatorsAndQuotes(typed)));
}

} // namespace

OperatingSettings storedSettings(const OperatingSettings& typed) {
    OperatingSettings settings = typed;
    settings.myCall = padded(normalised(typed.myCall), qso::myCall.width, "the call");
    settings.myCall = trimRight(settings.myCall); // only its length was to be checked
    settings.myName = padded(normalised(typed.myName), qso::myName.width, "the name");
    settings.myState = padded(normalised(typed.myState), qso::myState.width, "the state");
    settings.myNumber = padded(normalised(typed.myNumber), qso::myNumber.width, "the SKCC number");
    settings.bonusStation =
        padded(normalised(typed.bonusStation), qso::hisCall.width, "the bonus station");
    settings.contestText = normalised(typed.contestText);
    settings.logFileName = normalised(typed.logFileName);
    return settings;
}

void saveSettings(Files& files, const OperatingSettings& settings) {
    std::string bytes;
    for (const SettingLine& line : settingLines)
        bytes += settings.*line.field + "\r\n";
    files.rewrite(configurationFile, bytes);
}

OperatingSettings loadSettings(const Files& files) {
    OperatingSettings settings;
    if (!files.present(configurationFile))
        return settings;
    std::string bytes = files.read(configurationFile);
    if (bytes.starts_with(utf8Mark)) // an editor has written it
        bytes.erase(0, utf8Mark.size());
    ItemReader reader(bytes);
    for (const SettingLine& line : settingLines) {
        if (reader.atEnd())
            throw RuntimeError(ErrorCode::inputPastEnd, files.path(configurationFile) + ": line " +
                                                            std::to_string(reader.line() + 1) +
                                                            " (" + std::string(line.name) +
                                                            ") is missing\nDELETE THE FILE "
                                                            "TO START WITH THE DEFAULTS");
        settings.*line.field = std::string(trimRight(reader.next()));
    }
    return settings;
}

} // namespace vantrel
