// SPDX-License-Identifier: MIT
#include "forms/viewerform.h"

#include <QApplication>
#include <QClipboard>
#include <QShortcut>
#include <QStyledItemDelegate>

#include <algorithm>

namespace vantrel {

namespace {

constexpr int fewestRows = 8;
constexpr int mostRows = 24;
constexpr int mostDigits = 14; // "12000 OF 12000"

// Gives every line the width of the longest. The list opens at once because its items are of one
// size: it asks for the size of a single line.
class LineDelegate : public QStyledItemDelegate {
public:
    LineDelegate(QObject* parent, int columns) : QStyledItemDelegate(parent), m_columns(columns) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const int text = widthOfColumns(option.fontMetrics, m_columns);
        const int margins = option.fontMetrics.averageCharWidth() * 2;
        return {text + margins, QStyledItemDelegate::sizeHint(option, index).height()};
    }

private:
    int m_columns;
};

// Without the blanks that pad a line.
int longestOf(const std::vector<std::string>& lines) {
    int longest = 0;
    for (const std::string& line : lines)
        longest = std::max(longest, length(trimRight(line)));
    return longest;
}

// Upper and lower case are the same.
std::vector<int> rowsWith(const std::vector<std::string>& lines, std::string_view text) {
    const std::string wanted = upper(text);
    std::vector<int> rows;
    for (std::size_t row = 0; row < lines.size(); ++row)
        if (wanted.empty() || upper(lines[row]).find(wanted) != std::string::npos)
            rows.push_back(static_cast<int>(row));
    return rows;
}

} // namespace

ViewerForm::ViewerForm(const FormContext& context, const char* name, const char* caption)
    : Form(context, name, caption) {
    FormBuilder build(this);
    m_list = focusFirst(build.list("List1", "CTRL+F FINDS, CTRL+C COPIES THE SELECTED LINES"));
    m_list->setAccessibleName(QStringLiteral("LINES"));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setTextElideMode(Qt::ElideNone);
    m_headingLabel = build.label("Label3");
    m_headingLabel->setFont(fixedWidthFont());
    m_headingLabel->hide();
    m_findBox =
        build.text("Text1", 0, "ENTER OR F3 FINDS THE NEXT LINE, ESC GOES BACK TO THE LIST");
    m_foundLabel = build.alert("Label2");
    m_foundLabel->setMinimumWidth(fontMetrics().averageCharWidth() * mostDigits);
    page(this, {m_pathLabel = build.label("Label1"),
                m_headingLabel,
                {m_list, 1},
                row({build.caption("FIND", m_findBox),
                     {m_findBox, 1},
                     m_foundLabel,
                     Item::gap(fontMetrics().height()),
                     build.exit("CLOSES THE LIST")})});

    connectHandler(m_findBox, &QLineEdit::textChanged, [this] { findTyped(); });
    connectHandler(m_findBox, &QLineEdit::returnPressed, [this] { findNext(); });
    connectHandler(m_list->selectionModel(), &QItemSelectionModel::currentChanged,
                   [this] { showPlace(); });
    const auto onKeys = [this](QShortcut* keys, void (ViewerForm::*handler)()) {
        connectHandler(keys, &QShortcut::activated, [this, handler] { (this->*handler)(); });
    };
    onKeys(new QShortcut(QKeySequence::Find, this), &ViewerForm::openFind);
    onKeys(new QShortcut(QKeySequence::FindNext, this), &ViewerForm::findNext);
    onKeys(new QShortcut(QKeySequence::Copy, m_list, nullptr, nullptr, Qt::WidgetShortcut),
           &ViewerForm::copySelected);
}

void ViewerForm::setHeading(std::string_view heading) {
    // Over the text of the lines, which begins behind the list's frame and the line's margin.
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_list) + 1;
    m_headingLabel->setContentsMargins(m_list->frameWidth() + margin, 0, 0, 0);
    put(m_headingLabel, heading);
    m_headingLabel->show();
}

void ViewerForm::showLines(const std::string& path, std::vector<std::string> lines,
                           std::size_t current) {
    put(m_pathLabel, path + "   " + std::to_string(lines.size()) + " LINES");
    m_columns = longestOf(lines);
    QAbstractItemDelegate* old = m_list->itemDelegate();
    m_list->setItemDelegate(new LineDelegate(m_list, m_columns));
    old->deleteLater();
    m_list->lines()->setLines(std::move(lines));
    m_found = rowsWith(m_list->lines()->lines(), textOf(m_findBox));
    m_list->setCurrentIndex(m_list->lines()->index(static_cast<int>(current)));
    showPlace();
    updateGeometry();
}

// Qt's own hint for a list does not depend on its lines.
QSize ViewerForm::sizeHint() const {
    return Form::sizeHint() - m_list->sizeHint() +
           listSize().expandedTo({m_list->sizeHint().width(), 0});
}

QSize ViewerForm::listSize() const {
    const int columnWidth = m_list->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, m_list);
    const int frame = 2 * m_list->frameWidth();
    const int rows = std::clamp(m_list->lines()->rowCount(), fewestRows, mostRows);
    const int margins = columnWidth * 2;
    return {columnWidth * m_columns + margins + scrollBar + frame,
            m_list->fontMetrics().height() * (rows + 1) + scrollBar + frame};
}

// --- Finding ---------------------------------------------------------------------------------

void ViewerForm::openFind() {
    m_findBox->setFocus();
    m_findBox->selectAll();
}

void ViewerForm::findTyped() {
    m_found = rowsWith(m_list->lines()->lines(), textOf(m_findBox));
    goToFound(m_list->currentIndex().row());
}

// Goes to the first match from that row on; from the last one on to the first.
void ViewerForm::goToFound(int row) {
    if (!m_findBox->text().isEmpty() && !m_found.empty()) {
        const auto next = std::ranges::lower_bound(m_found, row);
        m_list->setCurrentIndex(
            m_list->lines()->index(next == m_found.end() ? m_found.front() : *next));
    }
    showPlace();
}

// "12 OF 145": the current line's place among the lines found, or among all. A screen reader speaks
// it with the line while the operator types in FIND; in the list Qt announces the line itself.
void ViewerForm::showPlace() {
    const QModelIndex line = m_list->currentIndex();
    const auto place = std::ranges::lower_bound(m_found, line.row());
    std::string text = std::to_string(m_found.size()) + " FOUND";
    if (m_found.empty())
        text = m_findBox->text().isEmpty() ? "" : "NOT FOUND";
    else if (place != m_found.end() && *place == line.row())
        text =
            std::to_string(place - m_found.begin() + 1) + " OF " + std::to_string(m_found.size());
    const bool typing = m_findBox->hasFocus() && !text.empty();
    const std::string words = fromQt(line.data(Qt::AccessibleTextRole).toString());
    m_foundLabel->announce(text, typing ? text + ". " + words : "");
}

void ViewerForm::escapePressed() {
    if (!m_findBox->hasFocus()) {
        close();
        return;
    }
    m_findBox->clear();
    m_list->setFocus();
}

// --- Copying ---------------------------------------------------------------------------------

void ViewerForm::copySelected() {
    QModelIndexList selected = m_list->selectionModel()->selectedIndexes();
    std::sort(selected.begin(), selected.end());
    QString text;
    for (const QModelIndex& index : selected)
        text += index.data().toString() + QLatin1Char('\n');
    if (!text.isEmpty())
        QApplication::clipboard()->setText(text);
}

} // namespace vantrel
