// SPDX-License-Identifier: MIT
// Correcting one contact: which box is which field, and the line with its changed boxes.
#pragma once

#include "log/qsoline.h"

#include <array>
#include <string>
#include <string_view>

namespace vantrel {

struct CorrectionField {
    const char* box; // the control's name
    const char* label;
    Column column;
};

// The boxes in the page's order; the first one is also the search key.
inline constexpr std::array<CorrectionField, 10> correctionFields{{
    {"Text1", "HIS CALL", qso::hisCall},
    {"Text2", "HIS NAME", qso::hisName},
    {"Text3", "HIS SKCC#", qso::hisNumber},
    {"Text4", "HIS STATE", qso::hisState},
    {"Text5", "RST RCVD", qso::rstReceived},
    {"Text6", "RST SENT", qso::rstSent},
    {"Text7", "FREQUENCY", qso::frequency},
    {"Text8", "TIME - GMT", qso::time},
    {"Text9", "QSO DATE", qso::date},
    {"Text10", "DUPE NOTE", qso::marker},
}};

// What the boxes hold, in that order.
using CorrectionBoxes = std::array<std::string, correctionFields.size()>;

// The boxes for a contact found with the key: the first box keeps the key, the others show
// their columns, trimmed.
CorrectionBoxes correctionBoxes(std::string_view key, std::string_view line);

struct Correction {
    std::string line;
    CorrectionBoxes boxes; // for the new line
    // Labels of boxes, ", " between; empty for none.
    std::string cut;   // text longer than its columns
    std::string wrong; // changed to what is no frequency on a band, no time or no date
};

// The line with every box that differs from what was shown (tidied, cut or padded to its
// columns; a frequency in MHz as kHz); all other columns stay byte for byte.
Correction corrected(std::string_view line, const CorrectionBoxes& shown,
                     const CorrectionBoxes& typed);

// The boxes shown, with the contact's call in place of the search key: once something was typed in
// the call box, it holds the call.
CorrectionBoxes withCallShown(CorrectionBoxes shown, std::string_view line);

// False for a call that was edited to fewer than 3 characters: once saved, no search could
// find the contact again.
bool keepsFindable(const CorrectionBoxes& shown, const CorrectionBoxes& typed);

} // namespace vantrel
