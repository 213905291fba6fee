// SPDX-License-Identifier: MIT
#include "roster/rosterlookup.h"

#include "platform/files.h"
#include "roster/rosterrecord.h"
#include "shared/itemreader.h"

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

const Roster::Kept& Roster::current(std::size_t file) {
    Kept& kept = m_kept[file];
    const std::string stamp = m_files.stamp(rosterFiles[file]);
    if (stamp.empty() || stamp != kept.stamp) {
        kept = {};
        kept.bytes = m_files.readOrEmpty(rosterFiles[file]);
        kept.recordOfCall = indexOf(kept.bytes);
        kept.stamp = stamp;
    }
    return kept;
}

std::optional<Member> Roster::findByCall(std::string_view callBoxText, std::string& rosterFile) {
    const std::size_t file = rosterFileOf(callBoxText);
    rosterFile = m_files.path(rosterFiles[file]);
    const Kept& kept = current(file);
    const auto found = kept.recordOfCall.find(callBoxText);
    if (found == kept.recordOfCall.end())
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

} // namespace vantrel
