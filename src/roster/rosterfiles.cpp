// SPDX-License-Identifier: MIT
#include "roster/rosterfiles.h"

#include "base/itemreader.h"
#include "base/runtimeerror.h"
#include "platform/files.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr int leastDigits = 4;
constexpr int sortedLinesCapacity = 8000;
// The last column of the call and the first nine of the number, so a call of ten characters
// that ends in a digit puts its digit before the number: the files that operators pass on to
// each other are in this order.
constexpr Column sortKey{member::call.last(), 10};

std::string_view withoutAwardLetter(std::string_view number) {
    const bool hasAwardLetter = number.ends_with('C') || number.ends_with('T');
    return hasAwardLetter ? left(number, length(number) - 1) : number;
}

// An empty number stays empty: zeros would make it somebody's.
std::string withLeadingZeros(std::string_view digits) {
    const int missing = digits.empty() ? 0 : std::max(leastDigits - length(digits), 0);
    return std::string(static_cast<std::size_t>(missing), '0') + std::string(digits);
}

// The comma-delimited items of a roster file. Throws RuntimeError 9 naming the use when there are
// more.
std::vector<std::string_view> itemsOf(std::string_view bytes, const std::string& use,
                                      int capacity) {
    std::vector<std::string_view> items;
    for (ItemReader reader(bytes); !reader.atEnd();) {
        items.push_back(reader.next());
        requireCapacity(use, items.size(), capacity);
    }
    return items;
}

} // namespace

std::size_t rosterFileOf(std::string_view call) {
    constexpr std::string_view ownFiles = "AKNW";
    const std::size_t found = call.empty() ? std::string_view::npos : ownFiles.find(call.front());
    return found == std::string_view::npos ? ownFiles.size() : found;
}

std::string normalisedNumber(std::string_view number) {
    const std::string_view digits = withoutAwardLetter(number);
    return withLeadingZeros(digits) + std::string(midToEnd(number, length(digits) + 1));
}

std::string memberRecord(std::string_view number, std::string_view call, std::string_view name,
                         std::string_view state) {
    std::string record = leftAligned(trimLeft(call), member::call.width);
    record.reserve(member::width);
    record += leftAligned(normalisedNumber(upper(trim(number))), member::number.width);
    record += leftAligned(trim(left(name, member::name.width)), member::name.width);
    record += leftAligned(trim(left(state, member::state.width)), member::state.width);
    return upper(record);
}

std::string numberKey(std::string_view number) {
    return withLeadingZeros(withoutAwardLetter(number));
}

int countMembers(const Files& files, std::size_t number) {
    const std::string bytes = files.readOrEmpty(rosterFiles.at(number - 1));
    int members = 0;
    for (const std::string_view line : linesOf(bytes))
        members += trim(member::call.of(line)).empty() ? 0 : 1;
    return members;
}

int countMembers(const Files& files) {
    int members = 0;
    for (std::size_t number = 1; number <= rosterFiles.size(); ++number)
        members += countMembers(files, number);
    return members;
}

RosterView viewRosterFile(const Files& files, std::size_t number) {
    const std::string name(rosterFiles.at(number - 1));
    const std::string bytes = files.read(name);
    const auto items = itemsOf(bytes, "the view of " + name, viewedLinesCapacity);
    return {files.path(name), {items.begin(), items.end()}};
}

void sortRosterFiles(Files& files) {
    for (const std::string_view file : rosterFiles) {
        const std::string name(file);
        const std::string bytes = files.read(name);
        auto lines = itemsOf(bytes, "the sort of " + name, sortedLinesCapacity);
        std::ranges::stable_sort(
            lines, {}, [](std::string_view line) { return numericValue(sortKey.of(line)); });
        files.rewrite(name, joinLines(lines));
    }
}

} // namespace vantrel
