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

QVariant LineListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const std::string& line = m_lines.at(static_cast<std::size_t>(index.row()));
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return toQt(line);
    if (role != Qt::AccessibleTextRole)
        return {};
    const std::string words = m_words == nullptr ? line : m_words(line);
    return toQt(words).replace(QLatin1Char('|'), QLatin1Char(' ')).simplified();
}

} // namespace vantrel
