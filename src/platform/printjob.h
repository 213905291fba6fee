// SPDX-License-Identifier: MIT
// Sending lines to the printer, and telling where they went when there is none.
#pragma once

#include <string>
#include <vector>

namespace vantrel {

class Files;
class Printer;

// Prints the lines; without a printer into the PDF `pdfName` (a name of the program folder).
// Returns what to tell the operator besides: empty when a printer took the job. Throws as
// Printer::print and Files::rewrite.
std::string sendToPrinter(Printer& printer, Files& files, const std::vector<std::string>& lines,
                          const std::string& pdfName);

} // namespace vantrel
