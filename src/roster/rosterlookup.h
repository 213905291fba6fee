// SPDX-License-Identifier: MIT
// Looking a member up while a contact is entered: by call, and by number.
#pragma once

#include "roster/rosterfiles.h"

#include <array>
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

// Lookups in the five roster files as they are on the disk now; a missing file is an empty one.
// What was read is kept until a file changes: members are looked up at each key. All throw as
// Files::read.
class Roster {
public:
    explicit Roster(const Files& files) : m_files(files) {}

    // The first member with exactly this call, among the first 8,000 records of the file for
    // its first letter; the text is compared as it stands, so lower case or a blank behind it
    // finds nobody.
    std::optional<Member> findByCall(std::string_view callBoxText);

    // The call (10) of the first member, in the order of the files and of their lines, whose
    // number begins with the one typed: four digits also find a five-digit number that comes
    // first. Case, blanks around the text and an award letter C or T do not matter. Empty when
    // nobody has it; nothing for a text of two letters or more, which is a call and no number.
    std::optional<std::string> callOfNumber(std::string_view callBoxText);

    // Reads the five files, so that the next lookup need not.
    void readAll();

    // Whether any of the files has a record.
    bool hasMembers();

    // Check partial: members whose call begins with the text, shorter calls first; then those
    // whose call contains it; when there are none of either, those one letter away (N+1: changed,
    // added or left out). At most `most`, otherwise in the order of the files. Looks through the
    // same records as findByCall.
    std::vector<Member> partialMatches(std::string_view text, std::size_t most);

private:
    struct ReadFile {
        std::string stamp; // Files::stamp of what was read; empty: read it again
        std::string bytes;
        std::vector<std::string_view> records; // the first 8,000
    };

    ReadFile& current(std::size_t file);

    const Files& m_files;
    std::array<ReadFile, rosterFiles.size()> m_read;
};

} // namespace vantrel
