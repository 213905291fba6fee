// SPDX-License-Identifier: MIT
// The text of a one-line box as a screen reader asks for it: whole, by words, by characters.
#pragma once

#include <QAccessible>
#include <QLineEdit>

namespace vantrel {

// Replaces Qt's own: the text...Offset() of Qt 6.4.2 never return for a word at the end of a text,
// and a program that stands still in a contest loses contacts.
class AccessibleText : public QAccessibleTextInterface, public QAccessibleEditableTextInterface {
public:
    explicit AccessibleText(QLineEdit& box) : m_box(box) {}

    const QLineEdit& box() const { return m_box; }
    // This as the interface of that type; nullptr for any other type.
    void* cast(QAccessible::InterfaceType type);

    QString text(int begin, int end) const override { return m_box.text().mid(begin, end - begin); }
    int characterCount() const override { return static_cast<int>(m_box.text().size()); }

    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* begin,
                         int* end) const override;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int* begin,
                             int* end) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int* begin,
                            int* end) const override;

    int cursorPosition() const override { return m_box.cursorPosition(); }
    void setCursorPosition(int position) override { m_box.setCursorPosition(position); }
    int selectionCount() const override { return m_box.hasSelectedText() ? 1 : 0; }
    void selection(int index, int* begin, int* end) const override;
    void addSelection(int begin, int end) override { setSelection(0, begin, end); }
    void removeSelection(int) override { m_box.deselect(); }
    void setSelection(int, int begin, int end) override { m_box.setSelection(begin, end - begin); }
    void scrollToSubstring(int begin, int) override { setCursorPosition(begin); }
    QRect characterRect(int) const override { return {}; }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    QString attributes(int offset, int* begin, int* end) const override;

    void deleteText(int begin, int end) override { replaceText(begin, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    // As if typed: whatever follows typing follows this too.
    void replaceText(int begin, int end, const QString& text) override;

private:
    struct Part {
        int begin;
        int end;
    };
    // A word reaches to the beginning of the next one; a line is the whole text.
    Part partAt(int offset, QAccessible::TextBoundaryType boundary) const;

    QLineEdit& m_box;
};

} // namespace vantrel
