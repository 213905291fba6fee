// SPDX-License-Identifier: MIT
#include "forms/accessibletext.h"

#include <QRect>

#include <algorithm>

namespace vantrel {

void* AccessibleText::cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface*>(this);
    return nullptr;
}

QString AccessibleText::textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* begin,
                                     int* end) const {
    const Part part = partAt(offset, boundary);
    *begin = part.begin;
    *end = part.end;
    return text(part.begin, part.end);
}

QString AccessibleText::textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary,
                                         int* begin, int* end) const {
    const int here = partAt(offset, boundary).begin;
    if (here > 0)
        return textAtOffset(here - 1, boundary, begin, end);
    *begin = *end = 0;
    return {};
}

QString AccessibleText::textAfterOffset(int offset, QAccessible::TextBoundaryType boundary,
                                        int* begin, int* end) const {
    const int behind = partAt(offset, boundary).end;
    if (behind < characterCount())
        return textAtOffset(behind, boundary, begin, end);
    *begin = *end = characterCount();
    return {};
}

AccessibleText::Part AccessibleText::partAt(int offset,
                                            QAccessible::TextBoundaryType boundary) const {
    const QString all = m_box.text();
    const int count = characterCount();
    // Two offsets stand for the end and for where the cursor is.
    offset = offset == -1 ? count : offset == -2 ? cursorPosition() : std::clamp(offset, 0, count);
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

void AccessibleText::selection(int, int* begin, int* end) const {
    const bool selected = m_box.hasSelectedText();
    *begin = selected ? m_box.selectionStart() : 0;
    *end = selected ? m_box.selectionEnd() : 0;
}

QString AccessibleText::attributes(int, int* begin, int* end) const {
    *begin = 0;
    *end = characterCount();
    return {};
}

void AccessibleText::replaceText(int begin, int end, const QString& text) {
    if (m_box.isReadOnly())
        return;
    m_box.setSelection(begin, end - begin);
    m_box.insert(text);
}

} // namespace vantrel
