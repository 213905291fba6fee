// SPDX-License-Identifier: MIT
// Lines of text behind a list view: no item objects, so 12,000 lines cost nothing to show.
#pragma once

#include <QAbstractListModel>

#include <string>
#include <vector>

namespace vantrel {

class LineListModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    // Lines in ISO 8859-1, shown in this order.
    void setLines(std::vector<std::string> lines);
    const std::vector<std::string>& lines() const { return m_lines; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<std::string> m_lines;
};

} // namespace vantrel
