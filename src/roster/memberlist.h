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
// What to do without that program, which not everybody has.
std::string downloadByHand(std::string_view programFolder);

// data: eleven fields, the number is the first. members: six fields, seven where the header
// tells of a date, either without a header; the number with its award letter is the last, or
// where that is empty the first. In both the call is the second field, the name the third and
// the state the fifth.
enum class MemberList { data, members };

enum class ListLine { member, other, malformed };

// A list's lines, ended by CR LF, LF or CR; a UTF-8 mark in front of the first is no part of
// it. Views point into the bytes.
class ListLines {
public:
    explicit ListLines(std::string_view bytes);

    bool atEnd() const { return m_rest.empty(); }
    std::string_view next();

private:
    std::string_view m_rest;
};

// Cuts the lines of one list, in their order: a header may change what follows.
class MemberListReader {
public:
    explicit MemberListReader(MemberList list) : m_list(list) {}

    // What the line is: a member, whose record() then holds his 33 columns; a header or blank
    // line; or one that must not get into the roster. A member's line has its fields within its
    // first 200 columns and nothing but separators behind them, a call, and a number: digits and
    // letters that begin with a digit. Of the members' list no line has as many separators as the
    // data list's, and none counts behind a header of that list: who takes the wrong list for
    // this one would lose every award letter.
    ListLine read(std::string_view line);
    const std::string& record() const { return m_record; }

private:
    void readHeader(std::string_view header);
    std::size_t fieldCount() const;

    MemberList m_list;
    std::size_t m_headersFields = 0; // of the members' list; 0: no header yet
    bool m_wrongList = false;
    std::vector<std::string_view> m_fields; // of the line read last
    std::string m_record;
};

} // namespace vantrel
