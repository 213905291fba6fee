// SPDX-License-Identifier: MIT
#include "output/printjob.h"

#include "platform/files.h"
#include "platform/printer.h"

namespace vantrel {

std::string sendToPrinter(Printer& printer, const Files& files,
                          const std::vector<std::string>& lines, const std::string& pdfName) {
    const std::string written = printer.print(lines, files.nativePath(pdfName));
    return written.empty() ? std::string()
                           : "There is no printer: the PDF is at " + files.path(pdfName);
}

} // namespace vantrel
