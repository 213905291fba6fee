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

} // namespace

std::optional<Member> findByCall(const Files& files, std::string_view callBoxText,
                                 std::string& rosterFile) {
    const std::string_view name = rosterFiles[rosterFileOf(callBoxText)];
    rosterFile = files.path(name);
    const std::string bytes = files.readOrEmpty(name);
    ItemReader reader(bytes);
    for (int k = 1; k <= recordsLookedThrough && !reader.atEnd(); ++k) {
        const std::string_view record = reader.next();
        if (trim(member::call.of(record)) == callBoxText)
            return memberOf(record);
    }
    return std::nullopt;
}

NumberMatch findByNumber(const Files& files, std::string_view callBoxText) {
    const std::string typed = upper(trim(callBoxText));
    if (countCapitals(typed) > 1)
        return {NumberLookup::notANumber};
    const std::string key = numberKey(typed);
    if (key.empty()) // every number begins with nothing, but that is nobody's
        return {NumberLookup::nobody};
    for (const std::string_view name : rosterFiles) {
        const std::string bytes = files.readOrEmpty(name);
        ItemReader reader(bytes);
        while (!reader.atEnd()) {
            const std::string_view record = reader.next();
            if (midToEnd(record, member::number.first).starts_with(key))
                return {NumberLookup::found, std::string(member::call.of(record))};
        }
    }
    return {NumberLookup::nobody};
}

} // namespace vantrel
