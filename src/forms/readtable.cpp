// SPDX-License-Identifier: MIT
#include "forms/readtable.h"

#include "platform/qt/latin1.h"

#include <QHeaderView>

namespace vantrel {

namespace {

QTableWidgetItem* itemOf(const ReadTable::Cell& cell) {
    auto* item = new QTableWidgetItem(toQt(cell.text));
    item->setTextAlignment(cell.alignment | Qt::AlignVCenter);
    if (!cell.words.empty())
        item->setData(Qt::AccessibleTextRole, toQt(cell.words));
    if (cell.colour.isValid())
        item->setForeground(cell.colour);
    if (cell.bold) {
        QFont font = item->font();
        font.setBold(true);
        item->setFont(font);
    }
    return item;
}

} // namespace

ReadTable::ReadTable(QWidget* parent) : QTableWidget(parent) {
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::NoFocus);
    setShowGrid(false);
    setFrameShape(QFrame::NoFrame);
    QPalette flat(palette());
    flat.setColor(QPalette::Base, Qt::transparent);
    setPalette(flat);
    horizontalHeader()->viewport()->setAutoFillBackground(false);
    verticalHeader()->hide();
    // The least height first: it bounds the other.
    verticalHeader()->setMinimumSectionSize(parent->fontMetrics().height());
    verticalHeader()->setDefaultSectionSize(parent->fontMetrics().height());
}

void ReadTable::setHeadings(const std::vector<Cell>& headings) {
    setColumnCount(static_cast<int>(headings.size()));
    for (int column = 0; column < columnCount(); ++column)
        setHorizontalHeaderItem(column, itemOf(headings[static_cast<std::size_t>(column)]));
}

void ReadTable::setRows(const std::vector<std::vector<Cell>>& rows) {
    setRowCount(static_cast<int>(rows.size()));
    for (int row = 0; row < rowCount(); ++row)
        for (int column = 0; column < columnCount(); ++column)
            setItem(row, column,
                    itemOf(rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]));
}

} // namespace vantrel
