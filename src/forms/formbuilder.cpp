// SPDX-License-Identifier: MIT
#include "forms/formbuilder.h"

#include "forms/accessible.h"
#include "forms/colours.h"
#include "forms/form.h"
#include "forms/readtable.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFrame>
#include <QKeyEvent>
#include <QShortcutEvent>

#include <algorithm>
#include <utility>

namespace vantrel {

namespace {
QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

// Lookups pad what they fill in to the box's full length, so that no more could be typed: typing
// drops the blanks at the end first, also in a box that holds nothing else.
class TextBox : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (!event->text().isEmpty() && event->text().front().isPrint() && !hasSelectedText())
            dropPadding();
        QLineEdit::keyPressEvent(event);
    }

private:
    void dropPadding() {
        QString kept = text();
        while (kept.endsWith(u' '))
            kept.chop(1);
        const bool inTheWay = kept.isEmpty() || text().size() == maxLength();
        if (kept == text() || !inTheWay)
            return;
        const int cursor = cursorPosition();
        setText(kept);
        setCursorPosition(std::min(cursor, static_cast<int>(kept.size())));
    }
};

// Qt's own Alt key shows the button pressed for a while before it clicks: what is typed meanwhile
// would still go into the contact being logged.
template <typename Base>
class AtOnce : public Base {
public:
    using Base::Base;

protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::Shortcut || static_cast<QShortcutEvent*>(event)->isAmbiguous())
            return Base::event(event);
        if (this->isCheckable())
            this->setFocus();
        this->click();
        return true;
    }
};
using CommandButton = AtOnce<QPushButton>;

// Chosen by a click anywhere in its row, not on its text alone.
class OptionButton : public AtOnce<QRadioButton> {
public:
    using AtOnce::AtOnce;

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
};

// Runs its job on each click; the one run last shows as chosen.
class JobButton : public OptionButton {
public:
    JobButton(const QString& caption, QWidget* form) : OptionButton(caption, form) {
        // In an exclusive group the arrow keys would run every job they pass.
        setAutoExclusive(false);
    }

protected:
    void nextCheckState() override {
        for (QRadioButton* other : window()->findChildren<QRadioButton*>())
            if (!other->autoExclusive())
                other->setChecked(other == this);
    }
};

template <typename Button>
Button* made(QWidget* form, const char* name, const char* caption, const char* toolTip,
             FormBuilder::Handler clicked) {
    auto* button = FormBuilder::named(new Button(text(caption), form), name, toolTip);
    if (clicked)
        QObject::connect(button, &QAbstractButton::clicked, button,
                         [button, clicked = std::move(clicked)] {
                             static_cast<Form*>(button->window())->runHandler(clicked);
                         });
    return button;
}

} // namespace

QLineEdit* FormBuilder::text(const char* name, int width, const char* toolTip) {
    QLineEdit* box = named(new TextBox(m_form), name, toolTip);
    if (width > 0)
        box->setMaxLength(width);
    return box;
}

QLineEdit* FormBuilder::output(const char* name, const char* toolTip) {
    QLineEdit* box = named(new QLineEdit(m_form), name, toolTip);
    box->setReadOnly(true);
    box->setFocusPolicy(Qt::NoFocus);
    box->setFrame(false);
    box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setColour(box, QPalette::Base, noColour);
    return box;
}

QPushButton* FormBuilder::command(const char* name, const char* caption, const char* toolTip,
                                  Handler clicked) {
    return made<CommandButton>(m_form, name, caption, toolTip, std::move(clicked));
}

QPushButton* FormBuilder::exit(const char* toolTip) {
    return command("Command1", "E&XIT", toolTip, [form = m_form->window()] { form->close(); });
}

QLabel* FormBuilder::label(const char* name, const char* caption) {
    QLabel* label = named(new QLabel(m_form), name, "");
    label->setTextFormat(Qt::PlainText);
    label->setText(vantrel::text(caption));
    return label;
}

QLabel* FormBuilder::heading(const char* name, const char* text, double enlargement) {
    QLabel* heading = label(name, text);
    heading->setFont(enlargedFont(m_form, enlargement));
    heading->setAlignment(Qt::AlignCenter);
    return heading;
}

AlertLabel* FormBuilder::alert(const char* name) {
    return named(new AlertLabel(m_form), name);
}

QLabel* FormBuilder::caption(const char* text, QWidget* buddy) {
    QLabel* caption = label("", text);
    if (buddy != nullptr)
        tie(caption, buddy);
    return caption;
}

void FormBuilder::tie(QLabel* caption, QWidget* box) {
    caption->setBuddy(box);
    setTextColour(caption, dimmedColour);
    if (box->accessibleName().isEmpty())
        box->setAccessibleName(caption->text().remove(u'&'));
}

QComboBox* FormBuilder::combo(const char* name, const char* toolTip) {
    QComboBox* combo = named(new QComboBox(m_form), name, toolTip);
    combo->setFocusPolicy(Qt::StrongFocus); // the wheel gives no focus
    announceChoices(combo);
    return combo;
}

QComboBox* FormBuilder::editableCombo(const char* name, const char* toolTip) {
    QComboBox* combo = this->combo(name, toolTip);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr);
    return combo;
}

QRadioButton* FormBuilder::option(const char* name, const char* caption, const char* toolTip,
                                  Handler clicked) {
    return made<OptionButton>(m_form, name, caption, toolTip, std::move(clicked));
}

QRadioButton* FormBuilder::jobOption(const char* name, const char* caption, const char* toolTip,
                                     Handler clicked) {
    return made<JobButton>(m_form, name, caption, toolTip, std::move(clicked));
}

ReadTable* FormBuilder::table(const char* name, const char* words) {
    ReadTable* table = named(new ReadTable(m_form), name);
    table->setAccessibleName(vantrel::text(words));
    return table;
}

LineList* FormBuilder::list(const char* name, const char* toolTip, LineListModel::Words words) {
    auto* list = named(new LineList(m_form, words), name, toolTip);
    list->setFont(fixedWidthFont());
    list->setUniformItemSizes(true);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    return list;
}

void FormBuilder::onChoice(QListView* list, const std::function<void(std::size_t)>& chosen) {
    const auto choose = [list, chosen](const QModelIndex& index) {
        if (index.isValid())
            static_cast<Form*>(list->window())->runHandler([&] {
                chosen(static_cast<std::size_t>(index.row()));
            });
    };
    QObject::connect(list, &QListView::clicked, list, choose);
    QObject::connect(list, &QListView::activated, list, choose);
    QObject::connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, list,
                     [list, choose] {
                         const QModelIndexList rows = list->selectionModel()->selectedIndexes();
                         choose(rows.isEmpty() ? QModelIndex() : rows.front());
                     });
}

// Not QGroupBox: to load the picture of its frame takes longer than the rest of the start page.
QLayout* FormBuilder::section(const char* title, QLayout* content) {
    auto* frame = new QFrame(m_form);
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setLayout(content);
    frame->setAccessibleName(vantrel::text(title));
    return column({bold(caption(title)), {frame, 1}});
}

QFont fixedWidthFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setStyleHint(QFont::Monospace);
    if (!QFontInfo(font).fixedPitch()) // some desktops offer any font as such
        font.setFamily(QStringLiteral("monospace"));
    // The desktop's fixed font does not follow the size set for its other texts.
    font.setPointSizeF(QApplication::font().pointSizeF());
    return font;
}

QFont enlargedFont(const QWidget* widget, double factor, bool bold) {
    QFont font = widget->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    return font;
}

QFont glanceFont(const QWidget* widget, double points, bool bold) {
    constexpr double usual = 9;
    constexpr double growth = 0.6;
    QFont font = widget->font();
    const double text = font.pointSizeF();
    font.setPointSizeF(std::max(text, points + growth * (text - usual)));
    font.setBold(bold);
    return font;
}

QFont familyFont(const QWidget* widget, const char* family) {
    QFont font = widget->font();
    font.setFamily(QString::fromLatin1(family));
    font.setStyleHint(QFont::SansSerif);
    return font;
}

int widthOfColumns(const QFontMetrics& metrics, int columns) {
    return metrics.horizontalAdvance(QString(columns, QLatin1Char('0')));
}

void setColumns(QLineEdit* box, int columns) {
    // A digit is as wide as most capitals; a frame and the cursor need two more.
    box->setFixedWidth(widthOfColumns(QFontMetrics(box->font()), columns + 2));
}

} // namespace vantrel
