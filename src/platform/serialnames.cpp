// SPDX-License-Identifier: MIT
#include "platform/serialnames.h"

#include "base/fixedtext.h"

namespace vantrel {

std::string portName(int number) {
    return "com" + std::to_string(number);
}

int portNumber(std::string_view port) {
    for (int number = 1; number <= portCount; ++number)
        if (upper(port) == upper(portName(number)))
            return number;
    return 0;
}

} // namespace vantrel
