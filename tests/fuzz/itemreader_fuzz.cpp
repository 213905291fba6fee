// SPDX-License-Identifier: MIT
// Any bytes as comma-delimited items and as lines: written again as read they read the same.
#include "fuzz/fuzztarget.h"
#include "platform/files.h"
#include "shared/itemreader.h"

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

// Quoted where the reader would otherwise end it or drop its blanks.
std::string written(const std::string& item) {
    const bool bare = item.find(',') == std::string::npos && !item.starts_with(' ');
    return bare ? item : '"' + item + '"';
}

std::string written(const Items& items) {
    std::string bytes;
    for (const std::vector<std::string>& line : items) {
        for (std::size_t i = 0; i < line.size(); ++i)
            bytes += (i == 0 ? "" : ",") + written(line[i]);
        bytes += "\r\n";
    }
    return bytes;
}

} // namespace
} // namespace vantrel::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantrel::test;
    const std::string bytes(data, data + size);
    const Items items = itemsOf(bytes);
    require(itemsOf(written(items)) == items, "items survive being written and read");
    const std::vector<std::string> lines = linesOf(bytes);
    require(lines.size() == items.size(), "both readers see the same lines");
    require(linesOf(vantrel::joinLines(lines)) == lines, "lines survive being written and read");
    return 0;
}
