// SPDX-License-Identifier: MIT
#include "k3y/k3ystation.h"

#include "base/fixedtext.h"

#include <algorithm>

namespace vantrel {

std::string k3yLogName(std::string_view utcDate, std::string_view code, std::string_view myCall) {
    std::string call = upper(trim(myCall));
    std::replace(call.begin(), call.end(), '/', '-');
    return std::string(utcDate) + "-K3Y-" + std::string(code) + "-" + call + ".CBR";
}

} // namespace vantrel
