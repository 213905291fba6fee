// SPDX-License-Identifier: MIT
#include "forms/readtable.h"

#include "platform/qt/latin1.h"

#include <QHeaderView>

namespace vantrel {

namespace {

// Its colour is asked for when it is painted: the palette may have changed by then.
class ColouredItem : public QTableWidgetItem {
public:
    ColouredItem(const QString& text, Colour colour) : QTableWidgetItem(text), m_colour(colour) {}

    QVariant data(int role) const override {
        if (role == Qt::ForegroundRole && m_colour != nullptr)
            return QBrush(m_colour(tableWidget()->palette()));
        return QTableWidgetItem::data(role);
    }

private:
    Colour m_colour;
};

QTableWidgetItem* itemOf(const ReadTable::Cell& cell) {
    auto* item = new ColouredItem(toQt(cell.text), cell.colour);
    item->setTextAlignment(cell.alignment | Qt::AlignVCenter);
    if (!cell.words.empty())
        item->setData(Qt::AccessibleTextRole, toQt(cell.words));
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
    setColour(this, QPalette::Base, noColour);
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
