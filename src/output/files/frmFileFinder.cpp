// SPDX-License-Identifier: MIT
#include "output/files/frmFileFinder.h"

#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "forms/linelistmodel.h"

#include <QGridLayout>

namespace vantrel {

namespace {
constexpr int listColumns = 40;
constexpr int listRows = 16;
} // namespace

frmFileFinder::frmFileFinder(const FormContext& context)
    : Form(context, "frmFileFinder", "FILE FINDER") {
    createControls();
    layOut();
    using Finder = frmFileFinder;
    // Chosen, not only changed: the drive that shows already leads back to its top.
    connectHandler(m_driveBox, &QComboBox::activated, this, &Finder::driveChosen);
    connectHandler(m_folderList, &QListView::activated, this, &Finder::folderOpened);
    connectHandler(m_fileList, &QListView::clicked, this, &Finder::fileChosen);
    connectHandler(m_fileList, &QListView::activated, this, &Finder::fileChosen); // Enter
    // An arrow key chooses as a click does.
    connectHandler(m_fileList->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                   &Finder::fileSelected);
    connectHandler(m_returnButton, &QPushButton::clicked, this, &Finder::returnClicked);
}

void frmFileFinder::createControls() {
    FormBuilder build(this);
    m_driveBox = build.combo("drvList", "CHOOSE A DRIVE");
    m_folderList = build.list("dirList", "DOUBLE CLICK OR ENTER OPENS A FOLDER");
    m_fileList = build.list("filList", "CLICK OR ENTER SELECTS A FILE");
    m_returnButton = build.command("Command1", "&RETURN", "GOES BACK WITH WHAT IS SELECTED");
    m_selection = build.label("Label5");
    m_folders = new LineListModel(this);
    m_files = new LineListModel(this);
    m_folderList->setModel(m_folders);
    m_fileList->setModel(m_files);
}

void frmFileFinder::load() {
    m_finder.emplace(platform().files, m_machine,
                     m_receiver == Screen::start ? FinderNames::asLog : FinderNames::anywhere);
    m_driveBox->clear();
    for (const std::string& drive : m_finder->drives())
        m_driveBox->addItem(toQt(drive));
    showFolder();
}

QWidget* frmFileFinder::firstFocus() {
    return m_folderList;
}

void frmFileFinder::driveChosen(int index) {
    try {
        m_finder->openDrive(static_cast<std::size_t>(index));
    } catch (const RuntimeError&) {
        showDrive(); // as before, like all else
        throw;
    }
    showFolder();
}

void frmFileFinder::folderOpened(const QModelIndex& index) {
    if (!index.isValid())
        return;
    m_finder->enterFolder(static_cast<std::size_t>(index.row()));
    showFolder();
}

void frmFileFinder::fileChosen(const QModelIndex& index) {
    if (!index.isValid())
        return;
    m_finder->chooseFile(static_cast<std::size_t>(index.row()));
    put(m_selection, m_finder->selection());
}

void frmFileFinder::fileSelected() {
    const QModelIndexList selected = m_fileList->selectionModel()->selectedIndexes();
    if (!selected.isEmpty())
        fileChosen(selected.front());
}

void frmFileFinder::returnClicked() {
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
    m_folders->setLines(m_finder->folders());
    m_files->setLines(m_finder->files());
    put(m_selection, m_finder->selection());
}

void frmFileFinder::layOut() {
    FormBuilder build(this);
    auto* grid = new QGridLayout(this);
    const auto addUnder = [&](QLabel* caption, QWidget* list, int row, int column) {
        FormBuilder::tie(caption, list);
        grid->addWidget(caption, row, column);
        grid->addWidget(list, row + 1, column);
    };
    grid->addWidget(build.label("Label1", "Select a File"), 0, 0, 1, 2, Qt::AlignCenter);
    addUnder(build.label("Label2", "DRIVE:"), m_driveBox, 1, 0);
    addUnder(build.label("Label3", "FOLDER"), m_folderList, 3, 0);
    addUnder(build.label("Label4", "FILE"), m_fileList, 3, 1);
    grid->addWidget(build.label("Label6", "FILE SELECTED :"), 5, 0);
    m_selection->setWordWrap(true);
    grid->addWidget(m_selection, 6, 0, 1, 2);
    grid->addWidget(m_returnButton, 7, 1, Qt::AlignRight);
    grid->setRowStretch(4, 1);
    const int column = fontMetrics().averageCharWidth() * listColumns;
    for (QWidget* list : {static_cast<QWidget*>(m_folderList), static_cast<QWidget*>(m_fileList)})
        list->setMinimumSize(column, fontMetrics().height() * listRows);
}

} // namespace vantrel
