// SPDX-License-Identifier: MIT
#include "forms/accessible.h"

#include "forms/readingorder.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QShortcutEvent>
#include <QTableView>
#include <QTimer>

#include <algorithm>
#include <optional>

namespace vantrel {

namespace {

constexpr const char* roleProperty = "accessibleRole";
constexpr const char* pageProperty = "accessiblePage";

QString withoutMnemonic(QString caption) {
    return caption.remove(QLatin1Char('&'));
}

// A page or a part of one; its children are in reading order.
class AccessibleContainer : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    int childCount() const override { return static_cast<int>(readingOrder(widget()).size()); }
    QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(readingOrder(widget()).value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        auto* const control = qobject_cast<QWidget*>(child->object());
        return static_cast<int>(readingOrder(widget()).indexOf(control));
    }
};

QAccessible::Role roleOf(const QWidget* control, QAccessible::Role usual) {
    const QVariant role = control->property(roleProperty);
    return role.isValid() ? static_cast<QAccessible::Role>(role.toInt()) : usual;
}

// The caption of a label and its text; unseen while the text is empty.
class AccessibleLabel : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    // The role may be set later than the interface is made.
    QAccessible::Role role() const override { return roleOf(widget(), QAccessible::StaticText); }
    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name)
            return QAccessibleWidget::text(kind);
        if (role() == QAccessible::Graphic) // its text is a sign
            return label()->accessibleName();
        const QString caption = label()->accessibleName() + QLatin1Char(' ');
        return (caption + withoutMnemonic(label()->text())).simplified();
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = state.invisible || label()->text().trimmed().isEmpty();
        state.readOnly = true;
        return state;
    }

private:
    const QLabel* label() const { return static_cast<const QLabel*>(widget()); }
};

// A press by the reader comes as an Alt key does, so it is kept while a radio is read.
class AccessibleButton : public QAccessibleWidget {
public:
    explicit AccessibleButton(QAbstractButton* button)
        : QAccessibleWidget(button, button->isCheckable() ? QAccessible::RadioButton
                                                          : QAccessible::Button) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name)
            return withoutMnemonic(button()->text());
        return QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = button()->isCheckable();
        state.checked = button()->isChecked();
        return state;
    }
    QStringList actionNames() const override {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }
    // Posted: the reader must not wait until a message box is answered.
    void doAction(const QString& name) override {
        if (name != pressAction())
            QAccessibleWidget::doAction(name);
        else if (button()->isEnabled() && !isBlocked())
            QCoreApplication::postEvent(button(), new QShortcutEvent({}, 0));
    }
    QStringList keyBindingsForAction(const QString& name) const override {
        if (name != pressAction())
            return {};
        return {QKeySequence::mnemonic(button()->text()).toString()};
    }

private:
    // A message box is to be answered first.
    bool isBlocked() const {
        const QWidget* modal = QApplication::activeModalWidget();
        return modal != nullptr && modal != button()->window();
    }
    QAbstractButton* button() const { return static_cast<QAbstractButton*>(widget()); }
};

// The text of a one-line box: whole, by words, by characters.
// Replaces Qt's own: the text...Offset() of Qt 6.4.2 never return for a word at the end of a text,
// and a program that stands still in a contest loses contacts.
class AccessibleText : public QAccessibleTextInterface, public QAccessibleEditableTextInterface {
public:
    explicit AccessibleText(QLineEdit& box) : m_box(box) {}

    const QLineEdit& box() const { return m_box; }
    // This as the interface of that type; nullptr for any other type.
    void* cast(QAccessible::InterfaceType type) {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface)
            return static_cast<QAccessibleEditableTextInterface*>(this);
        return nullptr;
    }

    QString text(int begin, int end) const override { return m_box.text().mid(begin, end - begin); }
    int characterCount() const override { return static_cast<int>(m_box.text().size()); }

    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* begin,
                         int* end) const override {
        const Part part = partAt(offset, boundary);
        *begin = part.begin;
        *end = part.end;
        return text(part.begin, part.end);
    }

    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int* begin,
                             int* end) const override {
        const int here = partAt(offset, boundary).begin;
        if (here > 0)
            return textAtOffset(here - 1, boundary, begin, end);
        *begin = *end = 0;
        return {};
    }

    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int* begin,
                            int* end) const override {
        const int behind = partAt(offset, boundary).end;
        if (behind < characterCount())
            return textAtOffset(behind, boundary, begin, end);
        *begin = *end = characterCount();
        return {};
    }

    int cursorPosition() const override { return m_box.cursorPosition(); }
    void setCursorPosition(int position) override { m_box.setCursorPosition(position); }
    int selectionCount() const override { return m_box.hasSelectedText() ? 1 : 0; }
    void selection(int, int* begin, int* end) const override {
        const bool selected = m_box.hasSelectedText();
        *begin = selected ? m_box.selectionStart() : 0;
        *end = selected ? m_box.selectionEnd() : 0;
    }

    void addSelection(int begin, int end) override { setSelection(0, begin, end); }
    void removeSelection(int) override { m_box.deselect(); }
    void setSelection(int, int begin, int end) override { m_box.setSelection(begin, end - begin); }
    void scrollToSubstring(int begin, int) override { setCursorPosition(begin); }
    QRect characterRect(int) const override { return {}; }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    QString attributes(int, int* begin, int* end) const override {
        *begin = 0;
        *end = characterCount();
        return {};
    }

    void deleteText(int begin, int end) override { replaceText(begin, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    // As if typed: whatever follows typing follows this too.
    void replaceText(int begin, int end, const QString& text) override {
        if (m_box.isReadOnly())
            return;
        m_box.setSelection(begin, end - begin);
        m_box.insert(text);
    }

private:
    struct Part {
        int begin;
        int end;
    };
    // A word reaches to the beginning of the next one; a line is the whole text.
    Part partAt(int offset, QAccessible::TextBoundaryType boundary) const {
        const QString all = m_box.text();
        const int count = characterCount();
        // Two offsets stand for the end and for where the cursor is.
        offset = offset == -1   ? count
                 : offset == -2 ? cursorPosition()
                                : std::clamp(offset, 0, count);
        if (boundary == QAccessible::CharBoundary)
            return {offset, std::min(offset + 1, count)};
        if (boundary != QAccessible::WordBoundary || count == 0)
            return {0, count};
        const auto beginsWord = [&all](int at) {
            return at == 0 || (!all[at].isSpace() && all[at - 1].isSpace());
        };
        int begin = std::min(offset, count - 1);
        while (!beginsWord(begin))
            --begin;
        int end = begin + 1;
        while (end < count && !beginsWord(end))
            ++end;
        return {begin, end};
    }

    QLineEdit& m_box;
};

class AccessibleLineEdit : public QAccessibleWidget {
public:
    explicit AccessibleLineEdit(QLineEdit* edit)
        : QAccessibleWidget(edit, QAccessible::EditableText), m_text(*edit) {}

    int childCount() const override { return 0; } // none to be read
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value)
            return m_text.box().text();
        const auto* choice = qobject_cast<QComboBox*>(widget()->parentWidget());
        if (kind == QAccessible::Name && choice != nullptr)
            return choice->accessibleName();
        return QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = static_cast<const QLineEdit*>(widget())->isReadOnly();
        state.editable = !state.readOnly;
        state.selectableText = true;
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        void* text = m_text.cast(type);
        return text != nullptr ? text : QAccessibleWidget::interface_cast(type);
    }

private:
    AccessibleText m_text;
};

// Named by its caption; what is chosen or typed is its value.
class AccessibleCombo : public QAccessibleWidget {
public:
    explicit AccessibleCombo(QComboBox* box) : QAccessibleWidget(box, QAccessible::ComboBox) {
        if (box->isEditable())
            m_text.emplace(*box->lineEdit());
    }

    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(box()->view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child->object() == box()->view() ? 0 : -1;
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? box()->currentText() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = box()->view()->isVisible();
        state.editable = box()->isEditable();
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        void* text = m_text ? m_text->cast(type) : nullptr;
        return text != nullptr ? text : QAccessibleWidget::interface_cast(type);
    }
    QStringList actionNames() const override {
        return QStringList(showMenuAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name != showMenuAction())
            return QAccessibleWidget::doAction(name);
        if (box()->isEnabled())
            QTimer::singleShot(0, box(), &QComboBox::showPopup);
    }

private:
    QComboBox* box() const { return static_cast<QComboBox*>(widget()); }

    std::optional<AccessibleText> m_text; // of one that can be typed into
};

void announceRow(QAbstractItemView* list, int row) {
    QAccessibleEvent focus(list, QAccessible::Focus);
    focus.setChild(row);
    QAccessible::updateAccessibility(&focus);
}

// nullptr: Qt's own description will do.
QAccessibleInterface* describe(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr || !widget->window()->property(pageProperty).isValid())
        return nullptr;
    if (auto* box = qobject_cast<QComboBox*>(widget))
        return new AccessibleCombo(box);
    if (auto* edit = qobject_cast<QLineEdit*>(widget))
        return new AccessibleLineEdit(edit);
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
        return new AccessibleButton(button);
    if (qobject_cast<QLabel*>(widget) != nullptr)
        return new AccessibleLabel(widget);
    if (widget->isWindow())
        return new AccessibleContainer(
            widget, widget->windowType() == Qt::Dialog ? QAccessible::Dialog : QAccessible::Window);
    if (widget->layout() != nullptr)
        return new AccessibleContainer(widget, QAccessible::Grouping);
    const QAccessible::Role role = roleOf(widget, QAccessible::NoRole);
    return role == QAccessible::NoRole ? nullptr : new QAccessibleWidget(widget, role);
}

} // namespace

void describeControls() {
    QAccessible::installFactory(describe);
}

void describePage(QWidget* page) {
    page->setProperty(pageProperty, true);
}

void setRole(QWidget* control, QAccessible::Role role) {
    control->setProperty(roleProperty, static_cast<int>(role));
}

void letReaderReach(QWidget* page) {
    if (!QAccessible::isActive())
        return;
    for (QLineEdit* box : page->findChildren<QLineEdit*>())
        if (box->focusPolicy() == Qt::NoFocus)
            box->setFocusPolicy(Qt::TabFocus);
    for (QTableView* table : page->findChildren<QTableView*>()) {
        table->setFocusPolicy(Qt::TabFocus);
        table->setTabKeyNavigation(false); // Tab leads out of it, arrows through it
    }
}

void announceChoices(QComboBox* box) {
    QObject::connect(box, &QComboBox::currentTextChanged, box, [box](const QString& text) {
        if (!box->hasFocus())
            return;
        if (!box->isEditable())
            return announceRow(box->view(), box->currentIndex());
        QAccessibleTextInsertEvent chosen(box, 0, text);
        QAccessible::updateAccessibility(&chosen);
    });
}

void announceCurrentRow(QListView* list) {
    if (list->currentIndex().isValid())
        announceRow(list, list->currentIndex().row());
}

} // namespace vantrel
