// SPDX-License-Identifier: MIT
#include "screens/main/dupecheck.h"

#include "shared/module1.h"

#include <algorithm>

namespace vantrel {

bool isDuplicate(const QsoTable& table, std::string_view call, std::string_view bandTag) {
    return std::any_of(table.lines().begin(), table.lines().end(), [&](std::string_view line) {
        return qso::bandTag.of(line) == bandTag &&
               mid(line, qso::hisCall.first, length(call)) == call;
    });
}

bool settleDupe(Module1& module) {
    module.marker = noMarker;
    if (!module.dupeFlag)
        return true;
    module.dupeFlag = false;
    if (!module.settings.logsDupes())
        return false;
    module.marker = dupeMarker;
    return true;
}

void resetDupeMarker(Module1& module) {
    if (module.marker == dupeMarker)
        module.marker = noMarker;
}

} // namespace vantrel
