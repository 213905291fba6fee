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
    // Prints the lines (ISO 8859-1) on the system's default printer; false where there is
    // none. Throws RuntimeError 75 when it takes no job.
    virtual bool print(const std::vector<std::string>& lines) = 0;
    // What it would print, as the bytes of a PDF file.
    virtual std::string pdf(const std::vector<std::string>& lines) = 0;
};

} // namespace vantrel
