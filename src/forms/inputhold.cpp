// SPDX-License-Identifier: MIT
#include "forms/inputhold.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace vantrel {

namespace {

bool isKey(const QEvent& event) {
    return event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease ||
           event.type() == QEvent::InputMethod;
}

// ShortcutOverride is let through: it only asks who wants the key. The key press or the shortcut
// that follows it is kept.
bool isInput(const QEvent& event) {
    switch (event.type()) {
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
        return true;
    case QEvent::MouseMove: // a drag; hovering does nothing
        return static_cast<const QMouseEvent&>(event).buttons() != Qt::NoButton;
    default:
        return isKey(event);
    }
}

} // namespace

InputHold::InputHold(QWidget* window, std::function<void()> giveUp)
    : QObject(window), m_window(window), m_giveUp(std::move(giveUp)) {}

void InputHold::begin() {
    if (m_scopes++ == 0)
        qApp->installEventFilter(this);
}

void InputHold::end() {
    if (--m_scopes > 0)
        return;
    if (m_held.empty() && m_closing == Closing::no && !m_delivering)
        qApp->removeEventFilter(this);
    else
        scheduleDelivery();
}

bool InputHold::eventFilter(QObject* receiver, QEvent* event) {
    if (receiver == m_window && event->type() == QEvent::WindowUnblocked)
        scheduleDelivery(); // it waited for a message box
    if (holdsClosing(receiver, event))
        return true;
    if (event->type() == QEvent::FocusOut && m_scopes > 0 && receiver->isWidgetType() &&
        static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason)
        m_focusBeforeClick = static_cast<QWidget*>(receiver);
    if (!holdsInput(*event))
        return false;
    const bool toFocus = isKey(*event) && receiver == QApplication::focusWidget();
    m_held.push_back({receiver, std::unique_ptr<QEvent>(event->clone()), toFocus});
    event->accept();
    // A click moves the focus before this filter sees it. The focus goes back, so that the keys
    // kept before the click reach the control they were typed for.
    if (m_focusBeforeClick != nullptr)
        std::exchange(m_focusBeforeClick, nullptr)->setFocus();
    return true;
}

bool InputHold::holdsInput(const QEvent& event) const {
    if (!isInput(event) || QApplication::activeModalWidget() != nullptr)
        return false;
    // While kept events are delivered, these pass; what the operator types meanwhile (it comes
    // from the system, so it is spontaneous) is queued behind them.
    return m_scopes > 0 || !m_delivering || event.spontaneous();
}

// The window must not go while one of its handlers is still running.
bool InputHold::holdsClosing(QObject* receiver, QEvent* event) {
    const bool window = receiver == m_window && event->type() == QEvent::Close;
    const bool program = receiver == qApp && event->type() == QEvent::Quit;
    if (m_scopes == 0 || (!window && !program))
        return false;
    m_closing = program ? Closing::program : std::max(m_closing, Closing::window);
    event->ignore();
    m_giveUp();
    return true;
}

void InputHold::scheduleDelivery() {
    QMetaObject::invokeMethod(this, &InputHold::deliver, Qt::QueuedConnection);
}

void InputHold::deliver() {
    if (m_delivering || m_scopes > 0)
        return; // called again when the handler under way has ended
    const QPointer<InputHold> self(this);
    m_delivering = true;
    while (m_closing == Closing::no && !m_held.empty() &&
           QApplication::activeModalWidget() == nullptr) {
        deliverNext();
        if (!self)
            return;
        if (!m_window->isVisible())
            m_held.clear(); // typed for a page that has been left
    }
    m_delivering = false;
    if (m_closing != Closing::no)
        finishClosing();
    else if (m_held.empty())
        qApp->removeEventFilter(this);
}

void InputHold::deliverNext() {
    const HeldEvent next = std::move(m_held.front());
    m_held.pop_front();
    QObject* receiver = next.receiver;
    if (auto* const button = qobject_cast<QAbstractButton*>(receiver);
        button != nullptr && next.event->type() == QEvent::Shortcut)
        return button->click(); // the shortcut event itself would click only after the next key
    if (auto* const control = qobject_cast<QWidget*>(receiver); next.toFocus && control != nullptr)
        receiver = control->window()->focusWidget();
    if (receiver != nullptr)
        QApplication::sendEvent(receiver, next.event.get());
}

// What was typed before closing is dropped: the handler it would have followed was given up.
void InputHold::finishClosing() {
    m_held.clear();
    qApp->removeEventFilter(this);
    if (std::exchange(m_closing, Closing::no) == Closing::program)
        QCoreApplication::quit();
    else
        m_window->close();
}

} // namespace vantrel
