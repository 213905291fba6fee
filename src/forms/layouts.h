// SPDX-License-Identifier: MIT
// Layouts that read like the page: rows and columns of controls, of other layouts and of the room
// between them.
#pragma once

#include <QBoxLayout>
#include <QWidget>

#include <vector>

namespace vantrel {

struct Item {
    // share: of what the row or column has to spare.
    Item(QWidget* control, int share = 0, Qt::Alignment side = {})
        : widget(control), stretch(share), alignment(side) {}
    Item(QLayout* part, int share = 0) : layout(part), stretch(share) {}

    // What follows is pushed to the far end.
    static Item room() { return Item(static_cast<QLayout*>(nullptr)); }
    static Item gap(int pixels) {
        Item item = room();
        item.pixels = pixels;
        return item;
    }

    QWidget* widget = nullptr;
    QLayout* layout = nullptr;
    int stretch = 0;
    int pixels = 0;
    Qt::Alignment alignment{};
};

template <typename Box>
Box* withItems(Box* box, const std::vector<Item>& items) {
    for (const Item& item : items) {
        if (item.widget != nullptr)
            box->addWidget(item.widget, item.stretch, item.alignment);
        else if (item.layout != nullptr)
            box->addLayout(item.layout, item.stretch);
        else if (item.pixels > 0)
            box->addSpacing(item.pixels);
        else
            box->addStretch();
    }
    return box;
}

inline QHBoxLayout* row(const std::vector<Item>& items) {
    return withItems(new QHBoxLayout, items);
}

inline QVBoxLayout* column(const std::vector<Item>& items) {
    return withItems(new QVBoxLayout, items);
}

// The whole of a page or a widget, from the top down.
inline QVBoxLayout* page(QWidget* widget, const std::vector<Item>& items) {
    return withItems(new QVBoxLayout(widget), items);
}

} // namespace vantrel
