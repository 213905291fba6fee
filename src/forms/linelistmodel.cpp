// SPDX-License-Identifier: MIT
#include "forms/linelistmodel.h"

#include "platform/qt/latin1.h"

#include <utility>

namespace vantrel {

void LineListModel::setLines(std::vector<std::string> lines) {
    beginResetModel();
    m_lines = std::move(lines);
    endResetModel();
}

int LineListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

QVariant LineListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    return toQt(m_lines.at(static_cast<std::size_t>(index.row())));
}

} // namespace vantrel
