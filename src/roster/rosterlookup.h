// SPDX-License-Identifier: MIT
// Looking a member up while a contact is entered: by call, and by number.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

class Files;

// What a member record says, each field with its padding; shorter or empty where the record
// is cut short.
struct Member {
    std::string call;   // 10
    std::string number; // 10
    std::string name;   // 10
    std::string state;  // 3
};

// The first member with exactly this call, among the first 8,000 records of the file for its
// first letter; the text is compared as it stands, so lower case or a blank behind it finds
// nobody. rosterFile receives the path looked into. A missing file is an empty one. Throws as
// Files::read.
std::optional<Member> findByCall(const Files& files, std::string_view callBoxText,
                                 std::string& rosterFile);

enum class NumberLookup { notANumber, nobody, found };

struct NumberMatch {
    NumberLookup outcome;
    std::string call{}; // 10, when found
};

// The first member, in the order of the files and of their lines, whose number begins with
// the one typed: four digits also find a five-digit number that comes first. Case, blanks
// around the text and an award letter C or T do not matter. notANumber (two letters or more)
// and nobody are told apart, because the first is a call. A missing file is an empty one.
// Throws as Files::read.
NumberMatch findByNumber(const Files& files, std::string_view callBoxText);

} // namespace vantrel
