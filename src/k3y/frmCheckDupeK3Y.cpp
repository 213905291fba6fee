// SPDX-License-Identifier: MIT
#include "k3y/frmCheckDupeK3Y.h"

#include "forms/formbuilder.h"
#include "platform/sound.h"
#include "screens/main/qsoentry.h"

#include <QHBoxLayout>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

namespace vantrel {

namespace {
constexpr int timerMilliseconds = 2500;
constexpr double dupeEnlargement = 5;
} // namespace

frmCheckDupeK3Y::frmCheckDupeK3Y(const FormContext& context)
    : Form(context, "frmCheckDupeK3Y", "Dupe") {
    setWindowFlags(Qt::Dialog); // the one kind of window that is kept above another
    setWindowModality(Qt::ApplicationModal);
    createControls();
    connectHandler(Command2, &QPushButton::clicked, this, &frmCheckDupeK3Y::Command2_Click);
    connectHandler(Command1, &QPushButton::clicked, this, &frmCheckDupeK3Y::Command1_Click);
}

void frmCheckDupeK3Y::createControls() {
    FormBuilder build(this);
    Label1 = build.label("Label1", "DUPE");
    Label1->setFont(enlargedFont(this, dupeEnlargement));
    Label1->setAlignment(Qt::AlignCenter);
    QPalette red(Label1->palette());
    red.setColor(QPalette::Window, QColor(0xC0, 0, 0));
    red.setColor(QPalette::WindowText, Qt::white);
    Label1->setPalette(red);
    Label1->setAutoFillBackground(true);
    Label2 = build.label("Label2", "THIS SAME CALL AND SKCC# IS ALREADY IN THE LOG ON THIS BAND");
    Label2->setFont(familyFont(this, "Arial Unicode MS"));
    Label2->setAlignment(Qt::AlignCenter);
    Command2 = build.command("Command2", "LOG THE DUPE");
    Command1 = build.command("Command1", "NO LOG");
    for (QPushButton* button : {Command2, Command1})
        button->setFont(familyFont(this, "Arial Rounded MT Bold"));
    // Unlike the other dupe screen's, this timer closes nothing: the operator has to decide.
    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(timerMilliseconds);

    auto* page = new QVBoxLayout(this);
    page->addWidget(Label1);
    page->addWidget(Label2);
    auto* commands = new QHBoxLayout;
    commands->addWidget(Command2);
    commands->addWidget(Command1);
    page->addLayout(commands);
}

void frmCheckDupeK3Y::load() {
    stayAbove(opener());
    if (shared().audioOn)
        platform().sound.playDupeAlarm();
    Timer1->start();
}

// A click on the page that waits must not put it in front of the question it waits for.
void frmCheckDupeK3Y::stayAbove(QWidget* page) {
    if (page == nullptr)
        return;
    winId(); // makes the window that can be tied to the other
    windowHandle()->setTransientParent(page->windowHandle());
}

QWidget* frmCheckDupeK3Y::firstFocus() {
    return Command1;
}

void frmCheckDupeK3Y::ask(DupeQuestion question) {
    m_question = std::move(question);
    m_logged = false;
}

// When the log cannot be written the box stays: the contact is still the operator's to log.
void frmCheckDupeK3Y::Command2_Click() {
    m_question.log();
    m_logged = true;
    close();
}

void frmCheckDupeK3Y::Command1_Click() {
    close();
}

// Leaving without logging is NO LOG, by whichever way: button, Esc or the window's own cross.
void frmCheckDupeK3Y::closeEvent(QCloseEvent* event) {
    if (!m_logged)
        runHandler(m_question.drop);
    Form::closeEvent(event);
}

} // namespace vantrel
