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

private:
    LineListModel* m_lines;
};

} // namespace vantrel
