// SPDX-License-Identifier: MIT
// Prints lines on the system's default printer, or draws them as a PDF.
#pragma once

#include "platform/printer.h"

namespace vantrel {

class QtPrinter : public Printer {
public:
    bool print(const std::vector<std::string>& lines) override;
    std::string pdf(const std::vector<std::string>& lines) override;
};

} // namespace vantrel
