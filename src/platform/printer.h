// SPDX-License-Identifier: MIT
// A line printer: "Courier New" 12, smaller when a line is wider than the page, one line after
// the other, page breaks as needed.
#pragma once

#include <string>
#include <vector>

namespace vantrel {

class Printer {
public:
    virtual ~Printer() = default;
    // Prints the lines (ISO 8859-1) on the system's default printer; where there is none,
    // into the file `pdfPath` (a real path of the machine). Returns the path of the PDF written,
    // empty when a printer took it. Throws RuntimeError when the PDF cannot be written.
    virtual std::string print(const std::vector<std::string>& lines,
                              const std::string& pdfPath) = 0;
};

} // namespace vantrel
