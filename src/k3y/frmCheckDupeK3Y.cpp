// SPDX-License-Identifier: MIT
#include "k3y/frmCheckDupeK3Y.h"

#include "forms/colours.h"

#include <QTimer>

namespace vantrel {

namespace {
constexpr int timerMilliseconds = 2500;
constexpr double dupeEnlargement = 5;
} // namespace

frmCheckDupeK3Y::frmCheckDupeK3Y(const FormContext& context)
    : Form(context, "frmCheckDupeK3Y", "Dupe") {
    setWindowModality(Qt::ApplicationModal);
    FormBuilder build(this);
    QLabel* verdict = build.heading("Label1", "DUPE", dupeEnlargement);
    setAlarmColours(verdict);
    verdict->setAutoFillBackground(true);
    QLabel* reason =
        build.label("Label2", "THIS SAME CALL AND SKCC# IS ALREADY IN THE LOG ON THIS BAND");
    reason->setFont(familyFont(this, "Arial Unicode MS"));
    reason->setAlignment(Qt::AlignCenter);
    QPushButton* logButton = build.command("Command2", "LOG THE DUPE", "", [this] { logDupe(); });
    QPushButton* noLogButton = build.command("Command1", "NO LOG", "", [this] { close(); });
    focusFirst(noLogButton);
    for (QPushButton* button : {logButton, noLogButton})
        button->setFont(familyFont(this, "Arial Rounded MT Bold"));
    // Unlike the other dupe screen's, this timer closes nothing: the operator has to decide.
    auto* timer = new QTimer(this);
    timer->setObjectName(QStringLiteral("Timer1"));
    timer->start(timerMilliseconds);
    page(this, {verdict, reason, row({logButton, noLogButton})});
}

void frmCheckDupeK3Y::load() {
    if (shared().audioOn)
        platform().sound.playDupeAlarm();
}

void frmCheckDupeK3Y::ask(DupeQuestion question) {
    m_question = std::move(question);
    m_logged = false;
}

// When the log cannot be written the box stays: the contact is still the operator's to log.
void frmCheckDupeK3Y::logDupe() {
    m_question.log();
    m_logged = true;
    close();
}

// Leaving without logging is NO LOG, by whichever way: button, Esc or the window's own cross.
void frmCheckDupeK3Y::closeEvent(QCloseEvent* event) {
    if (!m_logged)
        runHandler(m_question.drop);
    Form::closeEvent(event);
}

} // namespace vantrel
