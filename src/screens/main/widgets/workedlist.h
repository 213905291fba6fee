// SPDX-License-Identifier: MIT
// The worked stations as the main page lists them: what stands out and why.
#pragma once

#include <QListView>

#include <string>
#include <vector>

class QLabel;

namespace vantrel {

class LineListModel;

class WorkedList : public QListView {
    Q_OBJECT

public:
    explicit WorkedList(QWidget* page);

    // Shows the lines and the end of them.
    void setLines(const std::vector<std::string>& lines);
    // The headings over the columns.
    QLabel* headings(QWidget* page) const;
    // The last contact has the focus; false when there is none.
    bool takeFocus();
    // Of the line that is selected, from 1; 0: none.
    int chosenContact() const { return currentIndex().row() + 1; }

Q_SIGNALS:
    // By a double click or Enter, and by Del: a contact of the log, from 1.
    void chosen(int contact);
    void removed(int contact);
    // Esc: the operator goes on typing.
    void escaped();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    LineListModel* m_lines;
};

} // namespace vantrel
