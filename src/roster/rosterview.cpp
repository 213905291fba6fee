// SPDX-License-Identifier: MIT
#include "roster/rosterview.h"

#include "base/boundedtable.h"
#include "base/itemreader.h"
#include "platform/files.h"
#include "roster/rosterrecord.h"

namespace vantrel {

RosterView viewRosterFile(const Files& files, std::size_t number) {
    const std::string_view name = rosterFiles.at(number - 1);
    const std::string bytes = files.read(name);
    BoundedTable<std::string> lines("the view of " + std::string(name), viewedLinesCapacity);
    ItemReader reader(bytes);
    while (!reader.atEnd())
        lines.append(std::string(reader.next()));
    return {files.path(name), lines.entries()};
}

int countMembers(const Files& files) {
    int members = 0;
    for (const std::string_view name : rosterFiles) {
        const std::string bytes = files.readOrEmpty(name);
        LineReader reader(bytes);
        while (!reader.atEnd())
            if (!trim(member::call.of(reader.next())).empty())
                ++members;
    }
    return members;
}

std::string memberHeading() {
    return leftAligned("CALL", member::call.width) + leftAligned("SKCC#", member::number.width) +
           leftAligned("NAME", member::name.width) + "S/P/C";
}

} // namespace vantrel
