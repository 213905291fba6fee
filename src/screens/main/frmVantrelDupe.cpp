// SPDX-License-Identifier: MIT
#include "screens/main/frmVantrelDupe.h"

#include "forms/colours.h"

#include <QEvent>
#include <QTimer>

namespace vantrel {

namespace {
constexpr int shownMilliseconds = 2000;
} // namespace

frmVantrelDupe::frmVantrelDupe(const FormContext& context)
    : Form(context, "frmVantrelDupe", "Dupe") {
    // A tool tip is the one kind of window that takes no keyboard on every platform.
    setWindowFlags(Qt::ToolTip);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAlarmColours(this);

    FormBuilder build(this);
    m_label = build.alert("Label1");
    put(m_label, "DUPE");
    m_label->setAlignment(Qt::AlignCenter);
    m_label->setFont(enlargedFont(this, 8));
    m_timer = new QTimer(this);
    m_timer->setObjectName(QStringLiteral("Timer1"));
    m_timer->setSingleShot(true);
    m_timer->setInterval(shownMilliseconds);

    page(this, {m_label})->setContentsMargins(60, 30, 60, 30);
    connectHandler(m_timer, &QTimer::timeout, [this] { close(); });
}

void frmVantrelDupe::load() {
    m_timer->start();
    m_label->announce("DUPE");
    if (shared().audioOn)
        platform().sound.playDupeAlarm();
    if (QWidget* below = opener()) {
        adjustSize();
        const QRect page = below->geometry();
        move(page.center().x() - width() / 2, page.bottom() - height() - height() / 2);
        below->installEventFilter(this);
    }
}

// A message box blocks the page: this screen closes, so as not to cover it.
bool frmVantrelDupe::eventFilter(QObject* receiver, QEvent* event) {
    if (receiver == opener() && event->type() == QEvent::WindowBlocked)
        close();
    return Form::eventFilter(receiver, event);
}

} // namespace vantrel
