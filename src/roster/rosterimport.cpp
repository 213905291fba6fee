// SPDX-License-Identifier: MIT
#include "roster/rosterimport.h"

#include "base/boundedtable.h"
#include "base/itemreader.h"
#include "platform/files.h"
#include "roster/rosterrecord.h"

#include <algorithm>
#include <array>
#include <bit>
#include <deque>
#include <utility>
#include <vector>

namespace vantrel {

namespace {

constexpr int listCapacity = 20000;
constexpr int wholeListInOneLine = 150; // a first line longer than this is no line
// The lines of "SKSDB4.TXT", and of no other file, are padded with blanks to 232 columns.
constexpr std::size_t paddedFile = 3;
constexpr int paddedWidth = 232;
constexpr std::string_view backupSuffix = ".BAK";

constexpr std::string_view workingPhase = "<<< WORKING >>>";
constexpr std::string_view splittingPhase = "PREPARING THE FILE";
constexpr std::string_view savingPhase = "    SAVING THE FILES";

std::string_view mergingPhase(MemberList list) {
    return list == MemberList::data ? "ADDING TO DATABASE" : "READING THE DATABASE";
}

// One roster file in memory: its lines, and where each call stands first.
class RosterTable {
public:
    // width: shorter lines are padded with blanks to it.
    RosterTable(std::string_view name, int capacity, int width, std::string bytes)
        : m_name(name),
          m_width(static_cast<std::size_t>(width)),
          m_bytes(std::move(bytes)),
          m_lines("the table of " + m_name, capacity),
          m_places(std::bit_ceil(2 * static_cast<std::size_t>(capacity))) {
        LineReader reader(m_bytes);
        while (!reader.atEnd()) {
            const std::string_view line = reader.next();
            append(line.size() < m_width ? copyOf(line) : line);
        }
    }
    RosterTable(const RosterTable&) = delete; // its lines point into its own bytes
    RosterTable& operator=(const RosterTable&) = delete;

    // The place of the first line that begins with this call, padded to its columns; 0 for
    // none.
    int find(std::string_view call) const { return m_places[slotOf(call)]; }
    std::string_view line(int place) const { return m_lines.at(place); }

    void add(std::string_view record) { append(copyOf(record)); }
    void replace(int place, std::string_view record) {
        if (!holds(m_lines.at(place), record)) // most members are what they were
            m_lines.at(place) = copyOf(record);
    }

    FileContent content() const { return {m_name, joinLines(m_lines)}; }
    FileContent contentBefore() const { return {m_name + std::string(backupSuffix), {}, m_name}; }

private:
    void append(std::string_view line) {
        m_lines.append(line);
        int& place = m_places[slotOf(callOf(line))];
        if (place == 0)
            place = m_lines.size();
    }

    static std::string_view callOf(std::string_view line) { return left(line, member::call.width); }

    // Where the index holds the call, or has room for it: half of it stays free. An index of
    // pieces all over the memory takes twice as long.
    std::size_t slotOf(std::string_view call) const {
        const std::size_t last = m_places.size() - 1; // all bits set
        std::size_t slot = std::hash<std::string_view>()(call) & last;
        while (m_places[slot] != 0 && callOf(m_lines.at(m_places[slot])) != call)
            slot = (slot + 1) & last;
        return slot;
    }

    bool holds(std::string_view line, std::string_view record) const {
        return line.size() == std::max(record.size(), m_width) && line.starts_with(record) &&
               trimLeft(line.substr(record.size())).empty();
    }

    // A copy of the line, padded, that lives as long as the table.
    std::string_view copyOf(std::string_view line) {
        std::string& copy = m_copies.emplace_back(line);
        copy.resize(std::max(copy.size(), m_width), ' ');
        return copy;
    }

    std::string m_name;
    std::size_t m_width;
    std::string m_bytes;              // of the file, for the lines that stay what they are
    std::deque<std::string> m_copies; // and of all others
    BoundedTable<std::string_view> m_lines;
    std::vector<int> m_places; // of calls, each where its hash says or behind; 0: none
};

class RosterTables {
public:
    explicit RosterTables(const Files& files) {
        for (std::size_t i = 0; i < rosterFiles.size(); ++i) {
            m_present[i] = files.present(rosterFiles[i]);
            m_tables.emplace_back(rosterFiles[i], rosterCapacities[i],
                                  i == paddedFile ? paddedWidth : 0,
                                  files.readOrEmpty(rosterFiles[i]));
        }
    }

    void merge(const std::string& record, ImportResult& result) {
        RosterTable& table = m_tables[rosterFileOf(record)];
        const int place = table.find(member::call.of(record));
        if (place == 0) {
            table.add(record);
            ++result.added;
            return;
        }
        const std::string_view stored = member::number.of(table.line(place));
        if (leftAligned(stored, member::number.width) != member::number.of(record))
            ++result.fixed;
        table.replace(place, record);
    }

    // keepOld: the files as they were are kept too.
    void save(Files& files, bool keepOld, const std::function<void()>& between) const {
        std::vector<FileContent> contents;
        for (std::size_t i = 0; i < m_tables.size(); ++i)
            if (keepOld && m_present[i])
                contents.push_back(m_tables[i].contentBefore());
        for (const RosterTable& table : m_tables)
            contents.push_back(table.content());
        files.rewriteAll(contents, between);
    }

private:
    std::deque<RosterTable> m_tables; // which cannot be moved
    std::array<bool, rosterFiles.size()> m_present{};
};

BoundedTable<std::string_view> linesOf(std::string_view bytes, const std::string& path) {
    BoundedTable<std::string_view> lines("the table of " + path, listCapacity);
    ListLines reader(bytes);
    while (!reader.atEnd())
        lines.append(reader.next());
    return lines;
}

} // namespace

ImportResult importMembers(Files& files, MemberList list, std::string_view listPath,
                           const ImportProgress& progress) {
    ImportResult result;
    if (!progress({workingPhase}))
        return result;
    RosterTables roster(files);
    const std::string bytes = files.read(listPath);
    if (std::min(bytes.find('\r'), bytes.size()) > wholeListInOneLine &&
        !progress({splittingPhase}))
        return result;
    const BoundedTable<std::string_view> lines = linesOf(bytes, files.path(listPath));

    MemberListReader reader(list);
    for (const std::string_view line : lines) {
        if (!progress({mergingPhase(list), ++result.lines, lines.size()}))
            return result;
        const ListLine kind = reader.read(line);
        if (kind == ListLine::malformed)
            ++result.skipped;
        if (kind == ListLine::member) {
            ++result.members;
            roster.merge(reader.record(), result);
        }
    }

    if (result.members == 0 && result.skipped > 0) { // the wrong file: nothing is written
        result.finished = true;
        return result;
    }
    if (!progress({savingPhase}))
        return result;
    // Too late to give up: the files are all saved, or none.
    roster.save(files, result.members > 0, [&] { progress({savingPhase}); });
    result.finished = true;
    return result;
}

std::string lineNumberText(int line) {
    constexpr int trailingBlanks = 24;
    return std::to_string(line) + blanks(trailingBlanks);
}

std::string addedText(MemberList list, int added) {
    return list == MemberList::data
               ? "DONE. . . . " + std::to_string(added) + " MBRS ADDED. Click EXIT"
               : "DONE..." + std::to_string(added) + " Mbrs Added...Click EXIT";
}

std::string fixedText(int fixed) {
    return std::to_string(fixed) + " SKCC#'s Fixed";
}

std::string changedText(int changed) {
    return std::to_string(changed) + (changed == 1 ? " NUMBER CHANGED" : " NUMBERS CHANGED");
}

std::string linesReadText(int lines) {
    return std::to_string(lines) + (lines == 1 ? " LINE READ" : " LINES READ");
}

std::string skippedText(int skipped) {
    return skipped == 0 ? std::string() : std::to_string(skipped) + " LINES SKIPPED";
}

} // namespace vantrel
