// SPDX-License-Identifier: MIT
// What the screens have in common that show a file's lines: the list, finding, copying.
#pragma once

#include "forms/form.h"

#include <string>
#include <vector>

class QLabel;
class QLineEdit;
class QListView;
class QPushButton;

namespace vantrel {

class LineListModel;

class ViewerForm : public Form {
    Q_OBJECT

public:
    ViewerForm(const FormContext& context, const char* name, const char* caption);

    // Opened again it shows what is to be seen now.
    bool loadsAgain() const override { return true; }

protected:
    void escapePressed() override;
    QWidget* firstFocus() override;

    // Shows the lines (ISO 8859-1) and, above them, the file's path and their number.
    void showLines(const std::string& path, std::vector<std::string> lines);

private:
    void createControls();
    void layOut();
    void connectHandlers();

    void openFind();
    void findTyped(); // from the current line on
    void findNext();  // behind it
    void copySelected();

    void findFrom(int row);
    void endFinding();

    QLabel* m_pathLabel;
    QListView* m_list;
    QLineEdit* m_findBox;
    QLabel* m_foundLabel;
    QPushButton* m_exitButton;
    QWidget* m_findRow; // shown while finding
    LineListModel* m_lines;
};

} // namespace vantrel
