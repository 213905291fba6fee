// SPDX-License-Identifier: MIT
#include "roster/rosterlookup.h"

#include "base/itemreader.h"
#include "platform/files.h"
#include "roster/rosterrecord.h"

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

// Whether one letter put in, left out or exchanged makes one of the other.
bool isOneLetterAway(std::string_view a, std::string_view b) {
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

// The first record of each call, among those that are looked through.
void Roster::indexRecords(IndexedFile& file) {
    file.recordOfCall.reserve(file.bytes.size() / member::width);
    file.records.reserve(file.bytes.size() / member::width);
    ItemReader reader(file.bytes);
    for (int k = 1; k <= recordsLookedThrough && !reader.atEnd(); ++k) {
        const std::string_view record = reader.next();
        if (file.recordOfCall.emplace(callOf(record), record).second)
            file.records.push_back(record);
    }
}

const Roster::IndexedFile& Roster::current(std::size_t file) {
    IndexedFile& indexed = m_indexed[file];
    const std::string stamp = m_files.stamp(rosterFiles[file]);
    if (stamp.empty() || stamp != indexed.stamp) {
        indexed = {};
        indexed.bytes = m_files.readOrEmpty(rosterFiles[file]);
        indexRecords(indexed);
        indexed.stamp = stamp;
    }
    return indexed;
}

std::optional<Member> Roster::findByCall(std::string_view callBoxText) {
    const IndexedFile& file = current(rosterFileOf(callBoxText));
    const auto found = file.recordOfCall.find(callBoxText);
    if (found == file.recordOfCall.end())
        return std::nullopt;
    return memberOf(found->second);
}

NumberMatch Roster::findByNumber(std::string_view callBoxText) {
    const std::string typed = upper(trim(callBoxText));
    if (countCapitals(typed) > 1)
        return {NumberLookup::notANumber};
    const std::string key = numberKey(typed);
    if (key.empty()) // every number begins with nothing, but that is nobody's
        return {NumberLookup::nobody};
    for (std::size_t file = 0; file < rosterFiles.size(); ++file) {
        ItemReader reader(current(file).bytes);
        while (!reader.atEnd()) {
            const std::string_view record = reader.next();
            if (midToEnd(record, member::number.first).starts_with(key))
                return {NumberLookup::found, std::string(member::call.of(record))};
        }
    }
    return {NumberLookup::nobody};
}

bool Roster::hasMembers() {
    for (std::size_t file = 0; file < rosterFiles.size(); ++file)
        if (!current(file).recordOfCall.empty())
            return true;
    return false;
}

std::vector<Member> Roster::membersLike(std::string_view text, std::size_t most) {
    for (std::size_t file = 0; file < rosterFiles.size(); ++file)
        current(file); // none of them is read again while its records are looked at
    std::vector<std::string_view> records;
    const auto collect = [&](const auto& test) {
        for (const IndexedFile& file : m_indexed)
            for (const std::string_view record : file.records)
                if (test(callOf(record)))
                    records.push_back(record);
    };
    collect([&](std::string_view call) { return call.starts_with(text); });
    std::stable_sort(records.begin(), records.end(), [](std::string_view a, std::string_view b) {
        return callOf(a).size() < callOf(b).size();
    });
    if (records.size() < most)
        collect([&](std::string_view call) {
            const std::size_t place = call.find(text);
            return place != 0 && place != std::string_view::npos;
        });
    if (records.empty())
        collect([&](std::string_view call) { return isOneLetterAway(text, call); });
    records.resize(std::min(records.size(), most));
    std::vector<Member> members;
    members.reserve(records.size());
    for (const std::string_view record : records)
        members.push_back(memberOf(record));
    return members;
}

} // namespace vantrel
