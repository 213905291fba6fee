// SPDX-License-Identifier: MIT
#include "output/viewedlines.h"

#include "output/outputfiles.h"
#include "platform/files.h"
#include "roster/rosterrecord.h"
#include "shared/boundedtable.h"
#include "shared/itemreader.h"
#include "shared/module1.h"

namespace vantrel {

std::vector<std::string> wholeLines(std::string_view bytes) {
    std::vector<std::string> lines;
    LineReader reader(bytes);
    while (!reader.atEnd())
        lines.emplace_back(reader.next());
    return lines;
}

std::string listedFile(const Module1& module) {
    const std::string& log = module.settings.logFileName;
    return module.listShowsAdif ? adifFileName(log) : log;
}

void readRosterFile(Module1& module, const Files& files, std::size_t number) {
    module.rosterFile = '\\' + std::string(rosterFiles.at(number - 1));
    module.rosterLines.clear();
    const std::string bytes = files.read(module.rosterFile);
    BoundedTable<std::string> lines("the view of " + module.rosterFile, viewedLinesCapacity);
    ItemReader reader(bytes);
    while (!reader.atEnd())
        lines.append(std::string(reader.next()));
    module.rosterLines = lines.entries();
}

} // namespace vantrel
