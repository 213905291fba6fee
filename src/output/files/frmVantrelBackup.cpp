// SPDX-License-Identifier: MIT
#include "output/files/frmVantrelBackup.h"

#include "forms/formbuilder.h"
#include "output/files/backup.h"
#include "platform/eventloop.h"
#include "platform/files.h"
#include "platform/qt/latin1.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace vantrel {

namespace {
constexpr std::string_view workingText = "    < WORKING >";
constexpr std::string_view doneText = "DONE......CLICK EXIT";
constexpr double headingEnlargement = 1.4;
} // namespace

frmVantrelBackup::frmVantrelBackup(const FormContext& context)
    : Form(context, "frmVantrelBackup", "BACKUP CABRILLO FILE") {
    FormBuilder build(this);
    Text1 = build.text("Text1");
    Command3 = build.command("Command3", "&BROWSE", "FINDS THE FOLDER");
    Command2 = build.command("Command2", "&BACKUP", "COPIES THE CABRILLO FILE");
    Command1 = build.command("Command1", "E&XIT", "QUIT THIS PAGE");
    Label1 = build.label("Label1", "BACKUP THE CABRILLO FILE");
    Label4 = build.label("Label4", "FILE TO BACKUP:");
    Label5 = build.label("Label5");
    Label2 = build.label("Label2", "SEND BACKUP TO:");
    Label3 = build.label("Label3");
    layOut();
    connectHandler(Text1, &QLineEdit::returnPressed, this, &frmVantrelBackup::Command2_Click);
    connectHandler(Command2, &QPushButton::clicked, this, &frmVantrelBackup::Command2_Click);
    connectHandler(Command3, &QPushButton::clicked, this, &frmVantrelBackup::Command3_Click);
    connect(Command1, &QPushButton::clicked, this, [this] { close(); });
}

void frmVantrelBackup::load() {
    Label5->setText(toQt(platform().files.path(shared().log.name())));
}

QWidget* frmVantrelBackup::firstFocus() {
    return Text1;
}

void frmVantrelBackup::receivePath(const std::string& path) {
    Text1->setText(toQt(path));
    Text1->setFocus();
}

void frmVantrelBackup::Command3_Click() {
    screens().openFinder(Screen::backup);
}

void frmVantrelBackup::Command2_Click() {
    Label3->setText(toQt(workingText));
    Label3->repaint();
    try {
        backUpLog(platform().files, shared().log.name(), fromQt(Text1->text()));
    } catch (const RuntimeError&) {
        Label3->clear();
        throw;
    }
    Label3->setText(toQt(doneText));
}

void frmVantrelBackup::layOut() {
    Label1->setFont(enlargedFont(this, headingEnlargement));
    Label1->setAlignment(Qt::AlignCenter);
    Label5->setWordWrap(true);
    auto* path = new QHBoxLayout;
    path->addWidget(Text1, 1);
    path->addWidget(Command3);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Command2);
    buttons->addWidget(Command1);
    auto* page = new QVBoxLayout(this);
    for (QWidget* control : {static_cast<QWidget*>(Label1), static_cast<QWidget*>(Label4),
                             static_cast<QWidget*>(Label5), static_cast<QWidget*>(Label2)})
        page->addWidget(control);
    page->addLayout(path);
    page->addWidget(Label3);
    page->addStretch();
    page->addLayout(buttons);
    resize(560, 280);
}

} // namespace vantrel
