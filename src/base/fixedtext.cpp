// SPDX-License-Identifier: MIT
#include "base/fixedtext.h"

#include "base/runtimeerror.h"

#include <algorithm>
#include <charconv>

namespace vantrel {

namespace {

std::size_t toSize(int count) {
    return static_cast<std::size_t>(std::max(count, 0));
}

} // namespace

std::string_view mid(std::string_view text, int first, int count) {
    return midToEnd(text, first).substr(0, toSize(count));
}

std::string_view midToEnd(std::string_view text, int first) {
    const std::size_t start = toSize(first - 1);
    return start < text.size() ? text.substr(start) : std::string_view();
}

std::string_view left(std::string_view text, int count) {
    return text.substr(0, toSize(count));
}

std::string_view right(std::string_view text, int count) {
    return text.size() > toSize(count) ? text.substr(text.size() - toSize(count)) : text;
}

int length(std::string_view text) {
    return static_cast<int>(text.size());
}

std::string_view trimLeft(std::string_view text) {
    const std::size_t start = text.find_first_not_of(' ');
    return start == std::string_view::npos ? std::string_view() : text.substr(start);
}

std::string_view trimRight(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view trim(std::string_view text) {
    return trimRight(trimLeft(text));
}

char upper(char character) {
    const auto byte = static_cast<unsigned char>(character);
    const bool ascii = byte >= 'a' && byte <= 'z';
    const bool accented = byte >= 0xE0 && byte <= 0xFE && byte != 0xF7; // 0xF7: division sign
    return ascii || accented ? static_cast<char>(byte - 0x20) : character;
}

std::string upper(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](char character) { return upper(character); });
    return result;
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool isControl(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < 0x20 || (byte >= 0x7F && byte < 0xA0);
}

bool allDigits(std::string_view text) {
    return std::ranges::all_of(text, isDigit);
}

bool isCapital(char character) {
    return character >= 'A' && character <= 'Z';
}

int countCapitals(std::string_view text) {
    return static_cast<int>(std::ranges::count_if(text, isCapital));
}

std::string padded(std::string_view text, int width, std::string_view field) {
    if (length(text) > width)
        throw RuntimeError(ErrorCode::invalidCall, std::string(field) + " is longer than " +
                                                       std::to_string(width) + " characters: \"" +
                                                       std::string(text) + "\"");
    return leftAligned(text, width);
}

std::string leftAligned(std::string_view text, int width) {
    std::string result(left(text, width));
    result.resize(toSize(width), ' ');
    return result;
}

std::string rightAligned(std::string_view text, int width) {
    const std::string_view kept = left(text, width);
    return blanks(width - length(kept)) + std::string(kept);
}

std::string blanks(int count) {
    return std::string(toSize(count), ' ');
}

std::string withoutSeparators(std::string_view text) {
    std::string result(text);
    std::ranges::replace_if(
        result, [](char character) { return character == ',' || isControl(character); }, ' ');
    return result;
}

std::string withoutSeparatorsAndQuotes(std::string_view text) {
    std::string result = withoutSeparators(text);
    std::ranges::replace(result, '"', ' ');
    return result;
}

long long numericValue(std::string_view text) {
    std::string_view rest = trimLeft(text);
    const bool negative = !rest.empty() && rest.front() == '-';
    if (!rest.empty() && (rest.front() == '-' || rest.front() == '+'))
        rest.remove_prefix(1);
    if (rest.empty() || !isDigit(rest.front()))
        return 0;
    long long value = 0;
    const auto result = std::from_chars(rest.data(), rest.data() + rest.size(), value);
    if (result.ec == std::errc::result_out_of_range)
        throw RuntimeError(ErrorCode::overflow, "the number " + std::string(rest));
    return negative ? -value : value;
}

std::string counted(long long count, std::string_view noun) {
    return std::to_string(count) + ' ' + std::string(noun) + (count == 1 ? "" : "S");
}

std::string zeroPadded(int value, int digits) {
    const std::string text = std::to_string(value);
    return std::string(toSize(digits - length(text)), '0') + text;
}

} // namespace vantrel
