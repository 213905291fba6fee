// SPDX-License-Identifier: MIT
// The members whose calls are like the one being typed, side by side in one line.
#pragma once

#include "screens/main/workedcalls.h"

#include <QListView>

#include <vector>

class QStandardItemModel;

namespace vantrel {

class SuggestionList : public QListView {
    Q_OBJECT

public:
    explicit SuggestionList(QWidget* page);

    // Shows as many of them as fit.
    void setLines(const std::vector<MemberLine>& lines);
    // Goes to the first member; false when there is none.
    bool takeFocus();

Q_SIGNALS:
    // By a click or Enter.
    void chosen(const QString& call);
    // Esc or Up: back to the call box.
    void escaped();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showLines();

    std::vector<MemberLine> m_lines;
    QStandardItemModel* m_model;
};

} // namespace vantrel
