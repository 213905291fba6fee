// SPDX-License-Identifier: MIT
// The drive, folder and file picker that three screens share.
#pragma once

#include "output/filefinder.h"
#include "platform/qt/form.h"

#include <optional>

class QComboBox;
class QLabel;
class QListView;
class QModelIndex;
class QPushButton;

namespace vantrel {

class LineListModel;

class frmFileFinder : public Form {
    Q_OBJECT

public:
    explicit frmFileFinder(const FormContext& context);

    // Another screen may ask while it shows: it starts again for that one.
    bool loadsAgain() const override { return true; }

protected:
    void Form_Load() override;
    QWidget* firstFocus() override;

private:
    void createControls();
    void layOut();

    void drvList_Change(int index);
    void dirList_Change(const QModelIndex& index); // double click, Enter
    void filList_Click(const QModelIndex& index);  // click, Enter
    void Command1_Click();                         // return

    void showFolder();

    QLabel* Label1; // heading
    QLabel* Label2; // caption of the drives
    QComboBox* drvList;
    QLabel* Label3; // caption of the folders
    QListView* dirList;
    QLabel* Label4; // caption of the files
    QListView* filList;
    QLabel* Label6;        // caption of the selection
    QLabel* Label5;        // the selection
    QPushButton* Command1; // return

    SystemFolders m_machine;
    std::optional<FileFinder> m_finder;
    LineListModel* m_folders;
    LineListModel* m_files;
};

} // namespace vantrel
