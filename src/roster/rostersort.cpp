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

std::string sortedByNumber(const std::string& name, std::string_view bytes) {
    BoundedTable<std::string_view> table("the sort of " + name, sortedLinesCapacity);
    ItemReader reader(bytes);
    while (!reader.atEnd())
        table.append(reader.next());
    std::vector<std::string_view> lines = table.entries();
    std::stable_sort(lines.begin(), lines.end(), [](std::string_view a, std::string_view b) {
        return numericValue(sortKey.of(a)) < numericValue(sortKey.of(b));
    });
    return joinLines(lines);
}

} // namespace

void sortRosterFiles(Files& files) {
    for (const std::string_view file : rosterFiles)
        files.rewrite(file, sortedByNumber(std::string(file), files.read(file)));
}

} // namespace vantrel
