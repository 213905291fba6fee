// SPDX-License-Identifier: MIT
#include "logedit/frmVantrelDelete.h"

#include "forms/formbuilder.h"
#include "logedit/changereport.h"
#include "logedit/deletion.h"
#include "platform/qt/latin1.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace vantrel {

namespace {

constexpr std::string_view openingText = "ENTER A CALLSIGN ";
constexpr std::string_view notFoundText = "THIS CALL NOT FOUND ";
constexpr std::string_view lastEntryText = "  LAST ENTRY";
constexpr std::string_view deletedText = "Deleted...Click EXIT";
constexpr double headingEnlargement = 1.5;
constexpr int openingColumns = 50; // room for the contact shown

} // namespace

frmVantrelDelete::frmVantrelDelete(const FormContext& context)
    : Form(context, "frmVantrelDelete", "DELETE AN ENTRY FROM THE CABRILLO FILE"),
      m_log(context.platform.files, context.shared.log) {
    createControls();
    layOut();
    openAtPageSize();
    connectHandlers();
}

void frmVantrelDelete::createControls() {
    FormBuilder build(this);
    Text1 = build.text("Text1");
    Command3 = build.command("Command3", "SEARCH", "ENTER A CALL THEN CLICK HERE");
    Command4 = build.command("Command4", "SEARCH AGAIN", "SEARCH FOR ADDITIONAL ENTRIES");
    Command2 = build.command("Command2", "&DELETE", "REMOVE THE ENTRY DISPLAYED ");
    Command5 = build.command("Command5", "&UNDO", "UNDOES THE LAST CHANGE MADE HERE, OR REDOES IT");
    Command1 = build.command("Command1", "E&XIT", "QUIT THIS ROUTINE");
    Label2 = build.label("Label2");
    Label3 = build.label("Label3");
    Label4 = build.label("Label4");
    Command2->setEnabled(false);
    Command5->setEnabled(false);
}

void frmVantrelDelete::connectHandlers() {
    using Page = frmVantrelDelete;
    connectHandler(Text1, &QLineEdit::returnPressed, this, &Page::Command3_Click);
    connectHandler(Command3, &QPushButton::clicked, this, &Page::Command3_Click);
    connectHandler(Command4, &QPushButton::clicked, this, &Page::Command4_Click);
    connectHandler(Command2, &QPushButton::clicked, this, &Page::Command2_Click);
    connectHandler(Command5, &QPushButton::clicked, this, &Page::Command5_Click);
    connect(Command1, &QPushButton::clicked, this, [this] { close(); });
}

void frmVantrelDelete::load() {
    say(openingText);
}

QWidget* frmVantrelDelete::firstFocus() {
    return Text1;
}

void frmVantrelDelete::Command3_Click() {
    const std::string key = tidied(fromQt(Text1->text()));
    Text1->setText(toQt(key));
    showOutcome(m_log.search(key), notFoundText);
}

void frmVantrelDelete::Command4_Click() {
    showOutcome(m_log.searchNext(tidied(fromQt(Text1->text()))), lastEntryText);
}

void frmVantrelDelete::Command2_Click() {
    if (!reportChange(m_log.removeLine(), m_log, messages()))
        return;
    say(deletedText);
    followLog();
}

void frmVantrelDelete::Command5_Click() {
    if (!reportChange(m_log.undo(), m_log, messages()))
        return;
    say(m_log.undoText());
    followLog();
}

void frmVantrelDelete::showOutcome(SearchResult result, std::string_view none) {
    if (result != SearchResult::keyTooShort)
        say(result == SearchResult::found ? "" : none);
    followLog();
}

void frmVantrelDelete::say(std::string_view message) {
    Label4->setText(toQt(message));
}

void frmVantrelDelete::followLog() {
    const bool found = m_log.found();
    Label2->setText(found ? toQt(deletionCallText(m_log.line())) : QString());
    Label3->setText(found ? toQt(deletionDetailText(m_log.line())) : QString());
    // Not after a deletion: a second press would remove the contact that moved up, unseen.
    Command2->setEnabled(found);
    Command5->setEnabled(m_log.canUndo());
    Text1->setFocus();
    Text1->selectAll();
}

void frmVantrelDelete::layOut() {
    FormBuilder build(this);
    QLabel* heading = build.caption("DELETE AN ENTRY");
    heading->setFont(enlargedFont(this, headingEnlargement));
    heading->setAlignment(Qt::AlignCenter);
    auto* searching = new QHBoxLayout;
    searching->addWidget(build.caption("HIS CALL"));
    searching->addWidget(Text1, 1);
    searching->addWidget(Command3);
    searching->addWidget(Command4);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {Command2, Command5, Command1})
        buttons->addWidget(button);
    auto* page = new QVBoxLayout(this);
    page->addWidget(heading);
    page->addLayout(searching);
    for (QLabel* label : {Label2, Label3}) {
        label->setFont(fixedWidthFont());
        label->setMinimumWidth(QFontMetrics(label->font()).averageCharWidth() * openingColumns);
        page->addWidget(label);
    }
    page->addWidget(Label4);
    page->addStretch();
    page->addLayout(buttons);
    Label4->setAlignment(Qt::AlignCenter);
}

} // namespace vantrel
