// SPDX-License-Identifier: MIT
#include "screens/main/frmMainKeys.h"

#include "base/fixedtext.h"
#include "forms/accessible.h"
#include "forms/controltext.h"
#include "screens/main/frmMainControls.h"
#include "screens/main/frmSuggestionList.h"
#include "screens/main/frmWhoIsIt.h"
#include "screens/main/frmWorkedList.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>

#include <utility>

namespace vantrel {

namespace {

// A letter or figure that the control has no use for.
bool isTyping(const QWidget& widget, const QKeyEvent& key) {
    const bool modified = (key.modifiers() & ~Qt::KeypadModifier & ~Qt::ShiftModifier) != 0;
    const bool printable = key.text().size() == 1 && key.text().front().isPrint();
    const auto* box = qobject_cast<const QLineEdit*>(&widget);
    return printable && !modified && key.key() != Qt::Key_Space &&
           (qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
            qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
            (box != nullptr && box->isReadOnly()));
}

} // namespace

MainKeys::MainKeys(QWidget* page, MainControls& controls, Actions actions)
    : m_page(page), m_controls(controls), m_actions(std::move(actions)) {
    qApp->installEventFilter(this);
}

bool MainKeys::eventFilter(QObject* receiver, QEvent* event) {
    auto* widget = qobject_cast<QWidget*>(receiver);
    // What a box has no use for goes on to the page: it was seen at the box.
    if (event->type() != QEvent::KeyPress || widget == nullptr || widget->window() != m_page ||
        widget->focusPolicy() == Qt::NoFocus)
        return false;
    m_actions.anyKey();
    if (isTyping(*widget, *static_cast<QKeyEvent*>(event))) {
        m_controls.boxes.call->setFocus();
        QCoreApplication::sendEvent(m_controls.boxes.call, event);
        return true;
    }
    return takes(*widget, *static_cast<QKeyEvent*>(event));
}

bool MainKeys::takes(QWidget& widget, const QKeyEvent& key) {
    if (&widget == m_controls.boxes.call)
        return callBoxTakes(key);
    return &widget == m_controls.workedList && workedListTakes(key);
}

bool MainKeys::callBoxTakes(const QKeyEvent& key) {
    const bool empty = m_controls.boxes.call->text().isEmpty();
    if (key.matches(QKeySequence::Undo) && empty) {
        m_actions.bringBack();
        return true;
    }
    if (key.modifiers().testFlag(Qt::AltModifier))
        return false;
    switch (key.key()) {
    case Qt::Key_Down:
        return m_controls.whoIsIt->suggestions()->takeFocus();
    case Qt::Key_Up:
        return empty && toLastContact();
    case Qt::Key_Space:
        return m_actions.nameIsMissing() && toFirstEmptyBox();
    default:
        return false;
    }
}

bool MainKeys::toLastContact() const {
    const QAbstractItemModel* lines = m_controls.workedList->model();
    if (lines->rowCount() == 0)
        return false;
    m_controls.workedList->setCurrentIndex(lines->index(lines->rowCount() - 1, 0));
    m_controls.workedList->setFocus();
    tellCurrent(m_controls.workedList);
    return true;
}

// What a search did not find is typed next.
bool MainKeys::toFirstEmptyBox() const {
    const EntryBoxes& boxes = m_controls.boxes;
    for (QLineEdit* box : {boxes.name, boxes.state, boxes.number}) {
        if (!trim(textOf(box)).empty())
            continue;
        box->setFocus(Qt::TabFocusReason);
        break;
    }
    return true;
}

bool MainKeys::workedListTakes(const QKeyEvent& key) const {
    const int contact = m_controls.workedList->currentIndex().row() + 1; // 0: none
    switch (key.key()) {
    case Qt::Key_Escape:
        m_actions.toCallBox();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (contact > 0)
            m_actions.correct(contact);
        return contact > 0;
    case Qt::Key_Delete:
        if (contact > 0)
            m_actions.remove(contact);
        return contact > 0;
    default:
        return false;
    }
}

} // namespace vantrel
