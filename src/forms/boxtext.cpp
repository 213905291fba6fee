// SPDX-License-Identifier: MIT
#include "forms/boxtext.h"

#include <QComboBox>
#include <QLineEdit>
#include <QRect>

#include <algorithm>

namespace vantrel {

QString BoxText::whole() const {
    return m_edit != nullptr ? m_edit->text() : m_choice->currentText();
}

QString BoxText::textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* begin,
                              int* end) const {
    const Part part = partAt(offset, boundary);
    *begin = part.begin;
    *end = part.end;
    return text(part.begin, part.end);
}

QString BoxText::textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int* begin,
                                  int* end) const {
    const int here = partAt(offset, boundary).begin;
    if (here > 0)
        return textAtOffset(here - 1, boundary, begin, end);
    *begin = *end = 0;
    return {};
}

QString BoxText::textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int* begin,
                                 int* end) const {
    const int behind = partAt(offset, boundary).end;
    if (behind < characterCount())
        return textAtOffset(behind, boundary, begin, end);
    *begin = *end = characterCount();
    return {};
}

BoxText::Part BoxText::partAt(int offset, QAccessible::TextBoundaryType boundary) const {
    const QString all = whole();
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

int BoxText::cursorPosition() const {
    return m_edit != nullptr ? m_edit->cursorPosition() : 0;
}

void BoxText::setCursorPosition(int position) {
    if (m_edit != nullptr)
        m_edit->setCursorPosition(position);
}

int BoxText::selectionCount() const {
    return m_edit != nullptr && m_edit->hasSelectedText() ? 1 : 0;
}

void BoxText::selection(int, int* begin, int* end) const {
    const bool selected = selectionCount() > 0;
    *begin = selected ? m_edit->selectionStart() : 0;
    *end = selected ? m_edit->selectionEnd() : 0;
}

void BoxText::removeSelection(int) {
    if (m_edit != nullptr)
        m_edit->deselect();
}

void BoxText::setSelection(int, int begin, int end) {
    if (m_edit != nullptr)
        m_edit->setSelection(begin, end - begin);
}

QString BoxText::attributes(int, int* begin, int* end) const {
    *begin = 0;
    *end = characterCount();
    return {};
}

void BoxText::replaceText(int begin, int end, const QString& text) {
    if (m_edit == nullptr || m_edit->isReadOnly())
        return;
    m_edit->setSelection(begin, end - begin);
    m_edit->insert(text);
}

} // namespace vantrel
