// SPDX-License-Identifier: MIT
// A table that is read and never edited: flat on its ground, without frames or row numbers.
#pragma once

#include "forms/colours.h"

#include <QTableWidget>

#include <string>
#include <vector>

namespace vantrel {

class ReadTable : public QTableWidget {
public:
    struct Cell {
        std::string text;
        std::string words{}; // for a screen reader, where it should not read the text
        Qt::Alignment alignment = Qt::AlignRight;
        bool bold = false;
        Colour colour = nullptr; // of the text; nullptr: the palette's
    };

    explicit ReadTable(QWidget* parent);

    // One for each column.
    void setHeadings(const std::vector<Cell>& headings);
    // Each row has as many cells as there are headings.
    void setRows(const std::vector<std::vector<Cell>>& rows);
};

} // namespace vantrel
