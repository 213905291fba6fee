// SPDX-License-Identifier: MIT
#include "screens/start/startlists.h"

#include "shared/settings.h"

#include <algorithm>
#include <initializer_list>

namespace vantrel {

namespace {

using List = std::vector<ListEntry>;

List shownAsStored(std::initializer_list<std::string_view> values) {
    List list;
    for (const std::string_view value : values)
        list.push_back({std::string(value), std::string(value)});
    return list;
}

ListEntry& entryStoredAs(List& list, std::string_view stored) {
    return *std::find_if(list.begin(), list.end(),
                         [&](const ListEntry& entry) { return entry.stored == stored; });
}

List makeRigList() {
    List list = shownAsStored(
        {noneSetting, "Orion",   "Omni7",       "Jupiter",    "K-3",       "K-2",     "FTdx5000",
         "FTdx3000",  "FT-2000", "FT-1000MP",   "FT-950",     "FT-450",    "IC-7800", "IC-7700",
         "IC-7600",   "IC-7400", "IC-7200",     "IC-7000",    "IC-790",    "IC-781",  "IC-775",
         "IC-765",    "IC-761",  "IC-756Pro3",  "IC-756Pro2", "IC-756Pro", "IC-756",  "IC-751",
         "IC-746Pro", "IC-746",  "IC-736",      "IC-735",     "IC-729",    "IC-728",  "IC-726",
         "IC-725",    "IC-718",  "IC-706MKIIG", "IC-706",     "IC-703",    "TS-990S", "TS-590S",
         "TS-480S",   "TS-2000"});
    // Shown with a hyphen, stored without one: the rig tests know the hyphenated names only,
    // so these two are never read from.
    entryStoredAs(list, "FTdx5000").shown = "FTdx-5000";
    entryStoredAs(list, "FTdx3000").shown = "FTdx-3000";
    return list;
}

List makePortList() {
    List list = shownAsStored({noneSetting});
    for (int number = 1; number <= 10; ++number)
        list.push_back({"Com" + std::to_string(number), "com" + std::to_string(number)});
    return list;
}

List makeBaudList() {
    List list = shownAsStored(
        {noneSetting, "115200", "57600", "38400", "19200", "9600", "4800", "2400", "1200"});
    entryStoredAs(list, "57600").shown = "56700"; // operators know the entry by this text
    return list;
}

List makeCivList() {
    List list = shownAsStored({noneSetting});
    // One per model of the rig list from the IC-7800 to the IC-703; 66 stands for two of them.
    for (const std::string_view address :
         {"6A", "74", "7A", "66", "76", "70", "2E", "26", "46", "2C", "1E", "6E", "64", "5C",
          "50", "1C", "66", "56", "40", "04", "3A", "38", "30", "28", "5E", "58", "4E", "68"}) {
        const std::string text = "Hex " + std::string(address);
        list.push_back({text, text});
    }
    return list;
}

List makeOffsetList() {
    List list;
    for (int hours = -12; hours <= 12; ++hours)
        list.push_back({std::to_string(hours), std::to_string(hours)});
    return list;
}

} // namespace

const List& rigList() {
    static const List list = makeRigList();
    return list;
}

const List& portList() {
    static const List list = makePortList();
    return list;
}

const List& baudList() {
    static const List list = makeBaudList();
    return list;
}

const List& civList() {
    static const List list = makeCivList();
    return list;
}

const List& offsetList() {
    static const List list = makeOffsetList();
    return list;
}

const List& dupeModeList() {
    static const List list = shownAsStored({"NO", "YES"});
    return list;
}

int positionOf(const List& list, std::string_view value, std::string_view otherwise) {
    const auto storedAs = [&](std::string_view stored) {
        return std::find_if(list.begin(), list.end(),
                            [&](const ListEntry& entry) { return entry.stored == stored; });
    };
    auto found = storedAs(value);
    if (found == list.end())
        found = storedAs(otherwise);
    return static_cast<int>(found - list.begin());
}

} // namespace vantrel
