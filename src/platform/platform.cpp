// SPDX-License-Identifier: MIT
#include "platform/platform.h"

#include "platform/files.h"

#include <ctime>

namespace vantrel {

LocalTime SystemClock::now() const {
    const std::time_t seconds = std::time(nullptr);
    const std::tm local = *std::localtime(&seconds);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
            local.tm_hour,        local.tm_min,     local.tm_sec};
}

int SystemClock::utc() const {
    return static_cast<int>(std::time(nullptr) / 60 % (24 * 60));
}

std::string sendToPrinter(Printer& printer, Files& files, const std::vector<std::string>& lines,
                          const std::string& pdfName) {
    if (printer.print(lines))
        return {};
    files.rewrite(pdfName, printer.pdf(lines));
    return "There is no printer: the PDF is at " + files.path(pdfName);
}

} // namespace vantrel
