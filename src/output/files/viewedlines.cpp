// SPDX-License-Identifier: MIT
#include "output/files/viewedlines.h"

#include "base/itemreader.h"
#include "log/qsoline.h"

namespace vantrel {

std::vector<std::string> wholeLines(std::string_view bytes) {
    std::vector<std::string> lines;
    LineReader reader(bytes);
    while (!reader.atEnd())
        lines.emplace_back(reader.next());
    return lines;
}

std::size_t lastContactOf(const std::vector<std::string>& lines) {
    for (std::size_t i = lines.size(); i > 0; --i)
        if (isContact(lines[i - 1]))
            return i - 1;
    return lines.empty() ? 0 : lines.size() - 1;
}

} // namespace vantrel
