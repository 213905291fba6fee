// SPDX-License-Identifier: MIT
// A contact line in boxes, as the correction page and the editor show it: which box is which field,
// and the line that edited boxes give.
#pragma once

#include "log/qsoline.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

struct BoxField {
    const char* box; // the control's name
    const char* label;
    Column column;           // where the box is read
    Column written = column; // and where it is written
};

// What a page's boxes hold, in the order of its fields.
using Boxes = std::vector<std::string>;

// A typed entry as these pages use it: commas and control characters become blanks, then upper
// case, then trimmed.
std::string tidied(std::string_view typed);

// --- The correction page ----------------------------------------------------------------------

// In the page's order. The first box is also the search key.
inline constexpr std::array<BoxField, 10> correctionFields{{
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

// The boxes for a contact found with the key: the first box keeps the key, the others show
// their columns, trimmed.
Boxes correctionBoxes(std::string_view key, std::string_view line);

struct Correction {
    std::string line;
    Boxes boxes; // for the new line
    // Labels of boxes, ", " between; empty for none.
    std::string cut;   // text longer than its columns
    std::string wrong; // changed to what is no frequency on a band, no time or no date
};

// The line with every box that differs from what was shown (tidied, cut or padded to its
// columns; a frequency in MHz as kHz); all other columns stay byte for byte.
Correction corrected(std::string_view line, const Boxes& shown, const Boxes& typed);

// False for a call that was edited to fewer than 3 characters: once saved, no search could
// find the contact again.
bool keepsFindable(const Boxes& shown, const Boxes& typed);

// --- The editor -------------------------------------------------------------------------------

// In the order in which the boxes are written. Deliberate, since old logs hold lines edited so:
// the report sent is written one column to the right of where it is read, and only the first
// four columns of the marker are edited.
inline constexpr std::array<BoxField, 15> editorFields{{
    {"Text2", "FREQUENCY", qso::frequency},
    {"Text3", "MODE", qso::mode},
    {"Text4", "DATE", qso::date},
    {"Text15", "TIME - GMT", qso::time},
    {"Text5", "MY CALL", qso::myCall},
    {"Text6", "RST SENT", qso::rstSent, {qso::rstSent.first + 1, qso::rstSent.width}},
    {"Text7", "MY NAME", qso::myName},
    {"Text8", "MY STATE", qso::myState},
    {"Text9", "MY SKCC#", qso::myNumber},
    {"Text10", "HIS CALL", qso::hisCall},
    {"Text11", "RST RCVD", qso::rstReceived},
    {"Text12", "HIS NAME", qso::hisName},
    {"Text13", "HIS STATE", qso::hisState},
    {"Text14", "HIS SKCC#", qso::hisNumber},
    {"Text16", "DUPE NOTE", qso::dupeColumns},
}};

// The boxes for a line: their columns as they stand, padding included.
Boxes editorBoxes(std::string_view line);

// The boxes as they are written: cut, upper-cased, trimmed and padded to their widths; the
// frequency keeps leading blanks, and four digits get one.
Boxes tidiedBoxes(const Boxes& typed);

// The line with the (tidied) boxes written into it, rebuilt to 105 columns: see editorFields
// and the body for what it leaves out.
std::string rebuiltLine(std::string_view line, const Boxes& boxes);

// What rebuilding the line changed besides what was edited: "RST SENT 599 > 559, MARK K3Y/EU >
// K3Y/"; empty for nothing. shown: the boxes before the editing; typed: after it.
std::string changedBesides(std::string_view before, const Boxes& shown, const Boxes& typed,
                           std::string_view rebuilt);

} // namespace vantrel
