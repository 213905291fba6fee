// SPDX-License-Identifier: MIT
#include "output/files/filetexts.h"

#include "base/itemreader.h"
#include "base/runtimeerror.h"
#include "log/contactdate.h"
#include "log/logfile.h"
#include "log/qsoline.h"
#include "platform/files.h"
#include "roster/rosterfiles.h"

namespace vantrel {

namespace chrono = std::chrono;

std::string membersText(const Files& files, std::size_t number) {
    if (!files.present(rosterFiles.at(number - 1)))
        return std::string(noSuchFileYet);
    return counted(countMembers(files, number), "MEMBER");
}

std::string writtenText(const Files& files, std::string_view name, std::string_view utcToday) {
    const auto written = files.writtenAt(name);
    if (!written)
        return std::string(noSuchFileYet);
    const auto day = chrono::floor<chrono::days>(*written);
    const std::string date = dateText(day);
    return (date == utcToday ? "TODAY" : date) + ' ' +
           timeText(chrono::floor<chrono::minutes>(*written - day)) + ' ' +
           std::string(lastPart(name));
}

std::string logText(std::string_view name, int contacts) {
    return std::string(lastPart(name)) + ' ' + counted(contacts, "QSO");
}

std::size_t lastContactOf(const std::vector<std::string>& lines) {
    for (std::size_t i = lines.size(); i > 0; --i)
        if (isContact(lines[i - 1]))
            return i - 1;
    return lines.empty() ? 0 : lines.size() - 1;
}

std::vector<std::string> logPrintLines(std::string_view logFileName, std::string_view logBytes) {
    std::vector<std::string> lines{std::string(logFileName), ""};
    const std::size_t headLines = lines.size();
    for (ItemReader reader(logBytes); !reader.atEnd();) {
        lines.emplace_back(reader.next());
        requireCapacity("the list of lines to print", lines.size() - headLines,
                        printedItemsCapacity);
    }
    return lines;
}

} // namespace vantrel
