// SPDX-License-Identifier: MIT
// The members whose call is like the one being typed, side by side in one line.
#pragma once

#include <QListView>

#include <string>
#include <vector>

class QStandardItemModel;

namespace vantrel {

class SuggestionList : public QListView {
    Q_OBJECT

public:
    struct Line {
        std::string call;
        std::string text;
        bool dupe; // worked on the present band
    };

    explicit SuggestionList(QWidget* page);

    // As many of them as fit.
    void setLines(const std::vector<Line>& lines);
    // The first one has the focus; false when there is none.
    bool takeFocus();

Q_SIGNALS:
    // By a click or Enter.
    void chosen(const QString& call);
    // Esc: the operator goes on typing.
    void left();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QStandardItemModel* m_model;
};

} // namespace vantrel
