// SPDX-License-Identifier: MIT
#include "screens/main/widgets/suggestionlist.h"

#include "forms/accessible.h"
#include "forms/colours.h"
#include "forms/formbuilder.h"
#include "platform/qt/latin1.h"
#include "screens/main/widgets/entryboxes.h"

#include <QKeyEvent>
#include <QStandardItemModel>

namespace vantrel {

namespace {
constexpr int callRole = Qt::UserRole + 1;
constexpr int spacingCharacters = 3;
} // namespace

SuggestionList::SuggestionList(QWidget* page)
    : QListView(page), m_model(new QStandardItemModel(this)) {
    setAccessibleName(QStringLiteral("MEMBERS"));
    setFocusPolicy(Qt::ClickFocus); // Tab passes it, Down in the call box leads into it
    setModel(m_model);
    setFlow(LeftToRight);
    setWrapping(false);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(NoFrame);
    viewport()->setAutoFillBackground(false);
    setFixedHeight(fontMetrics().height() + 6);
    connect(this, &QListView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT chosen(index.data(callRole).toString()); });
}

void SuggestionList::setLines(const std::vector<MemberLine>& lines) {
    m_lines = lines;
    showLines();
}

void SuggestionList::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    showLines();
}

// The lines are coloured for the palette of the moment.
void SuggestionList::changeEvent(QEvent* event) {
    QListView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showLines();
}

void SuggestionList::showLines() {
    m_model->clear();
    const int gap = fontMetrics().averageCharWidth() * spacingCharacters;
    int used = 0;
    for (const MemberLine& line : m_lines) {
        const std::string news = line.dupe ? " DUPE" : line.gain.empty() ? "" : ' ' + line.gain;
        const QString text = toQt(line.text + news);
        const int width = fontMetrics().horizontalAdvance(text) + gap;
        used += width;
        if (used > viewport()->width())
            return;
        auto* item = new QStandardItem(text);
        item->setData(toQt(line.call), callRole);
        item->setSizeHint({width, fontMetrics().height()});
        item->setForeground(line.dupe           ? warningColour(palette())
                            : line.gain.empty() ? dimmedColour(palette())
                                                : goodColour(palette()));
        m_model->appendRow(item);
    }
}

bool SuggestionList::takeFocus() {
    if (m_model->rowCount() == 0)
        return false;
    setCurrentIndex(m_model->index(0, 0));
    setFocus();
    announceCurrentRow(this);
    return true;
}

void SuggestionList::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentIndex().isValid())
        Q_EMIT chosen(currentIndex().data(callRole).toString());
    else if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Up)
        Q_EMIT escaped();
    else if (isTyping(*event))
        event->ignore();
    else
        QListView::keyPressEvent(event);
}

} // namespace vantrel
