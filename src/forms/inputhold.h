// SPDX-License-Identifier: MIT
// Keeps what the operator types and clicks while a handler waits for the radio, and hands it
// on in order once the handler has ended. Nothing he does meanwhile is lost, nothing of it
// happens in the middle of the handler.
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>

#include <deque>
#include <functional>
#include <memory>

class QWidget;

namespace vantrel {

// One per window that has such handlers; each of them runs inside a Scope.
class InputHold : public QObject {
public:
    // giveUp: ends the wait at once (closes the port); called when `window` or the program is
    // closed inside a scope. It is then closed when the handler has ended.
    InputHold(QWidget* window, std::function<void()> giveUp);

    // Input is kept from here to the end of the scope. What is typed while a message box is
    // up belongs to the box and is not kept.
    class Scope {
    public:
        explicit Scope(InputHold& hold) : m_hold(hold) { m_hold.begin(); }
        ~Scope() { m_hold.end(); }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        InputHold& m_hold;
    };

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    enum class Closing { no, window, program };

    struct HeldEvent {
        QPointer<QObject> receiver;
        std::unique_ptr<QEvent> event;
        bool toFocus; // a key: delivered to the control that has the focus by then
    };

    void begin();
    void end();
    bool holdsInput(const QEvent& event) const;
    bool holdsClosing(QObject* receiver, QEvent* event);
    void scheduleDelivery();
    void deliver();
    void deliverNext();
    void finishClosing();

    QWidget* m_window;
    std::function<void()> m_giveUp;
    std::deque<HeldEvent> m_held;
    QPointer<QWidget> m_focusBeforeClick;
    int m_scopes = 0;
    bool m_delivering = false;
    Closing m_closing = Closing::no;
};

} // namespace vantrel
