// SPDX-License-Identifier: MIT
#include "roster/frmVantrelShowDB.h"

#include "roster/rosterfiles.h"

#include <utility>

namespace vantrel {

frmVantrelShowDB::frmVantrelShowDB(const FormContext& context)
    : ViewerForm(context, "frmVantrelShowDB", "Vantrel - Members") {
    setHeading(leftAligned("CALL", member::call.width) +
               leftAligned("SKCC#", member::number.width) +
               leftAligned("NAME", member::name.width) + "S/P/C");
}

void frmVantrelShowDB::take(std::string path, std::vector<std::string> lines) {
    m_path = std::move(path);
    m_rosterLines = std::move(lines);
}

} // namespace vantrel
