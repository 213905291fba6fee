// SPDX-License-Identifier: MIT
// On every page: keys and wheel movements that are likely to be accidents change nothing.
#pragma once

#include <QObject>

class QKeyEvent;

namespace vantrel {

// Watches the whole program while it lives.
// - A held Enter counts once: it must not search and then log.
// - Enter presses the focused button, as Space does.
// - Alt with a letter that no button of the page has types nothing.
// - The wheel changes a list only when that has the focus.
class KeyGuard : public QObject {
public:
    KeyGuard();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool takesKey(QObject* receiver, const QKeyEvent& key);
    bool isRepeated(const QKeyEvent& enter);

    // When Enter was pressed and released, in milliseconds of the window system's clock.
    quint64 m_pressedAt = 0;
    quint64 m_releasedAt = 0;
    bool m_isHeld = false;
};

} // namespace vantrel
