// SPDX-License-Identifier: MIT
// The members whose call is like the one being typed, side by side in one line.
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

    // As many of them as fit.
    void setLines(const std::vector<MemberLine>& lines);
    // The first one has the focus; false when there is none.
    bool takeFocus();

Q_SIGNALS:
    // By a click or Enter.
    void chosen(const QString& call);
    // Esc: the operator goes on typing.
    void escaped();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showLines();

    std::vector<MemberLine> m_lines;
    QStandardItemModel* m_model;
};

} // namespace vantrel
