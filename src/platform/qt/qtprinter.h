// SPDX-License-Identifier: MIT
// Prints lines on the system's default printer, or into a PDF where there is none.
#pragma once

#include "platform/printer.h"

namespace vantrel {

class QtPrinter : public Printer {
public:
    std::string print(const std::vector<std::string>& lines, const std::string& pdfPath) override;
};

// The same into a PDF in any case, replaced whole or not at all. Throws RuntimeError 70 or 75
// naming the file when it cannot be written.
void printToPdf(const std::vector<std::string>& lines, const std::string& pdfPath);

} // namespace vantrel
