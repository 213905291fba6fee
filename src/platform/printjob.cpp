// SPDX-License-Identifier: MIT
#include "platform/printjob.h"

#include "platform/files.h"
#include "platform/printer.h"

namespace vantrel {

std::string sendToPrinter(Printer& printer, Files& files, const std::vector<std::string>& lines,
                          const std::string& pdfName) {
    if (printer.print(lines))
        return {};
    files.rewrite(pdfName, printer.pdf(lines));
    return "There is no printer: the PDF is at " + files.path(pdfName);
}

} // namespace vantrel
