// SPDX-License-Identifier: MIT
#include "screens/main/workedcalls.h"

#include "log/bands.h"
#include "log/qsoline.h"
#include "roster/rosterlookup.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vantrel {

namespace {

constexpr int fewestTyped = 2;
constexpr std::size_t mostMembers = 12;
constexpr std::size_t shortestEntry = 6; // "K1 20" and a blank
constexpr int entryGap = 2;              // blanks

// Blanks at the end do not count: a line may have lost them in an editor.
bool sameField(Column column, std::string_view line, std::string_view value) {
    return trimRight(column.of(line)) == trimRight(left(value, column.width));
}

// "20" of "20M"; the kHz outside the bands.
std::string bandName(std::string_view contact) {
    const std::string_view label = bandLabelOf(qso::frequency.of(contact));
    return std::string(label.substr(0, label.find('M')));
}

// A row of the band table. 10 m and 6 m have several tags.
struct RowBand {
    std::string_view name;
    std::string_view firstTag;
    std::string_view lastTag;
};
constexpr std::array<RowBand, 12> rowBands{{
    {"160", " 1", " 1"},
    {"80", " 3", " 3"},
    {"60", " 5", " 5"},
    {"40", " 7", " 7"},
    {"30", "10", "10"},
    {"20", "14", "14"},
    {"17", "18", "18"},
    {"15", "21", "21"},
    {"12", "24", "24"},
    {"10", "28", "29"},
    {"6", "50", "53"},
    {"OTHER", "", "\xFF"},
}};

// Whether the band has a row before a contact is made there. allBands: those of the event.
bool isExpected(const RowBand& row, bool allBands) {
    const Band* band = bandOfKhz(row.firstTag);
    return band != nullptr && (allBands || !band->text.empty());
}

std::size_t rowOf(std::string_view tag) {
    const auto* const row = std::ranges::find_if(
        rowBands, [&](const RowBand& band) { return tag >= band.firstTag && tag <= band.lastTag; });
    return static_cast<std::size_t>(row - rowBands.begin());
}

// Where a call was worked, by row.
struct Bands {
    std::string_view call;
    std::array<CallOnBand, rowBands.size()> onBand{};
};

} // namespace

std::string_view duplicateOf(const Contacts& contacts, std::string_view call,
                             std::string_view bandTag) {
    const auto found = std::ranges::find_if(contacts, [&](std::string_view line) {
        return qso::bandTag.of(line) == bandTag &&
               mid(line, qso::hisCall.first, length(call)) == call;
    });
    return found == contacts.end() ? std::string_view() : *found;
}

bool isK3yDupe(const Contacts& contacts, std::string_view call, std::string_view number,
               std::string_view bandTag) {
    return std::ranges::any_of(contacts, [&](std::string_view line) {
        return sameField(qso::hisCall, line, call) && qso::bandTag.of(line) == bandTag &&
               sameField(qso::hisNumber, line, number);
    });
}

std::string asDupe(std::string_view contactLine) {
    // In the place of a region tag: a duplicate counts for no region.
    return std::string(left(contactLine, qso::hisNumber.last())) + std::string(dupeMarker);
}

std::vector<WorkedCall> workedBefore(const Contacts& contacts, std::string_view typed,
                                     std::string_view bandTag, int columns) {
    std::vector<WorkedCall> result;
    if (length(typed) < fewestTyped)
        return result;
    // More never fit, and collecting thousands would delay the key.
    const auto most = static_cast<std::size_t>(columns) / shortestEntry + 1;
    for (const std::string_view line : contacts) {
        if (mid(line, qso::hisCall.first, length(typed)) != typed)
            continue;
        const std::string call(trim(qso::hisCall.of(line)));
        auto entry = std::ranges::find_if(
            result, [&](const WorkedCall& worked) { return worked.call == call; });
        if (entry == result.end() && result.size() == most)
            continue;
        if (entry == result.end())
            entry = result.insert(result.end(), {call, call, false});
        const std::string band = ' ' + bandName(line);
        if ((entry->text + ' ').find(band + ' ') == std::string::npos)
            entry->text += band;
        entry->dupe = entry->dupe || qso::bandTag.of(line) == bandTag;
    }
    int width = -entryGap;
    for (std::size_t i = 0; i < result.size(); ++i) {
        width += entryGap + length(result[i].text);
        if (width > columns) {
            result.resize(i);
            result.push_back({"", "...", false});
        }
    }
    return result;
}

std::vector<MemberLine> memberLines(Roster& roster, const Contacts& contacts,
                                    std::string_view typed, std::string_view bandTag,
                                    const std::function<std::string(const Member&)>& gainOf) {
    std::vector<MemberLine> lines;
    if (length(typed) < fewestTyped)
        return lines;
    for (const Member& member : roster.partialMatches(typed, mostMembers)) {
        const std::string call(trim(member.call));
        MemberLine line{call, call, false, gainOf(member)};
        for (const std::string& field : {member.name, member.state, member.number})
            line.text += ' ' + std::string(trim(field));
        lines.push_back(std::move(line));
    }
    for (const std::string_view contact : contacts) {
        if (qso::bandTag.of(contact) != bandTag)
            continue;
        const std::string_view call = trimRight(qso::hisCall.of(contact));
        for (MemberLine& line : lines)
            line.dupe = line.dupe || line.call == call;
    }
    return lines;
}

BandTable bandTable(const Contacts& contacts, std::string_view typed, std::string_view bandTag,
                    bool allBands) {
    std::array<int, rowBands.size()> counts{};
    std::array<bool, rowBands.size()> worked{};
    Bands exact{typed};
    Bands longer;
    bool several = false;
    std::string_view tag;
    std::size_t row = rowOf(tag);
    for (const std::string_view contact : contacts) {
        if (qso::bandTag.of(contact) != tag) { // mostly it is that of the contact before
            tag = qso::bandTag.of(contact);
            row = rowOf(tag);
        }
        worked[row] = true;
        counts[row] += isDupe(contact) ? 0 : 1;
        if (typed.empty() || mid(contact, qso::hisCall.first, length(typed)) != typed)
            continue;
        const std::string_view call = trimRight(qso::hisCall.of(contact));
        several = several || (call != typed && !longer.call.empty() && call != longer.call);
        if (call != typed)
            longer.call = call;
        CallOnBand& onBand = (call == typed ? exact : longer).onBand[row];
        onBand = std::max(onBand, tag == bandTag ? CallOnBand::dupe : CallOnBand::worked);
    }
    const bool isWorked = exact.onBand != decltype(exact.onBand){};
    const Bands shown = isWorked ? exact : several ? Bands() : longer;
    BandTable table{std::string(shown.call), {}};
    for (std::size_t i = 0; i < rowBands.size(); ++i)
        if (worked[i] || isExpected(rowBands[i], allBands))
            table.rows.push_back(
                {std::string(rowBands[i].name), counts[i], i == rowOf(bandTag), shown.onBand[i]});
    return table;
}

} // namespace vantrel
