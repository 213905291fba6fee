// SPDX-License-Identifier: MIT
// A label that a screen reader speaks at once, because the operator waits for what it says.
#pragma once

#include <QLabel>

#include <string_view>

class QTimer;

namespace vantrel {

class AlertLabel : public QLabel {
public:
    explicit AlertLabel(QWidget* parent);

    // Shows the text. When the present event is over a screen reader speaks the words (nothing
    // when they are empty); of several announcements only the last one.
    void announce(std::string_view text, std::string_view words);
    void announce(std::string_view text) { announce(text, text); }

private:
    QLabel* m_notification;
    QTimer* m_timer;
};

} // namespace vantrel
