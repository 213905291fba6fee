// SPDX-License-Identifier: MIT
#include "k3y/frmCheckDupeK3Y.h"

#include "forms/colours.h"
#include "forms/formbuilder.h"
#include "platform/platform.h"

#include <QHBoxLayout>
#include <QTimer>
#include <QVBoxLayout>

namespace vantrel {

namespace {
constexpr int timerMilliseconds = 2500;
constexpr double dupeEnlargement = 5;
} // namespace

frmCheckDupeK3Y::frmCheckDupeK3Y(const FormContext& context)
    : Form(context, "frmCheckDupeK3Y", "Dupe") {
    setWindowModality(Qt::ApplicationModal);
    createControls();
    connectHandler(m_logDupeButton, &QPushButton::clicked, this, &frmCheckDupeK3Y::logDupeClicked);
    connect(m_noLogButton, &QPushButton::clicked, this, &QWidget::close);
}

void frmCheckDupeK3Y::createControls() {
    FormBuilder build(this);
    QLabel* verdict = build.label("Label1", "DUPE");
    verdict->setFont(enlargedFont(this, dupeEnlargement));
    verdict->setAlignment(Qt::AlignCenter);
    verdict->setPalette(alarmPalette(palette()));
    verdict->setAutoFillBackground(true);
    QLabel* reason =
        build.label("Label2", "THIS SAME CALL AND SKCC# IS ALREADY IN THE LOG ON THIS BAND");
    reason->setFont(familyFont(this, "Arial Unicode MS"));
    reason->setAlignment(Qt::AlignCenter);
    m_logDupeButton = build.command("Command2", "LOG THE DUPE");
    m_noLogButton = build.command("Command1", "NO LOG");
    for (QPushButton* button : {m_logDupeButton, m_noLogButton})
        button->setFont(familyFont(this, "Arial Rounded MT Bold"));
    // Unlike the other dupe screen's, this timer closes nothing: the operator has to decide.
    m_timer = new QTimer(this);
    m_timer->setObjectName(QStringLiteral("Timer1"));
    m_timer->setInterval(timerMilliseconds);

    auto* page = new QVBoxLayout(this);
    page->addWidget(verdict);
    page->addWidget(reason);
    auto* commands = new QHBoxLayout;
    commands->addWidget(m_logDupeButton);
    commands->addWidget(m_noLogButton);
    page->addLayout(commands);
}

void frmCheckDupeK3Y::load() {
    if (shared().audioOn)
        platform().sound.playDupeAlarm();
    m_timer->start();
}

QWidget* frmCheckDupeK3Y::firstFocus() {
    return m_noLogButton;
}

void frmCheckDupeK3Y::ask(DupeQuestion question) {
    m_question = std::move(question);
    m_logged = false;
}

// When the log cannot be written the box stays: the contact is still the operator's to log.
void frmCheckDupeK3Y::logDupeClicked() {
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
