// SPDX-License-Identifier: MIT
#include "forms/keyguard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>

namespace vantrel {

namespace {

bool isEnter(const QKeyEvent& key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

bool typesWithAlt(const QKeyEvent& key) {
    return key.modifiers().testFlag(Qt::AltModifier) && !key.text().isEmpty() &&
           key.text().front().isPrint();
}

bool takesKey(QObject* receiver, const QKeyEvent& key) {
    if ((isEnter(key) && key.isAutoRepeat()) || typesWithAlt(key))
        return true;
    auto* button = qobject_cast<QAbstractButton*>(receiver);
    if (button == nullptr || !isEnter(key))
        return false;
    button->click();
    return true;
}

bool isListWithoutFocus(QObject* receiver) {
    for (QObject* object = receiver; object != nullptr; object = object->parent())
        if (const auto* list = qobject_cast<QComboBox*>(object))
            return !list->hasFocus() && !list->isAncestorOf(QApplication::focusWidget());
    return false;
}

} // namespace

KeyGuard::KeyGuard() {
    qApp->installEventFilter(this);
}

bool KeyGuard::eventFilter(QObject* receiver, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        // Only what is on its way to a control: its window sees the key first.
        return receiver->isWidgetType() && takesKey(receiver, *static_cast<QKeyEvent*>(event));
    case QEvent::Wheel:
        if (!isListWithoutFocus(receiver))
            return false;
        event->ignore();
        return true;
    default:
        return false;
    }
}

} // namespace vantrel
