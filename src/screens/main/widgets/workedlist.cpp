// SPDX-License-Identifier: MIT
#include "screens/main/widgets/workedlist.h"

#include "base/fixedtext.h"
#include "forms/accessible.h"
#include "forms/colours.h"
#include "forms/formbuilder.h"
#include "log/log.h"
#include "screens/main/widgets/entryboxes.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace vantrel {

namespace {

constexpr int tint = 19; // per cent of the selection's colour in the last row's ground

// Paints the last contact bold on a tint, a duplicate red, one with something missing amber, a K3Y
// tag in the accent colour. Bars are faint, and so is a date that repeats the line above.
class WorkedDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem shown(option);
        initStyleOption(&shown, index);
        const QString text = std::exchange(shown.text, QString());
        const QStyle* style = option.widget->style();
        style->drawControl(QStyle::CE_ItemViewItem, &shown, painter, option.widget);

        const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr) + 1;
        QRect rest = option.rect.adjusted(margin, 0, 0, 0);
        painter->setFont(shown.font);
        const std::vector<QColor> colours = coloursOf(index, shown);
        for (int begin = 0; begin < text.size();) {
            const QColor colour = colours[static_cast<std::size_t>(begin)];
            int end = begin + 1;
            while (end < text.size() && colours[static_cast<std::size_t>(end)] == colour)
                ++end;
            rest.setLeft(option.rect.left() + margin +
                         shown.fontMetrics.horizontalAdvance(text.first(begin)));
            painter->setPen(colour);
            painter->drawText(rest, Qt::AlignVCenter | Qt::TextSingleLine,
                              text.sliced(begin, end - begin));
            begin = end;
        }
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.row() + 1 == index.model()->rowCount()) {
            option->font.setBold(true);
            option->backgroundBrush = mixed(option->palette.color(QPalette::Base),
                                            option->palette.color(QPalette::Highlight), tint);
        }
        const WorkedKind kind = kindOf(fromQt(index.data().toString()));
        if (kind != WorkedKind::complete)
            option->palette.setColor(QPalette::Text, kind == WorkedKind::dupe
                                                         ? warningColour(option->palette)
                                                         : cautionColour(option->palette));
    }

private:
    // The colour of each character.
    static std::vector<QColor> coloursOf(const QModelIndex& index,
                                         const QStyleOptionViewItem& shown) {
        const std::string line = fromQt(index.data().toString());
        if (shown.state.testFlag(QStyle::State_Selected))
            return std::vector<QColor>(line.size(), shown.palette.color(QPalette::HighlightedText));
        const QColor text = shown.palette.color(QPalette::Text);
        const bool plain = shown.backgroundBrush.style() == Qt::NoBrush;
        const QColor ground =
            plain ? shown.palette.color(QPalette::Base) : shown.backgroundBrush.color();
        const QColor faint = faintColour(shown.palette, text, ground);
        std::vector<QColor> colours(line.size(), text);
        for (std::size_t i = 0; i < line.size(); ++i)
            if (line[i] == '|')
                colours[i] = faint;
        const auto colour = [&](Column column, const QColor& with) {
            for (int i = column.first; i <= std::min(column.last(), length(line)); ++i)
                colours[static_cast<std::size_t>(i - 1)] = with;
        };
        const std::string above = fromQt(index.siblingAtRow(index.row() - 1).data().toString());
        if (worked::date.of(above) == worked::date.of(line))
            colour(worked::date, faint);
        if (markerOf(line) != dupeMarker)
            colour(worked::marker, accentColour(shown.palette));
        return colours;
    }
};

} // namespace

WorkedList::WorkedList(QWidget* page) : LineList(page, workedWords) {
    setAccessibleName(QStringLiteral("STATIONS WORKED"));
    setFont(fixedWidthFont());
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideNone);
    setItemDelegate(new WorkedDelegate(this));
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    // The last line is bold, which in a fixed-width font takes no more room.
    const int margins = 2 * frameWidth() + verticalScrollBar()->sizeHint().width() +
                        4 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    setFixedWidth(widthOfColumns(QFontMetrics(font()), worked::columns) + margins);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT chosen(index.row() + 1); });
}

void WorkedList::setLines(const std::vector<std::string>& lines) {
    this->lines()->setLines(lines);
    scrollToBottom();
}

bool WorkedList::takeFocus() {
    if (lines()->rowCount() == 0)
        return false;
    setCurrentIndex(lines()->index(lines()->rowCount() - 1));
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
    constexpr std::pair<int, std::string_view> headings[] = {
        {1, "LAST CALL WKD "}, {15, "NAME"}, {24, "SKCC#"}, {33, "STATE"},
        {39, "FREQ"},          {47, "TIME"}, {54, "DATE"},  {65, "DUPE"}};
    std::string line;
    for (const auto& [column, text] : headings)
        line = leftAligned(line, column - 1) + std::string(text);
    FormBuilder build(page);
    QLabel* label = build.caption(line.c_str());
    label->setFont(fixedWidthFont());
    setTextColour(label, dimmedColour);
    label->setIndent(frameWidth() + style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    return label;
}

} // namespace vantrel
