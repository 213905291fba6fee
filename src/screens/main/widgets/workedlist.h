// SPDX-License-Identifier: MIT
// The main page's list of worked stations.
#pragma once

#include "forms/linelistmodel.h"

#include <string>
#include <vector>

class QLabel;

namespace vantrel {

class WorkedList : public LineList {
    Q_OBJECT

public:
    explicit WorkedList(QWidget* page);

    // Shows the lines, scrolled to the last one.
    void setLines(const std::vector<std::string>& lines);
    // The headings over the columns.
    QLabel* headings(QWidget* page) const;
    // Goes to the last contact; false when there is none.
    bool takeFocus();
    // The number of the selected contact in the log, from 1; 0 for none.
    int chosenContact() const { return currentIndex().row() + 1; }

Q_SIGNALS:
    // By a double click or Enter; by Del. contact: its number in the log, from 1.
    void chosen(int contact);
    void removed(int contact);
    // Esc: back to the call box.
    void escaped();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace vantrel
