// SPDX-License-Identifier: MIT
#include "screens/main/frequency.h"

#include "base/fixedtext.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr int decimals = 3;

bool startsWithAnyOf(std::string_view text, std::initializer_list<std::string_view> beginnings) {
    return std::ranges::any_of(
        beginnings, [&](std::string_view beginning) { return text.starts_with(beginning); });
}

// From the band of the text on, so many places of the table at a time, to the next sprint band.
const Band& sprintBandAfter(std::string_view bandText, std::size_t places) {
    std::size_t band = 0;
    while (band < bands.size() && (bands[band].text.empty() || bands[band].text != bandText))
        ++band;
    if (band == bands.size())
        return bands.front();
    do
        band = (band + places) % bands.size();
    while (bands[band].text.empty());
    return bands[band];
}

std::string withPointAfter(std::string_view digits, int whole) {
    return std::string(left(digits, whole)) + '.' + std::string(midToEnd(digits, whole + 1));
}

} // namespace

std::string frequencyAsEntered(std::string_view typed) {
    std::string entry(trim(typed));
    std::ranges::replace(entry, ',', '.');
    if (allDigits(entry) && (length(entry) == 3 || length(entry) == 4) &&
        startsWithAnyOf(entry, {"18", "19", "3", "5", "7"}))
        return withPointAfter(entry + (length(entry) == 3 ? "0" : ""), 1);
    if (allDigits(entry) && length(entry) == 5 &&
        startsWithAnyOf(entry, {"10", "14", "18", "21", "24", "28"}))
        return withPointAfter(entry, 2);
    const std::size_t point = entry.find('.');
    if (point == std::string::npos)
        return entry;
    const std::string_view whole = std::string_view(entry).substr(0, point);
    const std::string_view fraction = std::string_view(entry).substr(point + 1);
    if (!allDigits(whole) || !allDigits(fraction) || entry.size() == 1)
        return std::string(trim(typed));
    std::string three(left(fraction, decimals));
    three.resize(decimals, '0');
    return std::string(whole) + '.' + three;
}

std::string completedFrequency(std::string_view entry) {
    const std::string frequency(entry);
    switch (length(entry)) {
    case 1:
        return frequency + ".000";
    case 2:
        return frequency + (entry.back() == '.' ? "000" : ".000");
    case 3:
    case 4: // "7.04" gets one zero too many, which the kHz field leaves out
        return frequency + "00";
    default:
        return frequency;
    }
}

bool isOutsideSprintBands(std::string_view mhz, std::string_view khzField) {
    return startsWithAnyOf(mhz, {"10.", "18.", "24."}) ||
           (khzFault(khzField, khzField).empty() && startsWithAnyOf(khzField, {"10", "18", "24"}));
}

std::string khzField(std::string_view mhz) {
    std::string khz(mhz);
    const std::size_t point = khz.find('.');
    if ((khz.size() == 5 && point == 1) || (khz.size() == 6 && (point == 1 || point == 2)))
        khz.erase(point, 1).resize(point + 3);
    return khz.size() == 4 ? ' ' + khz : khz.substr(0, 5);
}

std::string khzFault(std::string_view field, std::string_view typed) {
    const std::string shown = '"' + std::string(trim(typed)) + '"';
    if (length(field) != 5 || !allDigits(trimLeft(field)) || trim(field).empty())
        return shown + " IS NO FREQUENCY. TYPE IT LIKE 14.050, 14050 OR 7.04";
    return isOnBand(field) ? "" : shown + " IS ON NO BAND";
}

std::string bandTagOf(std::string_view mhz) {
    const Band* band = bandOfMhz(mhz);
    return std::string(band == nullptr ? left(mhz, 2) : band->bandTag);
}

const Band& bandUp(std::string_view bandText) {
    return sprintBandAfter(bandText, 1);
}

const Band& bandDown(std::string_view bandText) {
    return sprintBandAfter(bandText, bands.size() - 1);
}

} // namespace vantrel
