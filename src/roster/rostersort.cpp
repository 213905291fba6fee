// SPDX-License-Identifier: MIT
#include "roster/rostersort.h"

#include "base/boundedtable.h"
#include "base/itemreader.h"
#include "platform/files.h"
#include "roster/rosterrecord.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr int sortedLinesCapacity = 8000;
// The last column of the call and the first nine of the number, so a call of ten characters
// that ends in a digit puts its digit before the number: the files that operators pass on to
// each other are in this order.
constexpr Column sortKey{member::call.last(), 10};

struct RosterLine {
    long long key;
    std::string_view text;
};

std::vector<RosterLine> rosterLines(const std::string& name, std::string_view bytes) {
    BoundedTable<RosterLine> lines("the sort of " + name, sortedLinesCapacity);
    ItemReader reader(bytes);
    while (!reader.atEnd()) {
        const std::string_view line = reader.next();
        lines.append({numericValue(sortKey.of(line)), line});
    }
    return lines.entries();
}

std::string sortedByNumber(const std::string& name, std::string_view bytes) {
    std::vector<RosterLine> lines = rosterLines(name, bytes);
    std::stable_sort(lines.begin(), lines.end(),
                     [](const RosterLine& a, const RosterLine& b) { return a.key < b.key; });
    std::string sorted;
    sorted.reserve(bytes.size() + 2);
    for (const RosterLine& line : lines) {
        sorted += line.text;
        sorted += "\r\n";
    }
    return sorted;
}

} // namespace

void sortRosterFiles(Files& files) {
    std::vector<FileContent> sorted;
    for (const std::string_view file : rosterFiles) {
        const std::string name(file);
        sorted.push_back({name, sortedByNumber(name, files.read(name))});
    }
    files.rewriteAll(sorted);
}

} // namespace vantrel
