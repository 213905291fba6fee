// SPDX-License-Identifier: MIT
// Looking a member up while a contact is entered: by call, and by number.
#pragma once

#include "roster/rosterfiles.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
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

// The five roster files as they are on the disk now. What was read is used again until a file
// changes: a call is looked up while the operator is sending.
class Roster {
public:
    explicit Roster(const Files& files) : m_files(files) {}

    // The first member with exactly this call, among the first 8,000 records of the file for
    // its first letter; the text is compared as it stands, so lower case or a blank behind it
    // finds nobody. A missing file is an empty one. Throws as Files::read.
    std::optional<Member> findByCall(std::string_view callBoxText);

    // The first member, in the order of the files and of their lines, whose number begins
    // with the one typed: four digits also find a five-digit number that comes first. Case,
    // blanks around the text and an award letter C or T do not matter. notANumber (two
    // letters or more) and nobody are told apart, because the first is a call. A missing file
    // is an empty one. Throws as Files::read.
    NumberMatch findByNumber(std::string_view callBoxText);

    // Whether any of the files has a record.
    bool hasMembers();

    // Members whose call begins with the text, shorter calls first; then those whose call contains
    // it; when there are none of either, those whose call is one letter away (another, one more,
    // one less). At most `most`, in the order of the files among equals. Looked through are the
    // records that findByCall looks through. Throws as Files::read.
    std::vector<Member> partialMatches(std::string_view text, std::size_t most);

private:
    struct ReadFile {
        std::string stamp; // of the file that was read; empty: read it again
        std::string bytes;
        std::vector<std::string_view> records; // those that are looked through
        std::unordered_map<std::string_view, std::string_view> recordOfCall; // the first one
    };

    ReadFile& current(std::size_t file);

    const Files& m_files;
    std::array<ReadFile, rosterFiles.size()> m_read;
};

} // namespace vantrel
