// SPDX-License-Identifier: MIT
// The log file editor's view of a contact line: its boxes, where each is read and written,
// and the line it rebuilds from them.
#pragma once

#include "log/qsoline.h"

#include <array>
#include <string>
#include <string_view>

namespace vantrel {

struct EditorField {
    const char* box; // the control's name
    const char* label;
    Column read;
    Column written;
};

// In the order in which the boxes are written. Deliberate, since old logs hold lines edited so:
// the report sent is written one column to the right of where it is read, and only the first
// four columns of the marker are edited.
inline constexpr std::array<EditorField, 15> editorFields{{
    {"Text2", "FREQUENCY", qso::frequency, qso::frequency},
    {"Text3", "MODE", qso::mode, qso::mode},
    {"Text4", "DATE", qso::date, qso::date},
    {"Text15", "TIME - GMT", qso::time, qso::time},
    {"Text5", "MY CALL", qso::myCall, qso::myCall},
    {"Text6", "RST SENT", qso::rstSent, {qso::rstSent.first + 1, qso::rstSent.width}},
    {"Text7", "MY NAME", qso::myName, qso::myName},
    {"Text8", "MY STATE", qso::myState, qso::myState},
    {"Text9", "MY SKCC#", qso::myNumber, qso::myNumber},
    {"Text10", "HIS CALL", qso::hisCall, qso::hisCall},
    {"Text11", "RST RCVD", qso::rstReceived, qso::rstReceived},
    {"Text12", "HIS NAME", qso::hisName, qso::hisName},
    {"Text13", "HIS STATE", qso::hisState, qso::hisState},
    {"Text14", "HIS SKCC#", qso::hisNumber, qso::hisNumber},
    {"Text16", "DUPE NOTE", qso::dupeColumns, qso::dupeColumns},
}};

// What the boxes hold, in that order.
using EditorBoxes = std::array<std::string, editorFields.size()>;

// The boxes for a line: their columns as they stand, padding included.
EditorBoxes editorBoxes(std::string_view line);

// The boxes as they are written: cut, upper-cased, trimmed and padded to their widths; the
// frequency keeps leading blanks, and four digits get one.
EditorBoxes tidiedBoxes(const EditorBoxes& typed);

// The line with the (tidied) boxes written into it, rebuilt to 105 columns: see editorFields
// and the body for what it leaves out.
std::string rebuiltLine(std::string_view line, const EditorBoxes& boxes);

// What rebuilding the line changed besides what was edited: "RST SENT 599 > 559, MARK K3Y/EU >
// K3Y/"; empty for nothing. shown: the boxes before the editing; typed: after it.
std::string changedBesides(std::string_view before, const EditorBoxes& shown,
                           const EditorBoxes& typed, std::string_view rebuilt);

} // namespace vantrel
