// SPDX-License-Identifier: MIT
#include "output/files/frmVantrelList.h"

#include "base/itemreader.h"
#include "log/logfile.h"
#include "output/files/filetexts.h"
#include "platform/files.h"

namespace vantrel {

frmVantrelList::frmVantrelList(const FormContext& context)
    : ViewerForm(context, "frmVantrelList", "Vantrel - List") {}

void frmVantrelList::load() {
    const std::string& log = shared().log.name();
    const std::string name = m_file == ListedFile::adif ? adifFileName(log) : log;
    const std::string path = platform().files.path(name);
    showLines(path, {});
    const std::string bytes = platform().files.read(name);
    const std::vector<std::string_view> views = linesOf(bytes);
    std::vector<std::string> lines(views.begin(), views.end());
    const std::size_t current = m_file == ListedFile::log ? lastContactOf(lines) : 0;
    showLines(path, std::move(lines), current);
}

// The file screen that it came from may have been closed meanwhile; the main page never is.
void frmVantrelList::closeEvent(QCloseEvent* event) {
    ViewerForm::closeEvent(event);
    if (opener() == nullptr)
        screens().open(Screen::files);
}

} // namespace vantrel
