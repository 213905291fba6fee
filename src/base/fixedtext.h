// SPDX-License-Identifier: MIT
// Fixed-width text: columns, trimming, padding, upper case. One byte is one column
// (ISO 8859-1); nothing here depends on the locale. Columns count from 1.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

// The mark that some editors put in front of a UTF-8 text.
inline constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

// `count` bytes from column `first`; shorter or empty when the text ends before.
std::string_view mid(std::string_view text, int first, int count);
// From column `first` to the end of the text.
std::string_view midToEnd(std::string_view text, int first);
// The first, or last, `count` bytes; the whole text when it is shorter.
std::string_view left(std::string_view text, int count);
std::string_view right(std::string_view text, int count);

// The text's length in columns.
int length(std::string_view text);

// Without leading and trailing blanks (blanks only: no tabs, no other white space).
std::string_view trim(std::string_view text);
std::string_view trimLeft(std::string_view text);
std::string_view trimRight(std::string_view text);

// Upper case of ISO 8859-1: a-z and the accented letters that have a capital there
// (not the sharp s, not y with diaeresis).
char upper(char character);
std::string upper(std::string_view text);

bool isDigit(char character);
// 0x00 to 0x1F and 0x7F to 0x9F.
bool isControl(char character);
// True for the empty text too.
bool allDigits(std::string_view text);
// A to Z.
bool isCapital(char character);
// How many characters of the text are A to Z.
int countCapitals(std::string_view text);

// Padded with blanks on the right to `width`. Throws RuntimeError 5 naming `field` when the text is
// longer.
std::string padded(std::string_view text, int width, std::string_view field);
// Cut to `width` or padded to it with blanks on the right. Never throws.
std::string leftAligned(std::string_view text, int width);
// Cut to the first `width` or padded to it with blanks on the left. Never throws.
std::string rightAligned(std::string_view text, int width);
std::string blanks(int count);

// Commas and control characters as blanks: a comma would split the line for its readers.
std::string withoutSeparators(std::string_view text);
// The same with double quotes too, which the configuration file cannot hold.
std::string withoutSeparatorsAndQuotes(std::string_view text);

// The number at the beginning of the text: blanks are skipped, then an optional sign and digits are
// read; 0 without digits. Throws RuntimeError 6 beyond 64 bits.
long long numericValue(std::string_view text);

// "1 LINE", "3 LINES", "0 LINES".
std::string counted(long long count, std::string_view noun);

// `value` as decimal text, zero-padded on the left to `digits`.
std::string zeroPadded(int value, int digits);

} // namespace vantrel
