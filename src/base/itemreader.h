// SPDX-License-Identifier: MIT
// A file's bytes in memory as comma-delimited items, or as lines.
#pragma once

#include <string_view>
#include <vector>

namespace vantrel {

// Reads items: an item ends at a comma or at the end of the line; leading blanks are
// dropped, trailing blanks kept; an item that starts with `"` runs to the next `"` on its
// line (or to the line's end where there is none), and what follows up to the next comma is
// dropped. A blank line is one empty item. Lines end with CR LF or LF.
// Views point into the text given, which must outlive them.
class ItemReader {
public:
    explicit ItemReader(std::string_view text) : m_rest(text) {}

    bool atEnd() const { return m_rest.empty() && !m_insideLine; }
    // The next item. Throws RuntimeError 62 at the end of the text.
    std::string_view next();
    // Number, from 1, of the line that the last item came from.
    int line() const { return m_lineNumber; }

private:
    std::string_view m_rest; // after the current line
    std::string_view m_line; // what is left of the current line
    bool m_insideLine = false;
    int m_lineNumber = 0;
};

// The lines of the text without their CR LF or LF; views into it.
std::vector<std::string_view> linesOf(std::string_view text);

} // namespace vantrel
