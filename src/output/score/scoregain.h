// SPDX-License-Identifier: MIT
// The score while it grows: how its total comes about, and what one contact more would bring.
#pragma once

#include "log/log.h"
#include "output/score/score.h"

#include <string>

namespace vantrel {

// "30 QSOs x 21 S/P/C + 190", "30 QSOs x 9 DXCC + 190"; "SEE SCORE" where the score stopped.
std::string scoreSum(const Score& score);

// What the contact line would add to the contacts' score (`before`): "NEW S/P/C  +5 CENTURION",
// "DUPE  +5 CENTURION", "DUPE: +0"; empty when it only counts as a QSO, or the score stops.
std::string scoreGain(const Contacts& contacts, const Score& before, std::string_view contact,
                      const OperatingSettings& settings);

} // namespace vantrel
