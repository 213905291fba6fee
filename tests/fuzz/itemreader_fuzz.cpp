// SPDX-License-Identifier: MIT
// Any bytes as comma-delimited items and as lines: written again as read they read the same.
#include "base/itemreader.h"
#include "fuzz/fuzztarget.h"

#include <algorithm>
#include <vector>

namespace vantrel::test {
namespace {

template <typename Reader>
std::vector<std::string> allOf(Reader& reader) {
    std::vector<std::string> all;
    while (!reader.atEnd())
        all.emplace_back(reader.next());
    require(errorOf([&] { reader.next(); }).has_value(), "nothing is read past the end");
    return all;
}

// Quoted where the reader would otherwise end it or drop its blanks.
std::string written(const std::string& item) {
    const bool bare = item.find(',') == std::string::npos && !item.starts_with(' ');
    return bare ? item : '"' + item + '"';
}

} // namespace

void fuzz(Input& input) {
    ItemReader items(input.rest());
    const std::vector<std::string> read = allOf(items);
    std::vector<std::string> again(read.size());
    std::transform(read.begin(), read.end(), again.begin(), written);
    const std::string bytes = joinLines(again);
    ItemReader itemsAgain(bytes);
    require(allOf(itemsAgain) == read, "items survive being written and read");

    LineReader lines(input.rest());
    const std::vector<std::string> readLines = allOf(lines);
    require(static_cast<int>(readLines.size()) == items.line(), "both readers see the same lines");
    const std::string sameLines = joinLines(readLines);
    LineReader linesAgain(sameLines);
    require(allOf(linesAgain) == readLines, "lines survive being written and read");
}

} // namespace vantrel::test
