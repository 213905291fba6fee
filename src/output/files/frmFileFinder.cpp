// SPDX-License-Identifier: MIT
#include "output/files/frmFileFinder.h"

#include <QGridLayout>

namespace vantrel {

namespace {
constexpr int listColumns = 40;
constexpr int listRows = 16;
} // namespace

frmFileFinder::frmFileFinder(const FormContext& context)
    : Form(context, "frmFileFinder", "FILE FINDER") {
    FormBuilder build(this);
    auto* grid = new QGridLayout(this);
    const auto addUnder = [&](QLabel* caption, QWidget* list, int row, int column) {
        FormBuilder::tie(caption, list);
        grid->addWidget(caption, row, column);
        grid->addWidget(list, row + 1, column);
    };
    const auto list = [&](const char* name, const char* toolTip) {
        LineList* view = build.list(name, toolTip);
        view->setMinimumSize(fontMetrics().averageCharWidth() * listColumns,
                             fontMetrics().height() * listRows);
        return view;
    };
    m_driveBox = build.combo("drvList", "CHOOSE A DRIVE");
    m_folders = focusFirst(list("dirList", "DOUBLE CLICK OR ENTER OPENS A FOLDER"));
    m_files = list("filList", "CLICK OR ENTER SELECTS A FILE");
    grid->addWidget(build.label("Label1", "Select a File"), 0, 0, 1, 2, Qt::AlignCenter);
    addUnder(build.label("Label2", "DRIVE:"), m_driveBox, 1, 0);
    addUnder(build.label("Label3", "FOLDER"), m_folders, 3, 0);
    addUnder(build.label("Label4", "FILE"), m_files, 3, 1);
    grid->addWidget(build.label("Label6", "FILE SELECTED :"), 5, 0);
    grid->addWidget(m_selection = wrapped(build.label("Label5")), 6, 0, 1, 2);
    grid->addWidget(build.command("Command1", "&RETURN", "GOES BACK WITH WHAT IS SELECTED",
                                  [this] { returnSelection(); }),
                    7, 1, Qt::AlignRight);
    grid->setRowStretch(4, 1);
    // Chosen, not only changed: the drive that shows already leads back to its top.
    connectHandler(m_driveBox, &QComboBox::activated, [this](int index) { openDrive(index); });
    connectHandler(m_folders, &QListView::activated, [this](const QModelIndex& index) {
        if (!index.isValid())
            return;
        m_finder->enterFolder(static_cast<std::size_t>(index.row()));
        showFolder();
    });
    FormBuilder::onChoice(m_files, [this](std::size_t row) {
        m_finder->chooseFile(row);
        put(m_selection, m_finder->selection());
    });
}

void frmFileFinder::load() {
    m_finder.emplace(platform().files,
                     m_receiver == Screen::start ? FinderNames::asLog : FinderNames::anywhere);
    m_driveBox->clear();
    for (const std::string& drive : m_finder->drives())
        m_driveBox->addItem(toQt(drive));
    showFolder();
}

void frmFileFinder::openDrive(int index) {
    try {
        m_finder->openDrive(static_cast<std::size_t>(index));
    } catch (const RuntimeError&) {
        showDrive(); // as before, like all else
        throw;
    }
    showFolder();
}

void frmFileFinder::returnSelection() {
    if (!m_finder) { // the program folder could not be listed: there is nothing to hand back
        close();
        return;
    }
    Screens& others = screens();
    const Screen receiver = m_receiver;
    const std::string selection = m_finder->selection();
    close(); // first: the receiver's box is to have the focus in the end
    others.handBackPath(receiver, selection);
}

void frmFileFinder::showDrive() {
    m_driveBox->setCurrentIndex(static_cast<int>(m_finder->currentDrive()));
}

void frmFileFinder::showFolder() {
    showDrive();
    m_folders->lines()->setLines(m_finder->folders());
    m_files->lines()->setLines(m_finder->files());
    put(m_selection, m_finder->selection());
}

} // namespace vantrel
