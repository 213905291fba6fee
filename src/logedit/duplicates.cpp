// SPDX-License-Identifier: MIT
#include "logedit/duplicates.h"

#include "log/qsoline.h"
#include "logedit/matchtext.h"

#include <algorithm>
#include <map>

namespace vantrel {

namespace {

using Lines = std::vector<std::string>;

enum class Standing { single, repeats, markedAlone, marked };

// The first contact of those with one call on one band, and the first without the mark.
struct Group {
    std::size_t first = 0;
    std::size_t firstCounted = 0;
    bool anyCounted = false;
};

class Standings {
public:
    Standings(const Lines& lines, bool byNumber) : m_lines(lines), m_byNumber(byNumber) {
        for (std::size_t i = 0; i < lines.size(); ++i)
            if (isContact(lines[i]))
                add(i);
    }

    Standing of(std::size_t index) const {
        const std::string& line = m_lines[index];
        if (!isContact(line))
            return Standing::single;
        const Group& group = groupOf(index);
        if (isDupe(line))
            return !group.anyCounted && group.first == index ? Standing::markedAlone
                                                             : Standing::marked;
        return group.firstCounted < index ? Standing::repeats : Standing::single;
    }

    // The one that a contact which repeats one repeats.
    const std::string& repeatedBy(std::size_t index) const {
        return m_lines[groupOf(index).firstCounted];
    }

private:
    // Trimmed, since a line that lost its last blanks in an editor is still the same contact.
    std::string keyOf(const std::string& line) const {
        std::string key(qso::bandTag.of(line));
        key += leftAligned(qso::hisCall.of(line), qso::hisCall.width);
        if (m_byNumber)
            key += leftAligned(qso::hisNumber.of(line), qso::hisNumber.width);
        return key;
    }

    void add(std::size_t index) {
        Group& group = m_groups.try_emplace(keyOf(m_lines[index]), Group{index}).first->second;
        if (group.anyCounted || isDupe(m_lines[index]))
            return;
        group.firstCounted = index;
        group.anyCounted = true;
    }

    const Group& groupOf(std::size_t index) const { return m_groups.at(keyOf(m_lines[index])); }

    const Lines& m_lines;
    bool m_byNumber;
    std::map<std::string, Group> m_groups;
};

std::string sentence(Standing before, std::size_t index, const Standings& after,
                     const Lines& lines) {
    const Standing now = after.of(index);
    if (now == before)
        return {};
    const std::string contact = briefly(lines[index]);
    if (now == Standing::repeats)
        return contact + " IS NOW A DUPLICATE OF " +
               std::string(qso::time.of(after.repeatedBy(index))) + " WITHOUT THE MARK";
    // One that the operator marked by himself he knows.
    if (now == Standing::markedAlone && before == Standing::marked)
        return contact + " IS NO LONGER A DUPLICATE BUT MARKED DUPE";
    if (now == Standing::single && before == Standing::repeats)
        return contact + " IS NO LONGER A DUPLICATE";
    return {};
}

} // namespace

std::vector<std::string> duplicateNews(const Lines& before, const Lines& after, bool byNumber) {
    const Standings standingsBefore(before, byNumber);
    const Standings standingsAfter(after, byNumber);
    const auto differing = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto changed = static_cast<std::size_t>(differing.first - before.begin());

    std::vector<std::string> news;
    for (std::size_t i = 0; i < after.size(); ++i) {
        // Where the line stood before; one that came back has not stood anywhere.
        const std::size_t old = i < changed ? i : i + before.size() - after.size();
        const bool cameBack = i == changed && before.size() < after.size();
        const Standing standing =
            cameBack || old >= before.size() ? Standing::single : standingsBefore.of(old);
        if (std::string text = sentence(standing, i, standingsAfter, after); !text.empty())
            news.push_back(std::move(text));
    }
    return news;
}

} // namespace vantrel
