// SPDX-License-Identifier: MIT
#include "output/files/printlog.h"

#include "base/boundedtable.h"
#include "base/itemreader.h"

namespace vantrel {

std::vector<std::string> logPrintLines(std::string_view logFileName, std::string_view logBytes) {
    BoundedTable<std::string_view> items("the list of lines to print", printedItemsCapacity);
    ItemReader reader(logBytes);
    while (!reader.atEnd())
        items.append(reader.next());
    std::vector<std::string> lines{std::string(logFileName), ""};
    lines.insert(lines.end(), items.begin(), items.end());
    return lines;
}

} // namespace vantrel
