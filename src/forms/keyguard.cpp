// SPDX-License-Identifier: MIT
#include "forms/keyguard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>

#include <utility>

namespace vantrel {

namespace {

bool isEnter(const QKeyEvent& key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

bool typesWithAlt(const QKeyEvent& key) {
    return key.modifiers().testFlag(Qt::AltModifier) && !key.text().isEmpty() &&
           key.text().front().isPrint();
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

// An X server repeats a held key as a release and a press of the same time. On a busy machine Qt
// reads the two one by one and does not mark them as repeated.
bool KeyGuard::isRepeated(const QKeyEvent& enter) {
    constexpr quint64 soonestRepeat = 100; // milliseconds; keys typed blindly are up again by then
    const quint64 before = std::exchange(m_pressedAt, enter.timestamp());
    m_isHeld = enter.isAutoRepeat() || (enter.timestamp() == m_releasedAt &&
                                        (m_isHeld || m_releasedAt - before >= soonestRepeat));
    return m_isHeld;
}

bool KeyGuard::takesKey(QObject* receiver, const QKeyEvent& key) {
    if ((isEnter(key) && isRepeated(key)) || typesWithAlt(key))
        return true;
    auto* button = qobject_cast<QAbstractButton*>(receiver);
    if (button == nullptr || !isEnter(key))
        return false;
    button->click();
    return true;
}

bool KeyGuard::eventFilter(QObject* receiver, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        // The window object sees each key before the control does: only the control's turn counts.
        return receiver->isWidgetType() && takesKey(receiver, *static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
        if (const auto& key = *static_cast<QKeyEvent*>(event); isEnter(key))
            m_releasedAt = key.timestamp();
        return false;
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
