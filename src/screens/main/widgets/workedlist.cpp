// SPDX-License-Identifier: MIT
#include "screens/main/widgets/workedlist.h"

#include "base/fixedtext.h"
#include "forms/accessible.h"
#include "forms/colours.h"
#include "forms/formbuilder.h"
#include "forms/linelistmodel.h"
#include "log/log.h"
#include "platform/qt/latin1.h"
#include "screens/main/widgets/entryboxes.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace vantrel {

namespace {

constexpr int tint = 0x30; // of 0xFF: how much of the accent is in the last row's ground

// The last contact is bold on a tinted row, a duplicate red, one with something missing amber; a
// K3Y tag has the accent colour.
class WorkedDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        const std::string line = fromQt(index.data().toString());
        const std::string_view marker = markerOf(line);
        if (marker.empty() || marker == dupeMarker || option.state.testFlag(QStyle::State_Selected))
            return;
        QStyleOptionViewItem shown(option);
        initStyleOption(&shown, index);
        const QWidget* list = option.widget;
        const QRect text = list->style()->subElementRect(QStyle::SE_ItemViewItemText, &shown, list);
        const int margin =
            list->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, list) + 1;
        const int begin =
            text.left() + margin +
            shown.fontMetrics.horizontalAdvance(toQt(left(line, worked::marker.first - 1)));
        painter->setFont(shown.font);
        painter->setPen(accentColour(option.palette));
        painter->drawText(QRect(begin, text.top(), text.width(), text.height()),
                          Qt::AlignVCenter | Qt::TextSingleLine, toQt(marker));
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.row() + 1 == index.model()->rowCount()) {
            option->font.setBold(true);
            QColor ground = option->palette.color(QPalette::Highlight);
            ground.setAlpha(tint);
            option->backgroundBrush = ground;
        }
        const WorkedKind kind = kindOf(fromQt(index.data().toString()));
        if (kind != WorkedKind::complete)
            option->palette.setColor(QPalette::Text, kind == WorkedKind::dupe
                                                         ? warningColour(option->palette)
                                                         : cautionColour(option->palette));
    }
};

} // namespace

WorkedList::WorkedList(QWidget* page)
    : QListView(page), m_lines(new LineListModel(this, workedWords)) {
    setAccessibleName(QStringLiteral("STATIONS WORKED"));
    setFont(fixedWidthFont());
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideNone);
    setItemDelegate(new WorkedDelegate(this));
    setModel(m_lines);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    // Bold, in which the last line stands, is as wide in a fixed-width font.
    const int margins = 2 * frameWidth() + verticalScrollBar()->sizeHint().width() +
                        4 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    setFixedWidth(widthOfColumns(QFontMetrics(font()), worked::columns) + margins);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT chosen(index.row() + 1); });
}

void WorkedList::setLines(const std::vector<std::string>& lines) {
    m_lines->setLines(lines);
    scrollToBottom();
}

bool WorkedList::takeFocus() {
    if (m_lines->rowCount() == 0)
        return false;
    setCurrentIndex(m_lines->index(m_lines->rowCount() - 1));
    setFocus();
    announceCurrentRow(this);
    return true;
}

void WorkedList::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        Q_EMIT escaped();
    else if (enter && chosenContact() > 0)
        Q_EMIT chosen(chosenContact());
    else if (event->key() == Qt::Key_Delete && chosenContact() > 0)
        Q_EMIT removed(chosenContact());
    else if (isTyping(*event))
        event->ignore();
    else
        QListView::keyPressEvent(event);
}

QLabel* WorkedList::headings(QWidget* page) const {
    struct Heading {
        int column;
        std::string_view text;
    };
    constexpr Heading headings[] = {{1, "LAST CALL WKD "}, {15, "NAME"}, {24, "SKCC#"},
                                    {33, "STATE"},         {39, "FREQ"}, {47, "TIME"},
                                    {54, "DATE"},          {65, "DUPE"}};
    std::string line;
    for (const Heading& heading : headings)
        line = leftAligned(line, heading.column - 1) + std::string(heading.text);
    FormBuilder build(page);
    QLabel* label = build.caption(line.c_str());
    label->setFont(fixedWidthFont());
    label->setIndent(frameWidth() + style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    return label;
}

} // namespace vantrel
