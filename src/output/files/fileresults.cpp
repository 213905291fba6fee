// SPDX-License-Identifier: MIT
#include "output/files/fileresults.h"

#include "base/fixedtext.h"
#include "base/itemreader.h"
#include "platform/files.h"
#include "roster/rosterrecord.h"

namespace vantrel {

namespace chrono = std::chrono;

namespace {

int membersIn(std::string_view bytes) {
    int members = 0;
    LineReader reader(bytes);
    while (!reader.atEnd())
        members += trim(reader.next()).empty() ? 0 : 1;
    return members;
}

std::string lastPart(std::string_view name) {
    return std::string(name.substr(name.find_last_of("/\\") + 1));
}

std::string dateText(chrono::year_month_day date) {
    return zeroPadded(static_cast<int>(date.year()), 4) + '-' +
           zeroPadded(static_cast<int>(static_cast<unsigned>(date.month())), 2) + '-' +
           zeroPadded(static_cast<int>(static_cast<unsigned>(date.day())), 2);
}

} // namespace

std::string membersText(const Files& files, std::size_t number) {
    const std::string_view name = rosterFiles.at(number - 1);
    if (!files.present(name))
        return std::string(noSuchFileYet);
    return std::to_string(membersIn(files.read(name))) + " MEMBERS";
}

std::string allMembersText(const Files& files) {
    int members = 0;
    for (const std::string_view name : rosterFiles)
        members += membersIn(files.readOrEmpty(name));
    return std::to_string(members) + " MEMBERS";
}

std::string writtenText(const Files& files, std::string_view name, std::string_view utcToday) {
    const auto written = files.writtenAt(name);
    if (!written)
        return std::string(noSuchFileYet);
    const auto day = chrono::floor<chrono::days>(*written);
    const std::string date = dateText(day);
    const auto minutes = chrono::floor<chrono::minutes>(*written - day).count();
    return lastPart(name) + ' ' + (date == utcToday ? "" : date + ' ') +
           zeroPadded(static_cast<int>(minutes / 60), 2) +
           zeroPadded(static_cast<int>(minutes % 60), 2);
}

std::string logText(std::string_view name, int contacts) {
    return lastPart(name) + ' ' + std::to_string(contacts) + (contacts == 1 ? " QSO" : " QSOS");
}

} // namespace vantrel
