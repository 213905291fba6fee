// SPDX-License-Identifier: MIT
// Any bytes as comma-delimited items and as lines: written again as read they read the same.
#include "fuzz/fuzztarget.h"
#include "shared/itemreader.h"

#include <utility>
#include <vector>

namespace vantrel::test {
namespace {

using Items = std::vector<std::vector<std::string>>; // of each line

Items itemsOf(std::string_view bytes) {
    Items items;
    ItemReader reader(bytes);
    while (!reader.atEnd()) {
        const std::string item(reader.next());
        require(item.find('\n') == std::string::npos, "an item ends with its line");
        const auto line = static_cast<std::size_t>(reader.line());
        require(line == items.size() || line == items.size() + 1, "lines are counted one by one");
        items.resize(line);
        items.back().push_back(item);
    }
    require(errorOf([&] { reader.next(); }).has_value(), "nothing is read past the end");
    return items;
}

std::vector<std::string> linesOf(std::string_view bytes) {
    std::vector<std::string> lines;
    for (LineReader reader(bytes); !reader.atEnd();)
        lines.emplace_back(reader.next());
    return lines;
}

// Items that the reader would end early or drop blanks of are quoted.
std::string written(const Items& items) {
    std::string bytes;
    for (const std::vector<std::string>& line : items) {
        std::string comma;
        for (const std::string& item : line) {
            const bool bare = item.find(',') == std::string::npos && !item.starts_with(' ');
            bytes += std::exchange(comma, ",") + (bare ? item : '"' + item + '"');
        }
        bytes += "\r\n";
    }
    return bytes;
}

} // namespace

void fuzz(Input input) {
    const Items items = itemsOf(input.rest());
    require(itemsOf(written(items)) == items, "items survive being written and read");
    const std::vector<std::string> lines = linesOf(input.rest());
    require(lines.size() == items.size(), "both readers see the same lines");
    require(linesOf(joinLines(lines)) == lines, "lines survive being written and read");
}

} // namespace vantrel::test
