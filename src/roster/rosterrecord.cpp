// SPDX-License-Identifier: MIT
#include "roster/rosterrecord.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr int leastDigits = 4;

bool hasAwardLetter(std::string_view number) {
    return number.ends_with('C') || number.ends_with('T');
}

std::string_view withoutAwardLetter(std::string_view number) {
    return hasAwardLetter(number) ? left(number, length(number) - 1) : number;
}

// No number at all stays none: zeros would make it somebody's.
std::string withLeadingZeros(std::string_view digits) {
    const int missing = digits.empty() ? 0 : std::max(leastDigits - length(digits), 0);
    return std::string(static_cast<std::size_t>(missing), '0') + std::string(digits);
}

} // namespace

std::size_t rosterFileOf(std::string_view call) {
    constexpr std::string_view ownFiles = "AKNW";
    const std::size_t found = call.empty() ? std::string_view::npos : ownFiles.find(call.front());
    return found == std::string_view::npos ? ownFiles.size() : found;
}

std::string normalisedNumber(std::string_view number) {
    const std::string_view digits = withoutAwardLetter(number);
    return withLeadingZeros(digits) + std::string(midToEnd(number, length(digits) + 1));
}

std::string memberRecord(std::string_view number, std::string_view call, std::string_view name,
                         std::string_view state) {
    std::string record = leftAligned(trimLeft(call), member::call.width);
    record.reserve(member::width);
    record += leftAligned(normalisedNumber(upper(trim(number))), member::number.width);
    record += leftAligned(trim(left(name, member::name.width)), member::name.width);
    record += leftAligned(trim(left(state, member::state.width)), member::state.width);
    return upper(record);
}

std::string numberKey(std::string_view number) {
    return withLeadingZeros(withoutAwardLetter(number));
}

} // namespace vantrel
