// SPDX-License-Identifier: MIT
// Bringing the five roster files up to date from one of the club's member lists.
#pragma once

#include "roster/memberlist.h"

#include <functional>
#include <string>
#include <string_view>

namespace vantrel {

class Files;

// How far an import is, for its page: passed when a phase begins (line 0) and at each list line.
struct ImportStep {
    std::string_view phase; // in the operator's words
    int line = 0;           // of the list, from 1
    int lines = 0;          // in the whole list
};

// Returns false to give the import up.
using ImportProgress = std::function<bool(const ImportStep&)>;

struct ImportResult {
    bool finished = false;  // false: given up, no file touched
    int lines = 0;          // of the list
    int members = 0;        // in them
    int added = 0;          // members new to the roster
    int fixed = 0;          // members whose stored number differed from the list's
    int skipped = 0;        // lines that are no member, header or blank
    bool otherList = false; // all of them are members' lines of the other list
};

// Merges the list `listPath` into the roster files: a member already there (the first line with
// his call) is rewritten in place, a new one appended to the file of his call's first letter.
// All five files are then rewritten, or none; a missing one is an empty one. Where a record is new
// or changed, the five files as they were are kept as "SKSDB1.TXT.BAK" and so on. A list of nothing
// but lines that are skipped writes no file. Throws RuntimeError 9 naming the table for a list of
// more than 20,000 lines or a roster file beyond its capacity, 53 for a missing list, and as
// Files::rewriteAll; no roster file is touched then.
ImportResult importMembers(Files& files, MemberList list, std::string_view listPath,
                           const ImportProgress& progress);

// "DONE. . . . 3 MBRS ADDED. Click EXIT"; the page of the members' list has its own wording.
std::string addedText(MemberList list, int added);
// "3 LINES SKIPPED", and that it is the other list; empty for none.
std::string skippedText(MemberList list, const ImportResult& result);
// Where a missing list comes from, and where it may be.
std::string missingListText(const Files& files, std::string_view listPath);

} // namespace vantrel
