// SPDX-License-Identifier: MIT
#include "roster/rosterimport.h"

#include "base/itemreader.h"
#include "base/runtimeerror.h"
#include "platform/files.h"
#include "roster/rosterfiles.h"

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

namespace vantrel {

namespace {

constexpr int listCapacity = 20000;
// Columns up to the first CR: no line is longer, so the lines of such a list end in LF alone.
constexpr int longFirstLine = 150;
// The lines of "SKSDB4.TXT", and of no other file, are padded with blanks to 232 columns.
constexpr std::size_t paddedFile = 3;
constexpr int paddedWidth = 232;
constexpr std::string_view keptSuffix = ".BAK";

constexpr std::string_view workingPhase = "<<< WORKING >>>";
constexpr std::string_view splittingPhase = "PREPARING THE FILE";
constexpr std::string_view savingPhase = "    SAVING THE FILES";

std::string_view mergingPhase(MemberList list) {
    return list == MemberList::data ? "ADDING TO DATABASE" : "READING THE DATABASE";
}

// One roster file in memory: its lines, and the first line of each call.
class RosterTable {
public:
    // width: to which shorter lines are padded with blanks.
    RosterTable(std::string_view name, int capacity, int width, std::string_view bytes)
        : m_name(name), m_capacity(capacity), m_width(width) {
        for (const std::string_view line : linesOf(bytes))
            append(line);
    }

    void merge(const std::string& record, ImportResult& result) {
        const auto place = m_places.find(callOf(record));
        if (place == m_places.end()) {
            append(record);
            ++result.added;
            m_changed = true;
            return;
        }
        std::string& line = m_lines[place->second];
        if (leftAligned(member::number.of(line), member::number.width) != member::number.of(record))
            ++result.fixed;
        std::string replaced = paddedLine(record);
        m_changed = m_changed || line != replaced;
        line = std::move(replaced);
    }

    bool changed() const { return m_changed; }
    const std::string& name() const { return m_name; }
    std::string bytes() const { return joinLines(m_lines); }

private:
    static std::string callOf(std::string_view line) {
        return std::string(left(line, member::call.width));
    }
    std::string paddedLine(std::string_view line) const {
        return leftAligned(line, std::max(length(line), m_width));
    }
    void append(std::string_view line) {
        m_lines.push_back(paddedLine(line));
        m_places.emplace(callOf(m_lines.back()), m_lines.size() - 1);
        requireCapacity("the table of " + m_name, m_lines.size(), m_capacity);
    }

    std::string m_name;
    int m_capacity;
    int m_width;
    std::vector<std::string> m_lines;
    std::unordered_map<std::string, std::size_t> m_places;
    bool m_changed = false;
};

std::vector<RosterTable> readRoster(const Files& files) {
    std::vector<RosterTable> tables;
    for (std::size_t i = 0; i < rosterFiles.size(); ++i)
        tables.emplace_back(rosterFiles[i], rosterCapacities[i], i == paddedFile ? paddedWidth : 0,
                            files.readOrEmpty(rosterFiles[i]));
    return tables;
}

void save(const std::vector<RosterTable>& roster, Files& files,
          const std::function<void()>& between) {
    const bool changed = std::ranges::any_of(roster, &RosterTable::changed);
    std::vector<FileContent> contents;
    for (const RosterTable& table : roster) {
        // Of a missing file an empty copy replaces that of an earlier import: together the five
        // copies are the roster as it was.
        const std::string copy = table.name() + std::string(keptSuffix);
        if (changed && (files.present(table.name()) || files.present(copy)))
            contents.push_back({copy, {}, table.name()});
        contents.push_back({table.name(), table.bytes()});
    }
    files.rewriteAll(contents, between);
}

std::string readList(const Files& files, std::string_view path) {
    try {
        return files.read(path);
    } catch (const RuntimeError& error) {
        if (error.code() != ErrorCode::fileNotFound)
            throw;
        throw RuntimeError(error.code(), missingListText(files, path));
    }
}

} // namespace

ImportResult importMembers(Files& files, MemberList list, std::string_view listPath,
                           const ImportProgress& progress) {
    ImportResult result;
    if (!progress({workingPhase}))
        return result;
    std::vector<RosterTable> roster = readRoster(files);
    const std::string bytes = readList(files, listPath);
    if (std::min(bytes.find('\r'), bytes.size()) > longFirstLine && !progress({splittingPhase}))
        return result;
    const std::vector<std::string> lines = linesOfList(bytes, listCapacity + 1);
    requireCapacity("the table of " + files.path(listPath), lines.size(), listCapacity);

    MemberListReader reader(list);
    for (const std::string& line : lines) {
        if (!progress({mergingPhase(list), ++result.lines, static_cast<int>(lines.size())}))
            return result;
        const ListLine kind = reader.read(line);
        if (kind == ListLine::malformed)
            ++result.skipped;
        if (kind == ListLine::member) {
            ++result.members;
            roster[rosterFileOf(reader.record())].merge(reader.record(), result);
        }
    }

    if (result.members == 0 && result.skipped > 0) { // the wrong file: nothing is written
        MemberListReader other(list == MemberList::data ? MemberList::members : MemberList::data);
        result.otherList = std::ranges::any_of(
            lines, [&](const std::string& line) { return other.read(line) == ListLine::member; });
        result.finished = true;
        return result;
    }
    if (!progress({savingPhase}))
        return result;
    // From here on closing the page ends nothing: the files are all saved, or none.
    save(roster, files, [&] { progress({savingPhase}); });
    result.finished = true;
    return result;
}

std::string addedText(MemberList list, int added) {
    return list == MemberList::data
               ? "DONE. . . . " + std::to_string(added) + " MBRS ADDED. Click EXIT"
               : "DONE..." + std::to_string(added) + " Mbrs Added...Click EXIT";
}

std::string skippedText(MemberList list, const ImportResult& result) {
    if (result.skipped == 0)
        return {};
    const std::string choice = list == MemberList::data ? "SECOND" : "FIRST";
    return counted(result.skipped, "LINE") + " SKIPPED" +
           (result.otherList ? ". THIS IS THE OTHER LIST: TAKE THE " + choice + " CHOICE" : "");
}

std::string missingListText(const Files& files, std::string_view listPath) {
    return files.path(listPath) + "\nDOWNLOAD IT FROM " + std::string(listsAddress) +
           " AND PUT IT INTO " + files.path("") + ", OR BROWSE TO WHERE THE BROWSER SAVED IT";
}

} // namespace vantrel
