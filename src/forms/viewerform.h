// SPDX-License-Identifier: MIT
// The base of the screens that show a file's lines: the list, finding, copying.
#pragma once

#include "forms/page.h"

#include <cstddef>

namespace vantrel {

class ViewerForm : public Form {
public:
    ViewerForm(const FormContext& context, const char* name, const char* caption);

    // The file may have changed since.
    bool loadsAgain() const override { return true; }

    // As wide as its longest line.
    QSize sizeHint() const override;

protected:
    void escapePressed() override;

    // What stands over the columns of the lines.
    void setHeading(std::string_view heading);
    // Shows the lines (ISO 8859-1) and, above them, the file's path and their number. `current`:
    // index of the line that it opens at.
    void showLines(const std::string& path, std::vector<std::string> lines,
                   std::size_t current = 0);

private:
    void openFind();
    void findTyped();                                                // from the current line on
    void findNext() { goToFound(m_list->currentIndex().row() + 1); } // behind it
    void copySelected();

    void goToFound(int row);
    void showPlace();
    QSize listSize() const;

    QLabel* m_pathLabel;
    LineList* m_list;
    QLineEdit* m_findBox;
    QLabel* m_headingLabel;
    AlertLabel* m_foundLabel;

    std::vector<int> m_found; // rows with the text to find; all of them without one
    int m_columns = 0;        // of the longest line
};

} // namespace vantrel
