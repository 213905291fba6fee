// SPDX-License-Identifier: MIT
#include "output/frmVantrelShowDB.h"

#include "platform/files.h"

namespace vantrel {

frmVantrelShowDB::frmVantrelShowDB(const FormContext& context)
    : ViewerForm(context, "frmVantrelShowDB", "Vantrel - Members") {}

void frmVantrelShowDB::Form_Load() {
    showLines(platform().files.path(module().rosterFile), module().rosterLines);
}

} // namespace vantrel
