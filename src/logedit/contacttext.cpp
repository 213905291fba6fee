// SPDX-License-Identifier: MIT
#include "logedit/contacttext.h"

#include "log/bands.h"
#include "log/qsoline.h"

#include <algorithm>
#include <map>
#include <optional>

namespace vantrel {

namespace {

using Lines = std::vector<std::string>;

// Runs of whole fields with the blanks between them.
constexpr Column callAndBlank{66, 11};
constexpr Column blankToNumber{80, 22};
constexpr Column modeToTime{12, 18};

constexpr std::string_view currentMark = "> ";
constexpr std::string_view noMark = "  ";

std::string text(Column column, std::string_view line) {
    return std::string(column.of(line));
}

// Padded to its width where the line ends early.
std::string field(Column column, std::string_view line) {
    return leftAligned(column.of(line), column.width);
}

std::string bandText(std::string_view line) {
    return std::string(bandLabelOf(qso::frequency.of(line)));
}

enum class DupeStatus { single, repeats, markedAlone, marked };

struct DupeNote {
    DupeStatus status = DupeStatus::single;
    std::size_t repeated = 0; // index of the contact that a line of status `repeats` repeats
};

std::string dupeKey(const std::string& line, bool byNumber) {
    return text(qso::bandTag, line) + field(qso::hisCall, line) +
           (byNumber ? field(qso::hisNumber, line) : "");
}

std::vector<DupeNote> dupeNotes(const Lines& lines, bool byNumber) {
    struct Group { // contacts with one key
        std::size_t first;
        std::optional<std::size_t> firstUnmarked{};
    };
    std::map<std::string, Group> groups;
    std::vector<DupeNote> notes(lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!isContact(lines[i]))
            continue;
        Group& group = groups.try_emplace(dupeKey(lines[i], byNumber), Group{i}).first->second;
        if (isDupe(lines[i])) {
            notes[i].status = group.first == i ? DupeStatus::markedAlone : DupeStatus::marked;
        } else if (group.firstUnmarked) {
            notes[i] = {DupeStatus::repeats, *group.firstUnmarked};
        } else {
            group.firstUnmarked = i;
            if (group.first != i) // a marked one, no longer alone
                notes[group.first].status = DupeStatus::marked;
        }
    }
    return notes;
}

// Empty for a change that needs no words.
std::string sentence(DupeStatus before, const DupeNote& now, std::size_t index,
                     const Lines& lines) {
    if (now.status == before)
        return {};
    const std::string& line = lines[index];
    // "K1ABC 20M 0015"; the kHz where there is no band.
    const std::string contact = std::string(trim(qso::hisCall.of(line))) + ' ' + bandText(line) +
                                ' ' + text(qso::time, line);
    if (now.status == DupeStatus::repeats)
        return contact + " IS NOW A DUPLICATE OF " + text(qso::time, lines[now.repeated]) +
               " WITHOUT THE MARK";
    // The operator knows of a mark that he has just set.
    if (now.status == DupeStatus::markedAlone && before == DupeStatus::marked)
        return contact + " IS NO LONGER A DUPLICATE BUT MARKED DUPE";
    if (now.status == DupeStatus::single && before == DupeStatus::repeats)
        return contact + " IS NO LONGER A DUPLICATE";
    return {};
}

} // namespace

std::string deletionCallText(std::string_view line) {
    return text(callAndBlank, line) + text(blankToNumber, line);
}

std::string deletionDetailText(std::string_view line) {
    // Deliberate: the columns hold kHz, but this is the wording that operators know.
    return text(qso::frequency, line) + " MHz " + text(modeToTime, line) + ' ' +
           text(qso::marker, line);
}

std::string matchText(std::string_view line, bool current) {
    return std::string(current ? currentMark : noMark) + field(qso::hisCall, line) + ' ' +
           field(qso::date, line) + ' ' + field(qso::time, line) + ' ' + bandText(line);
}

std::string matchWords(std::string_view matchText) {
    return std::string(midToEnd(matchText, length(currentMark) + 1));
}

std::vector<std::string> duplicateNews(const Lines& before, const Lines& after, bool byNumber) {
    std::vector<DupeNote> notesBefore = dupeNotes(before, byNumber);
    const std::vector<DupeNote> notes = dupeNotes(after, byNumber);
    // Aligns the notes before the change with the lines after it. A line that an undo put back had
    // no note.
    const auto changed = std::ranges::mismatch(before, after).in1 - before.begin();
    if (after.size() < before.size())
        notesBefore.erase(notesBefore.begin() + changed);
    if (after.size() > before.size())
        notesBefore.insert(notesBefore.begin() + changed, DupeNote());

    std::vector<std::string> news;
    for (std::size_t i = 0; i < notes.size(); ++i)
        if (std::string text = sentence(notesBefore[i].status, notes[i], i, after); !text.empty())
            news.push_back(std::move(text));
    return news;
}

} // namespace vantrel
