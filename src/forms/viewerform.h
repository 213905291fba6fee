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

    void Find();         // Ctrl+F: the box to type into
    void Text1_Change(); // finds from the current line on
    void FindNext();     // Enter in the box, F3: finds behind the current line
    void Copy();         // Ctrl+C: the selected lines

    void findFrom(int row);
    void endFinding();

    QLabel* Label1;        // file path and line count
    QListView* List1;      // the lines
    QLineEdit* Text1;      // what to find
    QLabel* Label2;        // whether it was found
    QPushButton* Command1; // exit
    QWidget* m_findRow;    // Text1 and Label2, shown while finding
    LineListModel* m_lines;
};

} // namespace vantrel
