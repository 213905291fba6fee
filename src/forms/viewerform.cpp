// SPDX-License-Identifier: MIT
#include "forms/viewerform.h"

#include "forms/formbuilder.h"
#include "forms/linelistmodel.h"
#include "platform/qt/latin1.h"

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
    List1 = build.list("List1", "CTRL+F FINDS, CTRL+C COPIES THE SELECTED LINES");
    Text1 = build.text("Text1", 0, "ENTER OR F3 FINDS THE NEXT LINE, ESC ENDS");
    Command1 = build.command("Command1", "E&XIT", "CLOSES THE LIST");
    Label1 = build.label("Label1");
    Label2 = build.label("Label2");
    List1->setSelectionMode(QAbstractItemView::ExtendedSelection);
    List1->setTextElideMode(Qt::ElideNone);
    m_lines = new LineListModel(this);
    List1->setModel(m_lines);
}

void ViewerForm::layOut() {
    FormBuilder build(this);
    m_findRow = new QWidget(this);
    auto* row = new QHBoxLayout(m_findRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(build.caption("FIND", Text1));
    row->addWidget(Text1, 1);
    row->addWidget(Label2);
    m_findRow->hide();

    auto* page = new QVBoxLayout(this);
    page->addWidget(Label1);
    page->addWidget(List1, 1);
    page->addWidget(m_findRow);
    page->addWidget(Command1, 0, Qt::AlignRight);
}

void ViewerForm::connectHandlers() {
    connectHandler(Text1, &QLineEdit::textChanged, this, &ViewerForm::Text1_Change);
    connectHandler(Text1, &QLineEdit::returnPressed, this, &ViewerForm::FindNext);
    connect(Command1, &QPushButton::clicked, this, [this] { close(); });
    const auto onKeys = [this](QKeySequence::StandardKey keys, void (ViewerForm::*handler)()) {
        connectHandler(new QShortcut(keys, this), &QShortcut::activated, this, handler);
    };
    onKeys(QKeySequence::Find, &ViewerForm::Find);
    onKeys(QKeySequence::FindNext, &ViewerForm::FindNext);
    connectHandler(new QShortcut(QKeySequence::Copy, List1, nullptr, nullptr, Qt::WidgetShortcut),
                   &QShortcut::activated, this, &ViewerForm::Copy);
}

QWidget* ViewerForm::firstFocus() {
    return List1;
}

void ViewerForm::showLines(const std::string& path, std::vector<std::string> lines) {
    Label1->setText(toQt(path + "   " + std::to_string(lines.size()) + " LINES"));
    QAbstractItemDelegate* old = List1->itemDelegate();
    List1->setItemDelegate(new LineDelegate(List1, longestOf(lines)));
    old->deleteLater();
    m_lines->setLines(std::move(lines));
    if (m_lines->rowCount() > 0)
        List1->setCurrentIndex(m_lines->index(0));
}

// --- Finding ---------------------------------------------------------------------------------

void ViewerForm::Find() {
    m_findRow->show();
    Text1->setFocus();
    Text1->selectAll();
}

void ViewerForm::Text1_Change() {
    findFrom(std::max(0, List1->currentIndex().row()));
}

void ViewerForm::FindNext() {
    findFrom(List1->currentIndex().row() + 1);
}

// Upper and lower case are the same; behind the last line it goes on at the first.
void ViewerForm::findFrom(int row) {
    Label2->clear();
    if (Text1->text().isEmpty() || m_lines->rowCount() == 0)
        return;
    const QModelIndexList found =
        m_lines->match(m_lines->index(row % m_lines->rowCount()), Qt::DisplayRole, Text1->text(), 1,
                       Qt::MatchContains | Qt::MatchWrap);
    if (found.isEmpty())
        Label2->setText(QStringLiteral("NOT FOUND"));
    else
        List1->setCurrentIndex(found.first());
}

void ViewerForm::endFinding() {
    m_findRow->hide();
    Label2->clear();
    List1->setFocus();
}

void ViewerForm::escapePressed() {
    if (m_findRow->isVisible())
        endFinding();
    else
        close();
}

// --- Copying ---------------------------------------------------------------------------------

void ViewerForm::Copy() {
    QModelIndexList selected = List1->selectionModel()->selectedIndexes();
    std::sort(selected.begin(), selected.end());
    QString text;
    for (const QModelIndex& index : selected)
        text += index.data().toString() + QLatin1Char('\n');
    if (!text.isEmpty())
        QApplication::clipboard()->setText(text);
}

} // namespace vantrel
