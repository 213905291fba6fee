// SPDX-License-Identifier: MIT
#include "roster/rosterlookup.h"

#include "base/itemreader.h"
#include "platform/files.h"
#include "roster/rosterfiles.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vantrel {

namespace {

constexpr std::size_t recordsLookedThrough = 8000; // of each file

Member memberOf(std::string_view record) {
    return {std::string(member::call.of(record)), std::string(member::number.of(record)),
            std::string(member::name.of(record)), std::string(member::state.of(record))};
}

std::string_view callOf(std::string_view record) {
    return trim(member::call.of(record));
}

using Records = std::vector<std::string_view>;

// The records of a file that are looked through.
Records recordsIn(std::string_view bytes) {
    Records records;
    records.reserve(bytes.size() / member::width);
    for (ItemReader reader(bytes); records.size() < recordsLookedThrough && !reader.atEnd();)
        records.push_back(reader.next());
    return records;
}

bool holds(const std::vector<Member>& members, std::string_view call) {
    return std::any_of(members.begin(), members.end(),
                       [&](const Member& member) { return trim(member.call) == call; });
}

// Whether one letter added, left out or changed makes the one call of the other.
bool isNPlusOne(std::string_view a, std::string_view b) {
    if (a.size() > b.size())
        std::swap(a, b);
    if (b.size() - a.size() > 1)
        return false;
    const auto [inA, inB] = std::mismatch(a.begin(), a.end(), b.begin());
    if (inA == a.end())
        return true;
    const auto skip = a.size() == b.size() ? 1 : 0;
    return std::equal(inA + skip, a.end(), inB + 1, b.end());
}

} // namespace

std::optional<Member> Roster::findByCall(std::string_view callBoxText) const {
    const std::string bytes = m_files.readOrEmpty(rosterFiles[rosterFileOf(callBoxText)]);
    for (const std::string_view record : recordsIn(bytes))
        if (callOf(record) == callBoxText)
            return memberOf(record);
    return std::nullopt;
}

NumberMatch Roster::findByNumber(std::string_view callBoxText) const {
    const std::string typed = upper(trim(callBoxText));
    if (countCapitals(typed) > 1)
        return {NumberLookup::notANumber};
    const std::string key = numberKey(typed);
    if (key.empty()) // every number begins with the empty one
        return {NumberLookup::nobody};
    for (const std::string_view file : rosterFiles) {
        const std::string bytes = m_files.readOrEmpty(file);
        for (ItemReader reader(bytes); !reader.atEnd();) {
            const std::string_view record = reader.next();
            if (midToEnd(record, member::number.first).starts_with(key))
                return {NumberLookup::found, std::string(member::call.of(record))};
        }
    }
    return {NumberLookup::nobody};
}

bool Roster::hasMembers() const {
    return std::any_of(rosterFiles.begin(), rosterFiles.end(), [this](std::string_view file) {
        return !m_files.readOrEmpty(file).empty();
    });
}

std::vector<Member> Roster::partialMatches(std::string_view text, std::size_t most) const {
    std::array<std::string, rosterFiles.size()> bytes; // the records point into them
    Records beginning;
    Records containing;
    Records oneLetterAway;
    for (std::size_t i = 0; i < rosterFiles.size(); ++i) {
        bytes[i] = m_files.readOrEmpty(rosterFiles[i]);
        for (const std::string_view record : recordsIn(bytes[i])) {
            const std::string_view call = callOf(record);
            const std::size_t place = call.find(text);
            if (place == 0)
                beginning.push_back(record);
            else if (place != std::string_view::npos)
                containing.push_back(record);
            else if (isNPlusOne(text, call))
                oneLetterAway.push_back(record);
        }
    }
    std::stable_sort(
        beginning.begin(), beginning.end(),
        [](std::string_view a, std::string_view b) { return callOf(a).size() < callOf(b).size(); });
    std::vector<Member> members;
    const auto take = [&](const Records& records) {
        for (const std::string_view record : records)
            if (members.size() < most && !holds(members, callOf(record)))
                members.push_back(memberOf(record));
    };
    take(beginning);
    take(containing);
    if (members.empty())
        take(oneLetterAway);
    return members;
}

} // namespace vantrel
