// SPDX-License-Identifier: MIT
#include "base/itemreader.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"

#include <algorithm>
#include <string>
#include <utility>

namespace vantrel {

namespace {

// Removes the first line with its CR LF or LF from `rest` and returns it without them.
std::string_view takeLine(std::string_view& rest) {
    const std::size_t end = rest.find('\n');
    if (end == std::string_view::npos)
        return std::exchange(rest, {});
    const bool carriageReturn = end > 0 && rest[end - 1] == '\r';
    const std::string_view line = rest.substr(0, carriageReturn ? end - 1 : end);
    rest.remove_prefix(end + 1);
    return line;
}

} // namespace

std::string_view ItemReader::next() {
    if (atEnd())
        throw RuntimeError(ErrorCode::inputPastEnd, "after line " + std::to_string(m_lineNumber));
    if (!m_insideLine) {
        m_line = takeLine(m_rest);
        ++m_lineNumber;
    }

    if (m_line.starts_with(' ')) // the test saves a slower call for most items
        m_line = trimLeft(m_line);
    const bool quoted = !m_line.empty() && m_line.front() == '"';
    if (quoted)
        m_line.remove_prefix(1);
    const std::size_t closing = quoted ? std::min(m_line.find('"'), m_line.size()) : 0;
    const std::size_t comma = m_line.find(',', closing);
    const std::string_view item = m_line.substr(0, quoted ? closing : comma);

    m_insideLine = comma != std::string_view::npos;
    if (m_insideLine)
        m_line.remove_prefix(comma + 1);
    return item;
}

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty())
        lines.push_back(takeLine(text));
    return lines;
}

} // namespace vantrel
