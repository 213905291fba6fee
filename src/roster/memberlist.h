// SPDX-License-Identifier: MIT
// The club's two published member lists: their names, and cutting a line into its fields.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

inline constexpr std::string_view dataListFile = "skccdata.txt";
inline constexpr std::string_view memberListFile = "SKCCLIST.TXT";
// Where the club publishes its lists: shown for the operator to copy.
inline constexpr std::string_view listsAddress = "https://www.skccgroup.com";
// The program that downloads both lists into its own folder.
inline constexpr std::string_view fetcherProgram = "ROSTFETCH.EXE";

// data: eleven fields, the number is the first. members: six fields, seven where the header
// tells of a date; the number with its award letter is the last. In both the call is the
// second field, the name the third and the state the fifth.
enum class MemberList { data, members };

enum class ListLine { member, other, malformed };

// Cuts the lines of one list, in their order: a header may change what follows.
class MemberListReader {
public:
    explicit MemberListReader(MemberList list);

    // What the line is: a member, whose record() then holds his 33 columns; a header or blank
    // line; or one that lacks fields. Only the first 200 columns are searched for separators.
    // The last field's separator may be missing.
    ListLine read(std::string_view line);
    const std::string& record() const { return m_record; }

private:
    MemberList m_list;
    std::size_t m_fieldCount;
    std::vector<std::string_view> m_fields; // of the line read last
    std::string m_record;
};

} // namespace vantrel
