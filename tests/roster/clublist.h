// SPDX-License-Identifier: MIT
// Members, and the lines that the club's list has of them.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace vantrel::test {

struct ListedMember {
    std::string number, call, name, state;
};

// `count` members, no two with one call, with names and states as operators write them.
inline std::vector<ListedMember> madeUpMembers(int count) {
    static constexpr std::array names{"JOHN", "Bob", "Christopher J", "", "  Ann ", "Bj\xF6rn"};
    static constexpr std::array states{"MA", "ny", "CA ", "", "ONT", "DLX4", " G"};
    static constexpr std::array awards{"", "C", "T", "S"};
    std::vector<ListedMember> members;
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
        members.push_back({std::to_string(i * 7919 % 25000) + awards[i % awards.size()],
                           "K" + std::to_string(i) + "XY", names[i % names.size()],
                           states[i % states.size()]});
    return members;
}

// The line of "skccdata.txt"; every third one without its last separator.
inline std::string dataLine(const ListedMember& m, std::size_t i) {
    return m.number + "|" + m.call + "|" + m.name + "|Some, Town|" + m.state +
           "||1234|291|01 Jan 2010|02 Feb 2011|" + (i % 3 == 0 ? "" : "|");
}

} // namespace vantrel::test
