// SPDX-License-Identifier: MIT
// The drive, folder and file picker that three screens share.
#pragma once

#include "forms/form.h"
#include "output/files/filefinder.h"

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

    // The screen that gets the path.
    void handTo(Screen receiver) { m_receiver = receiver; }
    // Another screen may ask while it shows: it starts again for that one.
    bool loadsAgain() const override { return true; }

protected:
    void load() override;
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

    Screen m_receiver = Screen::start;
    SystemFolders m_machine;
    std::optional<FileFinder> m_finder;
    LineListModel* m_folders;
    LineListModel* m_files;
};

} // namespace vantrel
