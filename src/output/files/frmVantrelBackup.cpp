// SPDX-License-Identifier: MIT
#include "output/files/frmVantrelBackup.h"

#include "output/files/backup.h"
#include "platform/files.h"

#include <QShortcut>

namespace vantrel {

namespace {
constexpr double headingEnlargement = 1.4;
constexpr int folderColumns = 56;
} // namespace

frmVantrelBackup::frmVantrelBackup(const FormContext& context)
    : Form(context, "frmVantrelBackup", "BACKUP CABRILLO FILE") {
    FormBuilder build(this);
    m_folderBox = focusFirst(build.text("Text1"));
    m_folderBox->setMinimumWidth(fontMetrics().averageCharWidth() * folderColumns);
    m_copy = wrapped(build.label("Label6"));
    m_copy->setMinimumHeight(2 * fontMetrics().lineSpacing()); // nothing jumps below it
    m_copy->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    QPushButton* browse = build.command("Command3", "&BROWSE", "FINDS THE FOLDER",
                                        [this] { screens().openFinder(Screen::backup); });
    m_backupButton = bold(
        build.command("Command2", "&BACKUP", "COPIES THE CABRILLO FILE", [this] { backUp(); }));
    m_logPath = wrapped(build.label("Label5"));
    QLabel* logCaption = build.label("Label4", "FILE TO BACKUP:");
    QLabel* folderCaption = build.label("Label2", "SEND BACKUP TO:");
    FormBuilder::tie(logCaption, m_logPath);
    FormBuilder::tie(folderCaption, m_folderBox);
    page(this, {build.heading("Label1", "BACKUP THE CABRILLO FILE", headingEnlargement), logCaption,
                m_logPath, folderCaption, row({{m_folderBox, 1}, browse}), m_copy,
                m_status = build.alert("Label3"), Item::room(),
                row({m_backupButton, Item::room(), build.exit("QUIT THIS PAGE")})});
    connectHandler(m_folderBox, &QLineEdit::returnPressed, [this] { backUp(); });
    connectHandler(m_folderBox, &QLineEdit::textChanged, [this] {
        shared().backupFolder = textOf(m_folderBox);
        showCopyThere();
    });
    // The captions share their letter: the first stroke leads to BACKUP, the second presses it.
    for (QPushButton* button : {browse, m_backupButton})
        button->setShortcut({});
    auto* altB = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_B), this);
    altB->setAutoRepeat(false);
    connectHandler(altB, &QShortcut::activated, [this] {
        if (m_backupButton->hasFocus())
            backUp();
        else
            m_backupButton->setFocus();
    });
}

void frmVantrelBackup::load() {
    put(m_folderBox, shared().backupFolder);
    showLog();
}

void frmVantrelBackup::bringToFront() {
    if (isVisible())
        showLog();
    Form::bringToFront();
}

void frmVantrelBackup::receivePath(const std::string& path) {
    put(m_folderBox, path);
    m_folderBox->setFocus();
}

void frmVantrelBackup::backUp() {
    showLog();
    put(m_status, "    < WORKING >");
    m_status->repaint();
    try {
        const Backup backup = backUpLog(platform().files, shared().log.name(), textOf(m_folderBox));
        put(m_copy, backupText(backup));
    } catch (const RuntimeError&) {
        m_status->clear();
        throw;
    }
    const std::string done = "DONE......CLICK EXIT";
    m_status->announce(done, done + ". " + textOf(m_copy));
}

// The open log, and what is known of its copy in the folder.
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

} // namespace vantrel
