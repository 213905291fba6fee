// SPDX-License-Identifier: MIT
#include "log/qsoline.h"

namespace vantrel {

bool isContact(std::string_view line) {
    return left(line, 3) == "QSO";
}

bool isDupe(std::string_view line) {
    return qso::dupeColumns.of(line) == dupeMarker;
}

std::string withField(std::string_view line, Column column, std::string_view value) {
    std::string result =
        length(line) < column.last() ? leftAligned(line, column.last()) : std::string(line);
    return result.replace(static_cast<std::size_t>(column.first - 1),
                          static_cast<std::size_t>(column.width), leftAligned(value, column.width));
}

} // namespace vantrel
