// SPDX-License-Identifier: MIT
#include "screens/main/frequency.h"

#include "base/fixedtext.h"
#include "log/bands.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr int decimals = 3;

bool allDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), isDigit);
}

bool startsWithAnyOf(std::string_view text, std::initializer_list<std::string_view> beginnings) {
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&](std::string_view beginning) { return text.starts_with(beginning); });
}

std::string withPointAfter(std::string_view digits, int whole) {
    return std::string(left(digits, whole)) + '.' + std::string(midToEnd(digits, whole + 1));
}

} // namespace

std::string frequencyAsEntered(std::string_view typed) {
    const std::string_view entry = trim(typed);
    if (length(entry) == 4 && allDigits(entry) && startsWithAnyOf(entry, {"18", "19", "3", "7"}))
        return withPointAfter(entry, 1);
    if (length(entry) == 5 && allDigits(entry) &&
        startsWithAnyOf(entry, {"10", "14", "18", "21", "24", "28"}))
        return withPointAfter(entry, 2);
    const std::size_t point = entry.find('.');
    if (point == std::string_view::npos)
        return std::string(typed);
    const std::string_view whole = entry.substr(0, point);
    const std::string_view fraction = entry.substr(point + 1);
    if (!allDigits(whole) || !allDigits(fraction) || entry.size() == 1)
        return std::string(typed);
    std::string three(left(fraction, decimals));
    three.resize(decimals, '0');
    return std::string(whole) + '.' + three;
}

std::string completedFrequency(std::string_view entry) {
    std::string frequency(entry);
    if (length(frequency) >= 5)
        return frequency;
    // One after the other, each on the result of the one before. That "7.04" gets two zeros
    // and six characters is meant so: the kHz field takes it all the same.
    if (length(frequency) == 1)
        frequency += ".000";
    if (length(frequency) == 2 && frequency[1] == '.')
        frequency += "000";
    if (length(frequency) == 2)
        frequency += ".000";
    if (length(frequency) == 3 || length(frequency) == 4)
        frequency += "00";
    return frequency;
}

bool isOutsideSprintBands(std::string_view mhz) {
    return startsWithAnyOf(mhz, {"10.", "18.", "24."});
}

std::string khzField(std::string_view mhz) {
    std::string f(mhz);
    const auto pointAt = [&](int column) { return mid(f, column, 1) == "."; };
    const auto part = [&](int first, int count) { return std::string(mid(f, first, count)); };
    if (length(f) == 5 && pointAt(2))
        f = ' ' + part(1, 1) + part(3, 3);
    if (length(f) == 6 && pointAt(2))
        f = part(1, 1) + part(3, 3);
    if (length(f) == 6 && pointAt(3))
        f = part(1, 2) + part(4, 3);
    if (length(f) > 5)
        f = part(1, 5);
    if (length(f) == 4)
        f = ' ' + f;
    return f;
}

bool isLoggableKhz(std::string_view field) {
    const auto blankOrDigit = [](char character) { return character == ' ' || isDigit(character); };
    return length(field) == 5 && std::all_of(field.begin(), field.end(), blankOrDigit) &&
           std::any_of(field.begin(), field.end(), isDigit);
}

std::string bandTagOf(std::string_view mhz) {
    const Band* band = bandOfMhz(mhz);
    return std::string(band == nullptr ? left(mhz, 2) : band->bandTag);
}

} // namespace vantrel
