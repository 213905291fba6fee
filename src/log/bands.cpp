// SPDX-License-Identifier: MIT
#include "log/bands.h"

#include "base/fixedtext.h"

#include <algorithm>

namespace vantrel {

namespace {
const Band* bandWhere(std::string_view Band::*key, std::string_view text) {
    const auto* const found = std::ranges::find(bands, left(text, 2), key);
    return found == bands.end() ? nullptr : found;
}
} // namespace

const Band* bandOfKhz(std::string_view khzField) {
    return bandWhere(&Band::bandTag, khzField);
}

const Band* bandOfMhz(std::string_view mhz) {
    return bandWhere(&Band::mhzPrefix, mhz);
}

bool isOnBand(std::string_view khzField) {
    constexpr std::array others{" 5", "29", "50", "51", "52", "53"};
    return bandOfKhz(khzField) != nullptr || std::ranges::any_of(others, [&](const char* begin) {
               return khzField.starts_with(begin);
           });
}

std::size_t bandIndexOf(std::string_view khzField) {
    const Band* band = bandOfKhz(khzField);
    return band == nullptr ? bands.size() : static_cast<std::size_t>(band - bands.data());
}

std::string_view bandLabelOf(std::string_view khzField) {
    const Band* band = bandOfKhz(khzField);
    return band == nullptr ? trim(khzField) : band->label;
}

std::string_view bandTextOf(std::string_view mhz, std::string_view otherwise) {
    const Band* band = bandOfMhz(mhz);
    return band == nullptr || band->text.empty() ? otherwise : band->text;
}

} // namespace vantrel
