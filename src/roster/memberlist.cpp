// SPDX-License-Identifier: MIT
#include "roster/memberlist.h"

#include "platform/filenames.h"
#include "roster/rosterfiles.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr char separator = '|';
constexpr int searchedColumns = 200;
constexpr std::size_t dataFields = 11;
constexpr std::size_t memberFields = 6;
constexpr std::size_t datedMemberFields = 7;
constexpr std::string_view dateHeading = "|DATE ISSUED|";

enum Field : std::size_t { firstNumber = 0, call = 1, name = 2, state = 4 };

// Every header of either list begins with these letters, and no member's line does.
bool isHeader(std::string_view line) {
    return line.starts_with("skcc") || line.starts_with("SKCC");
}

// Separators count in the first 200 columns; the last field runs to the end of the line.
std::vector<std::string_view> split(std::string_view line) {
    std::vector<std::string_view> fields;
    const std::string_view searched = left(line, searchedColumns);
    std::size_t start = 0;
    for (std::size_t end = searched.find(separator); end != std::string_view::npos;
         end = searched.find(separator, start)) {
        fields.push_back(line.substr(start, end - start));
        start = end + 1;
    }
    fields.push_back(line.substr(start));
    return fields;
}

bool isBlank(std::string_view text) {
    return trim(text).empty();
}

bool isNumber(std::string_view field) {
    const std::string number = upper(trim(field));
    return !number.empty() && isDigit(number.front()) &&
           std::ranges::all_of(
               number, [](char character) { return isDigit(character) || isCapital(character); });
}

bool isAscii(char character) {
    return static_cast<unsigned char>(character) < 0x80;
}

// Whether all of the text is valid UTF-8 by RFC 3629: no overlong forms, no surrogates.
bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const auto first = static_cast<unsigned char>(text.front());
        const std::size_t size = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
        if ((first >= 0x80 && first < 0xC2) || first > 0xF4 || text.size() < size)
            return false;
        const auto second = static_cast<unsigned char>(text[size == 1 ? 0 : 1]);
        if ((first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
            (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F))
            return false;
        for (const char character : text.substr(1, size - 1))
            if ((static_cast<unsigned char>(character) & 0xC0) != 0x80)
                return false;
        text.remove_prefix(size);
    }
    return true;
}

} // namespace

std::string downloadByHand(std::string_view programFolder) {
    return "DOWNLOAD SKCCDATA.TXT FROM " + std::string(listsAddress) + ", PUT IT INTO " +
           std::string(programFolder) +
           " AND TAKE THE FIRST CHOICE THEN (WITH SKCCLIST.TXT THE SECOND).";
}

std::vector<std::string> linesOfList(std::string_view bytes, std::size_t most) {
    const bool isMarked = bytes.starts_with(utf8Mark);
    const bool convert = isMarked || isUtf8(bytes);
    bytes.remove_prefix(isMarked ? utf8Mark.size() : 0);
    std::vector<std::string> lines;
    while (!bytes.empty() && lines.size() < most) {
        // find_first_of("\r\n") takes four times as long.
        const auto* const end = std::ranges::find_if(
            bytes, [](char character) { return character == '\n' || character == '\r'; });
        std::string line(bytes.begin(), end);
        bytes.remove_prefix(line.size());
        bytes.remove_prefix(bytes.starts_with("\r\n") ? 2 : std::min<std::size_t>(bytes.size(), 1));
        if (convert && !std::ranges::all_of(line, isAscii))
            line = shownText(line);
        std::ranges::replace_if(line, isControl, ' ');
        lines.push_back(std::move(line));
    }
    return lines;
}

void MemberListReader::readHeader(std::string_view header) {
    if (m_list == MemberList::data)
        return;
    m_wrongList = m_wrongList || split(header).size() > datedMemberFields + 1;
    const bool dated = upper(header).find(dateHeading) != std::string::npos;
    m_headersFields = dated ? datedMemberFields : memberFields;
}

// How many fields a line with these must have; 0 for a line of the other list.
std::size_t MemberListReader::fieldCount(const Fields& fields) const {
    if (m_list == MemberList::data)
        return dataFields;
    if (m_wrongList || fields.size() >= dataFields)
        return 0;
    if (m_headersFields != 0 || fields.size() < datedMemberFields)
        return m_headersFields != 0 ? m_headersFields : memberFields;
    // Without a header: is an empty seventh field the number, or a separator behind six fields? It
    // is a separator when the sixth is a number.
    const bool sixthIsLast =
        isBlank(fields[datedMemberFields - 1]) && isNumber(fields[memberFields - 1]);
    return sixthIsLast ? memberFields : datedMemberFields;
}

ListLine MemberListReader::read(std::string_view line) {
    if (isHeader(line)) {
        readHeader(line);
        return ListLine::other;
    }
    if (isBlank(line))
        return ListLine::other;
    const Fields fields = split(line);
    const std::size_t count = fieldCount(fields);
    if (count == 0 || fields.size() < count)
        return ListLine::malformed;
    const auto behind = fields.begin() + static_cast<std::ptrdiff_t>(count);
    const std::string callField = withoutSeparators(fields[Field::call]);
    const bool numberIsLast = m_list == MemberList::members && !isBlank(fields[count - 1]);
    const std::string_view number = fields[numberIsLast ? count - 1 : Field::firstNumber];
    if (!std::all_of(behind, fields.end(), isBlank) || isBlank(callField) || !isNumber(number))
        return ListLine::malformed;
    m_record = memberRecord(number, callField, withoutSeparators(fields[Field::name]),
                            withoutSeparators(fields[Field::state]));
    return ListLine::member;
}

} // namespace vantrel
