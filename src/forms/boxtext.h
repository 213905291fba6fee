// SPDX-License-Identifier: MIT
// The text of a box of one line as a screen reader asks for it: whole, by words, by characters.
#pragma once

#include <QAccessible>

class QComboBox;
class QLineEdit;

namespace vantrel {

// Where a part of a text is asked for, Qt's own answer is never left: Qt 6.4 looks for the word at
// the end of a text for ever, and a program that stands still in a contest loses contacts.
class BoxText : public QAccessibleTextInterface, public QAccessibleEditableTextInterface {
public:
    // edit: nullptr for a choice that one cannot type into.
    BoxText(QLineEdit* edit, const QComboBox* choice) : m_edit(edit), m_choice(choice) {}

    QString whole() const;
    QString text(int begin, int end) const override { return whole().mid(begin, end - begin); }
    int characterCount() const override { return static_cast<int>(whole().size()); }

    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* begin,
                         int* end) const override;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int* begin,
                             int* end) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int* begin,
                            int* end) const override;

    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    int selectionCount() const override;
    void selection(int index, int* begin, int* end) const override;
    void addSelection(int begin, int end) override { setSelection(0, begin, end); }
    void removeSelection(int index) override;
    void setSelection(int index, int begin, int end) override;
    void scrollToSubstring(int begin, int) override { setCursorPosition(begin); }
    QRect characterRect(int) const override { return {}; }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    QString attributes(int offset, int* begin, int* end) const override;

    void deleteText(int begin, int end) override { replaceText(begin, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    // As typed: what follows the operator's typing follows this too.
    void replaceText(int begin, int end, const QString& text) override;

private:
    struct Part {
        int begin;
        int end;
    };
    // A word reaches to the beginning of the next one; a line is all there is.
    Part partAt(int offset, QAccessible::TextBoundaryType boundary) const;

    QLineEdit* m_edit;
    const QComboBox* m_choice;
};

} // namespace vantrel
