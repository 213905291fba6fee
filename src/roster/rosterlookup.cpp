// SPDX-License-Identifier: MIT
#include "roster/rosterlookup.h"

#include "base/itemreader.h"
#include "platform/files.h"
#include "roster/rosterrecord.h"

namespace vantrel {

namespace {

constexpr int recordsLookedThrough = 8000;

Member memberOf(std::string_view record) {
    return {std::string(member::call.of(record)), std::string(member::number.of(record)),
            std::string(member::name.of(record)), std::string(member::state.of(record))};
}

// The first record of each call, among those that are looked through.
std::unordered_map<std::string_view, std::string_view> indexOf(std::string_view bytes) {
    std::unordered_map<std::string_view, std::string_view> index;
    index.reserve(bytes.size() / member::width);
    ItemReader reader(bytes);
    for (int k = 1; k <= recordsLookedThrough && !reader.atEnd(); ++k) {
        const std::string_view record = reader.next();
        index.emplace(trim(member::call.of(record)), record);
    }
    return index;
}

} // namespace

const Roster::IndexedFile& Roster::current(std::size_t file) {
    IndexedFile& indexed = m_indexed[file];
    const std::string stamp = m_files.stamp(rosterFiles[file]);
    if (stamp.empty() || stamp != indexed.stamp) {
        indexed = {};
        indexed.bytes = m_files.readOrEmpty(rosterFiles[file]);
        indexed.recordOfCall = indexOf(indexed.bytes);
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

} // namespace vantrel
