// SPDX-License-Identifier: MIT
#include "roster/rosterlookup.h"

#include "base/itemreader.h"
#include "platform/files.h"

#include <algorithm>
#include <utility>

namespace vantrel {

namespace {

constexpr int recordsLookedThrough = 8000;

Member memberOf(std::string_view record) {
    return {std::string(member::call.of(record)), std::string(member::number.of(record)),
            std::string(member::name.of(record)), std::string(member::state.of(record))};
}

std::string_view callOf(std::string_view record) {
    return trim(member::call.of(record));
}

using Records = std::vector<std::string_view>;

bool holds(const std::vector<Member>& members, std::string_view call) {
    return std::ranges::any_of(members,
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

Roster::ReadFile& Roster::current(std::size_t file) {
    ReadFile& read = m_read[file];
    const std::string stamp = m_files.stamp(rosterFiles[file]);
    if (stamp.empty() || stamp != read.stamp) {
        read = {};
        read.bytes = m_files.readOrEmpty(rosterFiles[file]);
        read.records.reserve(read.bytes.size() / member::width);
        ItemReader reader(read.bytes);
        for (int k = 1; k <= recordsLookedThrough && !reader.atEnd(); ++k)
            read.records.push_back(reader.next());
        read.stamp = stamp;
    }
    return read;
}

std::optional<Member> Roster::findByCall(std::string_view callBoxText) {
    const Records& records = current(rosterFileOf(callBoxText)).records;
    const auto found = std::ranges::find(records, callBoxText, callOf);
    if (found == records.end())
        return std::nullopt;
    return memberOf(*found);
}

std::optional<std::string> Roster::callOfNumber(std::string_view callBoxText) {
    const std::string typed = upper(trim(callBoxText));
    if (countCapitals(typed) > 1)
        return std::nullopt;
    const std::string key = numberKey(typed);
    if (key.empty()) // every number begins with the empty one
        return "";
    for (std::size_t file = 0; file < rosterFiles.size(); ++file) {
        ItemReader reader(current(file).bytes);
        while (!reader.atEnd()) {
            const std::string_view record = reader.next();
            if (midToEnd(record, member::number.first).starts_with(key))
                return std::string(member::call.of(record));
        }
    }
    return "";
}

void Roster::readAll() {
    for (std::size_t file = 0; file < rosterFiles.size(); ++file)
        current(file);
}

bool Roster::hasMembers() {
    for (std::size_t file = 0; file < rosterFiles.size(); ++file)
        if (!current(file).records.empty())
            return true;
    return false;
}

std::vector<Member> Roster::partialMatches(std::string_view text, std::size_t most) {
    Records beginning;
    Records containing;
    Records oneLetterAway;
    for (std::size_t file = 0; file < rosterFiles.size(); ++file) {
        for (const std::string_view record : current(file).records) {
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
    std::ranges::stable_sort(beginning, {},
                             [](std::string_view record) { return callOf(record).size(); });
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
