// SPDX-License-Identifier: MIT
// Lines of text behind a list view: no item objects, so 12,000 lines cost nothing to show.
#pragma once

#include <QListView>

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class LineListModel : public QAbstractListModel {
public:
    using Words = std::string (*)(std::string_view line);

    // words: makes what a screen reader says of a line; nullptr: the line itself. Bars and doubled
    // blanks are left out of both.
    explicit LineListModel(QObject* parent, Words words = nullptr)
        : QAbstractListModel(parent), m_words(words) {}

    // Lines in ISO 8859-1, shown in this order.
    void setLines(std::vector<std::string> lines);
    const std::vector<std::string>& lines() const { return m_lines; }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
    }
    QVariant data(const QModelIndex& index, int role) const override;

private:
    Words m_words;
    std::vector<std::string> m_lines;
};

// The list view in front of such lines.
class LineList : public QListView {
public:
    explicit LineList(QWidget* parent, LineListModel::Words words = nullptr) : QListView(parent) {
        setModel(new LineListModel(this, words));
    }
    LineListModel* lines() const { return static_cast<LineListModel*>(model()); }
};

} // namespace vantrel
