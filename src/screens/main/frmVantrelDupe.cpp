// SPDX-License-Identifier: MIT
#include "screens/main/frmVantrelDupe.h"

#include "forms/formbuilder.h"
#include "platform/sound.h"

#include <QTimer>
#include <QVBoxLayout>

namespace vantrel {

namespace {
constexpr int shownMilliseconds = 2000;
} // namespace

frmVantrelDupe::frmVantrelDupe(const FormContext& context)
    : Form(context, "frmVantrelDupe", "Dupe") {
    // A tool tip is the one kind of window that takes no keyboard on every platform.
    setWindowFlags(Qt::ToolTip);
    setAttribute(Qt::WA_ShowWithoutActivating);
    QPalette red(palette());
    red.setColor(QPalette::Window, QColor(0xC0, 0, 0));
    red.setColor(QPalette::WindowText, Qt::white);
    setPalette(red);

    FormBuilder build(this);
    Label1 = build.label("Label1", "DUPE");
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setFont(enlargedFont(this, 8));
    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setSingleShot(true);
    Timer1->setInterval(shownMilliseconds);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(60, 30, 60, 30);
    layout->addWidget(Label1);
    connectHandler(Timer1, &QTimer::timeout, this, &frmVantrelDupe::Timer1_Timer);
}

void frmVantrelDupe::load() {
    Timer1->start();
    if (shared().audioOn)
        platform().sound.playDupeAlarm();
    if (const QWidget* above = opener()) {
        adjustSize();
        move(above->geometry().center() - rect().center());
    }
}

void frmVantrelDupe::bringToFront() {
    raise();
}

// It took no focus, so it gives none back: by now the operator may be typing the next name, or
// be on another page.
void frmVantrelDupe::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
}

void frmVantrelDupe::Timer1_Timer() {
    close();
}

} // namespace vantrel
