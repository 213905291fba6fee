// SPDX-License-Identifier: MIT
#include "forms/viewerform.h"

#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "forms/linelistmodel.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>

namespace vantrel {

namespace {

// Gives every line the width of the longest: the list asks for one line's size only and takes
// it for all, so that it opens at once however many there are.
class LineDelegate : public QStyledItemDelegate {
public:
    LineDelegate(QObject* parent, std::size_t columns)
        : QStyledItemDelegate(parent), m_columns(columns) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const int text =
            option.fontMetrics.horizontalAdvance(QLatin1Char('0')) * static_cast<int>(m_columns);
        const int margins = option.fontMetrics.averageCharWidth() * 2;
        return {text + margins, QStyledItemDelegate::sizeHint(option, index).height()};
    }

private:
    std::size_t m_columns;
};

std::size_t longestOf(const std::vector<std::string>& lines) {
    std::size_t longest = 0;
    for (const std::string& line : lines)
        longest = std::max(longest, line.size());
    return longest;
}

} // namespace

ViewerForm::ViewerForm(const FormContext& context, const char* name, const char* caption)
    : Form(context, name, caption) {
    createControls();
    layOut();
    connectHandlers();
    openAtPageSize();
}

void ViewerForm::createControls() {
    FormBuilder build(this);
    m_list = build.list("List1", "CTRL+F FINDS, CTRL+C COPIES THE SELECTED LINES");
    m_findBox = build.text("Text1", 0, "ENTER OR F3 FINDS THE NEXT LINE, ESC ENDS");
    m_exitButton = build.command("Command1", "E&XIT", "CLOSES THE LIST");
    m_pathLabel = build.label("Label1");
    m_foundLabel = build.label("Label2");
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setTextElideMode(Qt::ElideNone);
    m_lines = new LineListModel(this);
    m_list->setModel(m_lines);
}

void ViewerForm::layOut() {
    FormBuilder build(this);
    m_findRow = new QWidget(this);
    auto* row = new QHBoxLayout(m_findRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(build.caption("FIND", m_findBox));
    row->addWidget(m_findBox, 1);
    row->addWidget(m_foundLabel);
    m_findRow->hide();

    auto* page = new QVBoxLayout(this);
    page->addWidget(m_pathLabel);
    page->addWidget(m_list, 1);
    page->addWidget(m_findRow);
    page->addWidget(m_exitButton, 0, Qt::AlignRight);
}

void ViewerForm::connectHandlers() {
    connectHandler(m_findBox, &QLineEdit::textChanged, this, &ViewerForm::findTyped);
    connectHandler(m_findBox, &QLineEdit::returnPressed, this, &ViewerForm::findNext);
    connect(m_exitButton, &QPushButton::clicked, this, [this] { close(); });
    const auto onKeys = [this](QKeySequence::StandardKey keys, void (ViewerForm::*handler)()) {
        connectHandler(new QShortcut(keys, this), &QShortcut::activated, this, handler);
    };
    onKeys(QKeySequence::Find, &ViewerForm::openFind);
    onKeys(QKeySequence::FindNext, &ViewerForm::findNext);
    connectHandler(new QShortcut(QKeySequence::Copy, m_list, nullptr, nullptr, Qt::WidgetShortcut),
                   &QShortcut::activated, this, &ViewerForm::copySelected);
}

QWidget* ViewerForm::firstFocus() {
    return m_list;
}

void ViewerForm::showLines(const std::string& path, std::vector<std::string> lines) {
    put(m_pathLabel, path + "   " + std::to_string(lines.size()) + " LINES");
    QAbstractItemDelegate* old = m_list->itemDelegate();
    m_list->setItemDelegate(new LineDelegate(m_list, longestOf(lines)));
    old->deleteLater();
    m_lines->setLines(std::move(lines));
    if (m_lines->rowCount() > 0)
        m_list->setCurrentIndex(m_lines->index(0));
}

// --- Finding ---------------------------------------------------------------------------------

void ViewerForm::openFind() {
    m_findRow->show();
    m_findBox->setFocus();
    m_findBox->selectAll();
}

void ViewerForm::findTyped() {
    findFrom(std::max(0, m_list->currentIndex().row()));
}

void ViewerForm::findNext() {
    findFrom(m_list->currentIndex().row() + 1);
}

// Upper and lower case are the same; behind the last line it goes on at the first.
void ViewerForm::findFrom(int row) {
    m_foundLabel->clear();
    if (m_findBox->text().isEmpty() || m_lines->rowCount() == 0)
        return;
    const QModelIndexList found =
        m_lines->match(m_lines->index(row % m_lines->rowCount()), Qt::DisplayRole,
                       m_findBox->text(), 1, Qt::MatchContains | Qt::MatchWrap);
    if (found.isEmpty())
        put(m_foundLabel, "NOT FOUND");
    else
        m_list->setCurrentIndex(found.first());
}

void ViewerForm::endFinding() {
    m_findRow->hide();
    m_foundLabel->clear();
    m_list->setFocus();
}

void ViewerForm::escapePressed() {
    if (m_findRow->isVisible())
        endFinding();
    else
        close();
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
