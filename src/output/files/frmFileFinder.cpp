// SPDX-License-Identifier: MIT
#include "output/files/frmFileFinder.h"

#include "forms/formbuilder.h"
#include "forms/linelistmodel.h"
#include "platform/qt/latin1.h"

#include <QGridLayout>
#include <QSignalBlocker>

namespace vantrel {

frmFileFinder::frmFileFinder(const FormContext& context)
    : Form(context, "frmFileFinder", "FILE FINDER") {
    createControls();
    layOut();
    using Finder = frmFileFinder;
    connectHandler(drvList, &QComboBox::currentIndexChanged, this, &Finder::drvList_Change);
    // Chosen, not only changed: the drive that shows already leads back to its top.
    connectHandler(drvList, &QComboBox::activated, this, &Finder::drvList_Change);
    connectHandler(dirList, &QListView::activated, this, &Finder::dirList_Change);
    connectHandler(filList, &QListView::clicked, this, &Finder::filList_Click);
    connectHandler(filList, &QListView::activated, this, &Finder::filList_Click);
    connectHandler(Command1, &QPushButton::clicked, this, &Finder::Command1_Click);
}

void frmFileFinder::createControls() {
    FormBuilder build(this);
    drvList = build.combo("drvList", "CHOOSE A DRIVE");
    dirList = build.list("dirList", "DOUBLE CLICK OR ENTER OPENS A FOLDER");
    filList = build.list("filList", "CLICK OR ENTER SELECTS A FILE");
    Command1 = build.command("Command1", "&RETURN", "GOES BACK WITH WHAT IS SELECTED");
    Label1 = build.label("Label1", "Select a File");
    Label2 = build.label("Label2", "DRIVE:");
    Label3 = build.label("Label3", "FOLDER");
    Label4 = build.label("Label4", "FILE");
    Label6 = build.label("Label6", "FILE SELECTED :");
    Label5 = build.label("Label5");
    m_folders = new LineListModel(this);
    m_files = new LineListModel(this);
    dirList->setModel(m_folders);
    filList->setModel(m_files);
}

void frmFileFinder::load() {
    m_finder.emplace(platform().files, m_machine);
    const QSignalBlocker quiet(drvList);
    drvList->clear();
    for (const std::string& drive : m_finder->drives())
        drvList->addItem(toQt(drive));
    showFolder();
}

QWidget* frmFileFinder::firstFocus() {
    return dirList;
}

void frmFileFinder::drvList_Change(int index) {
    try {
        m_finder->openDrive(static_cast<std::size_t>(index));
    } catch (const RuntimeError&) {
        showFolder(); // the drive chosen before shows again
        throw;
    }
    showFolder();
}

void frmFileFinder::dirList_Change(const QModelIndex& index) {
    if (!index.isValid())
        return;
    m_finder->enterFolder(static_cast<std::size_t>(index.row()));
    showFolder();
}

void frmFileFinder::filList_Click(const QModelIndex& index) {
    if (!index.isValid())
        return;
    m_finder->chooseFile(static_cast<std::size_t>(index.row()));
    Label5->setText(toQt(m_finder->selection()));
}

void frmFileFinder::Command1_Click() {
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

void frmFileFinder::showFolder() {
    const QSignalBlocker quiet(drvList);
    drvList->setCurrentIndex(static_cast<int>(m_finder->currentDrive()));
    m_folders->setLines(m_finder->folders());
    m_files->setLines(m_finder->files());
    Label5->setText(toQt(m_finder->selection()));
}

void frmFileFinder::layOut() {
    Label1->setAlignment(Qt::AlignCenter);
    Label5->setWordWrap(true);
    auto* grid = new QGridLayout(this);
    grid->addWidget(Label1, 0, 0, 1, 2);
    grid->addWidget(Label2, 1, 0);
    grid->addWidget(drvList, 2, 0);
    grid->addWidget(Label3, 3, 0);
    grid->addWidget(dirList, 4, 0);
    grid->addWidget(Label4, 3, 1);
    grid->addWidget(filList, 4, 1);
    grid->addWidget(Label6, 5, 0);
    grid->addWidget(Label5, 6, 0, 1, 2);
    grid->addWidget(Command1, 7, 1, Qt::AlignRight);
    grid->setRowStretch(4, 1);
    resize(640, 480);
}

} // namespace vantrel
