// SPDX-License-Identifier: MIT
#include "forms/alertlabel.h"

#include "forms/accessible.h"
#include "platform/qt/latin1.h"
#include "platform/qt/qtdevices.h"

#include <QTimer>

namespace vantrel {

// Orca speaks notifications only, other readers alerts only, and a notification whenever it is
// shown. So the alert holds a hidden notification, and a timer shows that.
AlertLabel::AlertLabel(QWidget* parent)
    : QLabel(parent), m_notification(new QLabel(this)), m_timer(new QTimer(this)) {
    setTextFormat(Qt::PlainText);
    setRole(this, QAccessible::AlertMessage);
    setRole(m_notification, QAccessible::Notification);
    m_notification->setFixedSize(0, 0);
    m_notification->setTextFormat(Qt::PlainText);
    m_notification->hide();
    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, [this] { notifyReader(this, m_notification); });
}

void AlertLabel::announce(std::string_view text, std::string_view words) {
    // A page that opens has so much announced at once that readers drop some of it.
    constexpr int opening = 500; // milliseconds
    put(this, text);
    m_notification->hide();
    put(m_notification, words);
    m_timer->stop();
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    if (!text.empty())
        QAccessible::updateAccessibility(&shown);
    if (!words.empty())
        m_timer->start(window()->isVisible() ? 0 : opening);
}

} // namespace vantrel
