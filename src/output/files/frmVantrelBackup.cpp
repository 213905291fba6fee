// SPDX-License-Identifier: MIT
#include "output/files/frmVantrelBackup.h"

#include "forms/accessible.h"
#include "forms/colours.h"
#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "output/files/backup.h"
#include "platform/files.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>

namespace vantrel {

namespace {
constexpr double headingEnlargement = 1.4;
constexpr int folderColumns = 56;
} // namespace

frmVantrelBackup::frmVantrelBackup(const FormContext& context)
    : Form(context, "frmVantrelBackup", "BACKUP CABRILLO FILE") {
    FormBuilder build(this);
    m_folderBox = build.text("Text1");
    m_browseButton = build.command("Command3", "&BROWSE", "FINDS THE FOLDER");
    m_backupButton = build.command("Command2", "&BACKUP", "COPIES THE CABRILLO FILE");
    m_exitButton = build.command("Command1", "E&XIT", "QUIT THIS PAGE");
    m_logPath = build.label("Label5");
    m_status = build.alert("Label3");
    m_copy = build.label("Label6");
    layOut();
    using Page = frmVantrelBackup;
    connectHandler(m_folderBox, &QLineEdit::returnPressed, this, &Page::backupClicked);
    connectHandler(m_backupButton, &QPushButton::clicked, this, &Page::backupClicked);
    connectHandler(m_browseButton, &QPushButton::clicked, this, &Page::browseClicked);
    connectHandler(m_folderBox, &QLineEdit::textChanged, this, &Page::showCopyThere);
    // The captions share their letter: the first stroke leads to BACKUP, the second presses it.
    for (QPushButton* button : {m_browseButton, m_backupButton})
        button->setShortcut({});
    auto* altB = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_B), this);
    altB->setAutoRepeat(false);
    connectHandler(altB, &QShortcut::activated, this, &Page::altBPressed);
    connect(m_exitButton, &QPushButton::clicked, this, &QWidget::close);
}

void frmVantrelBackup::load() {
    showLog();
}

void frmVantrelBackup::bringToFront() {
    if (isVisible())
        showLog();
    Form::bringToFront();
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
    showLog();
    put(m_status, backupUnderWay);
    m_status->repaint();
    try {
        const Backup backup = backUpLog(platform().files, shared().log.name(), textOf(m_folderBox));
        put(m_copy, backupText(backup));
    } catch (const RuntimeError&) {
        m_status->clear();
        throw;
    }
    announce(m_status, backupDone, std::string(backupDone) + ". " + textOf(m_copy));
}

void frmVantrelBackup::altBPressed() {
    if (m_backupButton->hasFocus())
        backupClicked();
    else
        m_backupButton->setFocus();
}

// The log of the moment, and what its copy says.
void frmVantrelBackup::showLog() {
    put(m_logPath, platform().files.path(shared().log.name()));
    showCopyThere();
}

void frmVantrelBackup::showCopyThere() {
    m_status->clear();
    try {
        put(m_copy, copyThereText(platform().files, shared().log.name(), textOf(m_folderBox)));
    } catch (const RuntimeError&) {
        put(m_copy, "THE COPY THERE CANNOT BE READ"); // BACKUP says why
    }
}

void frmVantrelBackup::layOut() {
    FormBuilder build(this);
    QLabel* heading = build.label("Label1", "BACKUP THE CABRILLO FILE");
    heading->setFont(enlargedFont(this, headingEnlargement));
    heading->setAlignment(Qt::AlignCenter);
    QLabel* folderCaption = build.label("Label2", "SEND BACKUP TO:");
    folderCaption->setBuddy(m_folderBox);
    QLabel* logCaption = build.label("Label4", "FILE TO BACKUP:");
    for (QLabel* caption : {folderCaption, logCaption})
        setTextColour(caption, dimmedColour(palette()));
    for (QLabel* text : {m_logPath, m_copy})
        text->setWordWrap(true);
    m_copy->setMinimumHeight(2 * fontMetrics().lineSpacing()); // nothing jumps below it
    m_copy->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_folderBox->setMinimumWidth(fontMetrics().averageCharWidth() * folderColumns);
    auto* folder = new QHBoxLayout;
    folder->addWidget(m_folderBox, 1);
    folder->addWidget(m_browseButton);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_backupButton);
    buttons->addStretch();
    buttons->addWidget(m_exitButton);
    m_backupButton->setFont(enlargedFont(this, 1));
    auto* page = new QVBoxLayout(this);
    page->addWidget(heading);
    page->addWidget(logCaption);
    page->addWidget(m_logPath);
    page->addWidget(folderCaption);
    page->addLayout(folder);
    page->addWidget(m_copy);
    page->addWidget(m_status);
    page->addStretch();
    page->addLayout(buttons);
}

} // namespace vantrel
