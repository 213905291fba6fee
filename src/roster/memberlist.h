// SPDX-License-Identifier: MIT
// The club's two published member lists: their names, and cutting a line into its fields.
#pragma once

#include <cstddef>
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
// Advice for those who have not got that program.
std::string downloadByHand(std::string_view programFolder);

// Fields are separated by `|`; the second is the call, the third the name, the fifth the state.
// data: eleven fields, the first is the number. members: six fields, seven when the header has a
// date, either when there is no header; the last is the number with its award letter, and where it
// is empty the first is.
enum class MemberList { data, members };

enum class ListLine { member, other, malformed };

// A list's first lines, `most` at the most. They end with CR LF, LF or CR, and are handed back as
// text in ISO 8859-1 without control characters (blanks in their place). A list that begins with
// the UTF-8 mark or is valid UTF-8 throughout is converted; what ISO 8859-1 does not have becomes
// `?`. The mark is no part of the first line.
std::vector<std::string> linesOfList(std::string_view bytes, std::size_t most);

// Makes member records from the lines of one list, given in their order: a header decides how the
// lines behind it are read.
class MemberListReader {
public:
    explicit MemberListReader(MemberList list) : m_list(list) {}

    // What the line (of linesOfList) is: a member, whose record() then holds his 33 columns; a
    // header or blank line; or malformed and not to be imported. A member's line has its fields
    // within its first 200 columns and nothing but separators behind them, a call, and a number:
    // digits and letters that begin with a digit. In the members' list a line with as many
    // separators as the data list has is malformed, and so is every line behind a header of the
    // data list: importing that list as this one would take every award letter from the roster.
    ListLine read(std::string_view line);
    const std::string& record() const { return m_record; }

private:
    using Fields = std::vector<std::string_view>;
    void readHeader(std::string_view header);
    std::size_t fieldCount(const Fields& fields) const;

    MemberList m_list;
    std::size_t m_headersFields = 0; // of the members' list; 0: no header yet
    bool m_wrongList = false;
    std::string m_record;
};

} // namespace vantrel
