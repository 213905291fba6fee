// SPDX-License-Identifier: MIT
#include "output/frmVantrelList.h"

#include "output/viewedlines.h"
#include "platform/files.h"

namespace vantrel {

frmVantrelList::frmVantrelList(const FormContext& context)
    : ViewerForm(context, "frmVantrelList", "Vantrel - List") {}

void frmVantrelList::Form_Load() {
    const std::string name = listedFile(module());
    showLines(platform().files.path(name), {});
    showLines(platform().files.path(name), wholeLines(platform().files.read(name)));
}

// Whoever opens the list says anew what it shows; the main page wants the log.
void frmVantrelList::closeEvent(QCloseEvent* event) {
    const bool toFileScreen = module().listFromFileScreen;
    module().listShowsAdif = false;
    module().listFromFileScreen = false;
    ViewerForm::closeEvent(event);
    if (toFileScreen)
        screens().open(Screen::files);
}

} // namespace vantrel
