// SPDX-License-Identifier: MIT
// The fixed-column "QSO: " line of the contest log: its one column table, reading a field, writing
// one.
#pragma once

#include "base/fixedtext.h"

#include <string>
#include <string_view>

namespace vantrel {

// A field of a fixed-column line: first column (from 1) and width.
struct Column {
    int first;
    int width;

    constexpr int last() const { return first + width - 1; }
    // The field as it stands; shorter or empty when the line ends before.
    std::string_view of(std::string_view line) const { return mid(line, first, width); }
};

// Columns of a contact line. A writer cuts or pads to these widths; nothing is escaped.
namespace qso {
inline constexpr Column frequency{6, 5}; // kHz, right-aligned
inline constexpr Column mode{12, 2};     // "CW"
inline constexpr Column date{15, 10};    // YYYY-MM-DD; MM-01-YYYY after a month end
inline constexpr Column time{26, 4};     // UTC, HHMM
inline constexpr Column myCall{31, 10};
inline constexpr Column rstSent{42, 3};
inline constexpr Column myName{46, 10};
inline constexpr Column myState{57, 3};  // no blank follows: its padding separates
inline constexpr Column myNumber{60, 6}; // no blank follows
inline constexpr Column hisCall{66, 10};
inline constexpr Column rstReceived{77, 3};
inline constexpr Column hisName{81, 10};
inline constexpr Column hisState{92, 3};
inline constexpr Column hisNumber{96, 6};
inline constexpr Column marker{102, 6}; // six blanks, "DUPE" (four only), a K3Y tag

inline constexpr Column bandTag{6, 2};       // two contacts are on one band when these agree
inline constexpr Column dupeColumns{102, 4}; // where "DUPE" stands
} // namespace qso

inline constexpr std::string_view dupeMarker = "DUPE";
inline constexpr std::string_view noMarker = "      ";

inline constexpr int shortestCall = 3; // less is neither logged nor searched for

// True for a line whose first three characters are "QSO": every reader's test for a contact.
inline bool isContact(std::string_view line) {
    return left(line, 3) == "QSO";
}
// True when columns 102-105 read "DUPE".
inline bool isDupe(std::string_view line) {
    return qso::dupeColumns.of(line) == dupeMarker;
}

// `line` with `value` written over the columns of `column`, the line first padded with
// blanks to reach them; value is cut or padded on the right to the column's width. No other
// column changes.
inline std::string withField(std::string_view line, Column column, std::string_view value) {
    std::string result =
        length(line) < column.last() ? leftAligned(line, column.last()) : std::string(line);
    return result.replace(static_cast<std::size_t>(column.first - 1),
                          static_cast<std::size_t>(column.width), leftAligned(value, column.width));
}

} // namespace vantrel
