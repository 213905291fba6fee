// SPDX-License-Identifier: MIT
// Looking a member up while a contact is entered: by call, and by number.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

enum class NumberLookup { notANumber, nobody, found };

struct NumberMatch {
    NumberLookup outcome;
    std::string call{}; // 10, when found
};

// Lookups in the five roster files. They read the files each time, so they follow every change; a
// missing file is an empty one. All throw as Files::read.
class Roster {
public:
    explicit Roster(const Files& files) : m_files(files) {}

    // The first member with exactly this call, among the first 8,000 records of the file for
    // its first letter; the text is compared as it stands, so lower case or a blank behind it
    // finds nobody.
    std::optional<Member> findByCall(std::string_view callBoxText) const;

    // The first member, in the order of the files and of their lines, whose number begins
    // with the one typed: four digits also find a five-digit number that comes first. Case,
    // blanks around the text and an award letter C or T do not matter. A text of two letters or
    // more is notANumber: it is a call.
    NumberMatch findByNumber(std::string_view callBoxText) const;

    // Whether any of the files has a record.
    bool hasMembers() const;

    // Check partial: members whose call begins with the text, shorter calls first; then those
    // whose call contains it; when there are none of either, those one letter away (N+1: changed,
    // added or left out). At most `most`, otherwise in the order of the files. Looks through the
    // same records as findByCall.
    std::vector<Member> partialMatches(std::string_view text, std::size_t most) const;

private:
    const Files& m_files;
};

} // namespace vantrel
