// SPDX-License-Identifier: MIT
#include "roster/memberlist.h"

#include "roster/rosterrecord.h"

namespace vantrel {

namespace {

constexpr char separator = '|';
constexpr int searchedColumns = 200;
constexpr std::size_t dataFields = 11;
constexpr std::size_t memberFields = 6;
constexpr std::size_t datedMemberFields = 7;
constexpr std::string_view dateHeading = "|date issued|";

enum Field : std::size_t { memberNumber = 0, call = 1, name = 2, state = 4 };

// Every header of either list begins so, and no member does.
bool isHeader(std::string_view line) {
    return line.starts_with("skcc") || line.starts_with("SKCC");
}

// All fields of the line into `fields`; the last runs to its end.
void split(std::string_view line, std::vector<std::string_view>& fields) {
    fields.clear();
    const std::string_view searched = left(line, searchedColumns);
    std::size_t start = 0;
    for (std::size_t end = searched.find(separator); end != std::string_view::npos;
         end = searched.find(separator, start)) {
        fields.push_back(line.substr(start, end - start));
        start = end + 1;
    }
    fields.push_back(line.substr(start));
}

} // namespace

MemberListReader::MemberListReader(MemberList list)
    : m_list(list), m_fieldCount(list == MemberList::data ? dataFields : memberFields) {}

ListLine MemberListReader::read(std::string_view line) {
    if (isHeader(line)) {
        if (m_list == MemberList::members && line.find(dateHeading) != std::string_view::npos)
            m_fieldCount = datedMemberFields;
        return ListLine::other;
    }
    if (trim(line).empty())
        return ListLine::other;
    std::vector<std::string_view>& fields = m_fields; // its memory is used for every line
    split(line, fields);
    if (fields.size() < m_fieldCount)
        return ListLine::malformed;
    if (fields.size() > m_fieldCount && fields.back().empty()) // what follows the last separator
        fields.pop_back();
    const std::string_view number =
        m_list == MemberList::data ? fields[Field::memberNumber] : fields.back();
    m_record = memberRecord(number, fields[Field::call], fields[Field::name], fields[Field::state]);
    return ListLine::member;
}

} // namespace vantrel
