// SPDX-License-Identifier: MIT
#include "output/adif/adifitem.h"

#include "base/fixedtext.h"

namespace vantrel {

void appendAdifLength(std::string& bytes, int length) {
    if (length >= 10)
        bytes += static_cast<char>('0' + length / 10);
    bytes += static_cast<char>('0' + length % 10);
    bytes += '>';
}

void appendAdifItem(std::string& bytes, std::string_view head, std::string_view value) {
    bytes += head;
    appendAdifLength(bytes, length(value));
    bytes += value;
}

} // namespace vantrel
