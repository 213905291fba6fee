// SPDX-License-Identifier: MIT
#include "screens/start/startlists.h"

#include "base/fixedtext.h"
#include "platform/serialnames.h"
#include "rig/rigs.h"
#include "shared/settings.h"

#include <algorithm>

namespace vantrel {

namespace {

ValueList listFromNone() {
    return {{std::string(noneSetting)}};
}

} // namespace

ValueList rigList() {
    ValueList list = listFromNone();
    for (const Rig& rig : rigs)
        list.push_back({std::string(rig.model), std::string(rig.savedAs())});
    return list;
}

ValueList portList() {
    ValueList list = listFromNone();
    for (int number = 1; number <= portCount; ++number) {
        const std::string name = portName(number);
        list.push_back({"C" + name.substr(1), name});
    }
    return list;
}

ValueList baudList() {
    return {{std::string(noneSetting)},
            {"115200"},
            {"56700", "57600"}, // operators know that rate by this text
            {"38400"},
            {"19200"},
            {"9600"},
            {"4800"},
            {"2400"},
            {"1200"}};
}

ValueList civList() {
    ValueList list = listFromNone();
    for (const Rig& rig : rigs)
        if (!rig.civAddress.empty())
            list.push_back({std::string(rig.civAddress)});
    return list;
}

ValueList offsetList() {
    ValueList list;
    for (int hours = -12; hours <= 12; ++hours)
        list.push_back({std::to_string(hours)});
    return list;
}

ValueList dupeModeList() {
    return {{"NO"}, {"YES"}};
}

std::string offsetByValue(std::string_view saved) {
    constexpr std::size_t longest = 9; // longer digits might not fit a number
    const bool isNumber = saved.size() <= longest && std::ranges::any_of(saved, isDigit);
    return isNumber ? std::to_string(numericValue(saved)) : std::string(saved);
}

} // namespace vantrel
