// SPDX-License-Identifier: MIT
#include "screens/main/workedstations.h"

#include "platform/files.h"
#include "shared/module1.h"
#include "shared/qsoline.h"

namespace vantrel {

std::string workedEntry(std::string_view line) {
    // Only the number is padded: a shorter line's other fields stand as they are.
    return std::string(qso::hisCall.of(line)) + "| " + std::string(qso::hisName.of(line)) + '|' +
           fitLeft(qso::hisNumber.of(line), qso::hisNumber.width) + " | " +
           std::string(qso::hisState.of(line)) + " | " + std::string(qso::frequency.of(line)) +
           " | " + std::string(qso::time.of(line)) + " | " + std::string(qso::date.of(line)) + '|' +
           std::string(qso::marker.of(line));
}

void rebuildWorkedStations(Module1& module, Files& files) {
    module.workedStations.clear();
    for (const std::string_view line : module.qsoTable.lines()) {
        if (module.workedStations.full())
            break;
        module.workedStations.append(workedEntry(line));
    }
    files.rewrite(workedStationsFile, joinLines(module.workedStations.entries()));
}

void addWorkedStation(Module1& module, Files& files, std::string_view contactLine) {
    if (module.qsoTable.count() > Module1::workedCapacity)
        return;
    // Somebody else changed the log, or it began again: the list is made anew from it.
    if (module.qsoTable.count() != module.workedStations.size() + 1) {
        rebuildWorkedStations(module, files);
        return;
    }
    module.workedStations.append(workedEntry(contactLine));
    files.appendLine(workedStationsFile, workedEntry(contactLine));
}

} // namespace vantrel
