// SPDX-License-Identifier: MIT
#include "output/files/frmVantrelBackup.h"

#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "output/files/backup.h"
#include "platform/files.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace vantrel {

namespace {
constexpr double headingEnlargement = 1.4;
} // namespace

frmVantrelBackup::frmVantrelBackup(const FormContext& context)
    : Form(context, "frmVantrelBackup", "BACKUP CABRILLO FILE") {
    FormBuilder build(this);
    m_folderBox = build.text("Text1");
    m_browseButton = build.command("Command3", "&BROWSE", "FINDS THE FOLDER");
    m_backupButton = build.command("Command2", "&BACKUP", "COPIES THE CABRILLO FILE");
    m_exitButton = build.command("Command1", "E&XIT", "QUIT THIS PAGE");
    m_logPath = build.label("Label5");
    m_status = build.label("Label3");
    layOut();
    using Page = frmVantrelBackup;
    connectHandler(m_folderBox, &QLineEdit::returnPressed, this, &Page::backupClicked);
    connectHandler(m_backupButton, &QPushButton::clicked, this, &Page::backupClicked);
    connectHandler(m_browseButton, &QPushButton::clicked, this, &Page::browseClicked);
    connect(m_exitButton, &QPushButton::clicked, this, &QWidget::close);
}

void frmVantrelBackup::load() {
    put(m_logPath, platform().files.path(shared().log.name()));
}

QWidget* frmVantrelBackup::firstFocus() {
    return m_folderBox;
}

void frmVantrelBackup::receivePath(const std::string& path) {
    put(m_folderBox, path);
    m_folderBox->setFocus();
}

void frmVantrelBackup::browseClicked() {
    screens().openFinder(Screen::backup);
}

void frmVantrelBackup::backupClicked() {
    put(m_status, backupUnderWay);
    m_status->repaint();
    try {
        backUpLog(platform().files, shared().log.name(), textOf(m_folderBox));
    } catch (const RuntimeError&) {
        m_status->clear();
        throw;
    }
    put(m_status, backupDone);
}

void frmVantrelBackup::layOut() {
    FormBuilder build(this);
    QLabel* heading = build.label("Label1", "BACKUP THE CABRILLO FILE");
    heading->setFont(enlargedFont(this, headingEnlargement));
    heading->setAlignment(Qt::AlignCenter);
    QLabel* folderCaption = build.label("Label2", "SEND BACKUP TO:");
    folderCaption->setBuddy(m_folderBox);
    m_logPath->setWordWrap(true);
    auto* folder = new QHBoxLayout;
    folder->addWidget(m_folderBox, 1);
    folder->addWidget(m_browseButton);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_backupButton);
    buttons->addWidget(m_exitButton);
    auto* page = new QVBoxLayout(this);
    page->addWidget(heading);
    page->addWidget(build.label("Label4", "FILE TO BACKUP:"));
    page->addWidget(m_logPath);
    page->addWidget(folderCaption);
    page->addLayout(folder);
    page->addWidget(m_status);
    page->addStretch();
    page->addLayout(buttons);
    resize(560, 280);
}

} // namespace vantrel
