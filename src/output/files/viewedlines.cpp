// SPDX-License-Identifier: MIT
#include "output/files/viewedlines.h"

#include "base/itemreader.h"

namespace vantrel {

std::vector<std::string> wholeLines(std::string_view bytes) {
    std::vector<std::string> lines;
    LineReader reader(bytes);
    while (!reader.atEnd())
        lines.emplace_back(reader.next());
    return lines;
}

} // namespace vantrel
