// SPDX-License-Identifier: MIT
#include "logedit/frmLogPage.h"

#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "log/qsoline.h"

#include <QHBoxLayout>

namespace vantrel {

namespace {
constexpr double headingEnlargement = 1.5;
} // namespace

frmLogPage::frmLogPage(const FormContext& context, const char* name, const char* caption)
    : Form(context, name, caption), m_log(context.platform.files, context.shared.log) {
    openAtPageSize();
}

void frmLogPage::startAt(int contact, bool shown) {
    m_startContact = contact;
    m_startShown = shown;
}

QWidget* frmLogPage::firstFocus() {
    return m_callBox;
}

// --- Controls --------------------------------------------------------------------------------

void frmLogPage::createSearch(QLineEdit* callBox, const char* searchAgainTip) {
    FormBuilder build(this);
    m_callBox = callBox;
    m_searchButton = build.command("Command3", "SEARCH", "ENTER A CALL THEN CLICK HERE");
    m_searchAgainButton = build.command("Command4", "SEARCH AGAIN", searchAgainTip);
    connectHandler(m_callBox, &QLineEdit::returnPressed, this, &frmLogPage::searchClicked);
    connectHandler(m_searchButton, &QPushButton::clicked, this, &frmLogPage::searchClicked);
    connectHandler(m_searchAgainButton, &QPushButton::clicked, this,
                   &frmLogPage::searchAgainClicked);
}

QRadioButton* frmLogPage::createDupeOption(QLineEdit* markerBox) {
    QRadioButton* option = FormBuilder(this).jobOption("Option1", "DUPE NOTE");
    connect(option, &QRadioButton::clicked, this, [option, markerBox] {
        put(markerBox, dupeMarker);
        option->setChecked(false);
    });
    return option;
}

void frmLogPage::createChange(const char* caption, const char* toolTip, const char* exitTip) {
    FormBuilder build(this);
    m_changeButton = build.command("Command2", caption, toolTip);
    m_undoButton =
        build.command("Command5", "&UNDO", "UNDOES THE LAST CHANGE MADE HERE, OR REDOES IT");
    m_exitButton = build.command("Command1", "E&XIT", exitTip);
    m_changeButton->setEnabled(false);
    m_undoButton->setEnabled(false);
    connectHandler(m_changeButton, &QPushButton::clicked, this, &frmLogPage::changeClicked);
    connectHandler(m_undoButton, &QPushButton::clicked, this, &frmLogPage::undoClicked);
    connect(m_exitButton, &QPushButton::clicked, this, &QWidget::close);
}

void frmLogPage::createMessage(const char* name) {
    m_messageLabel = FormBuilder(this).label(name);
}

QLabel* frmLogPage::heading(const char* text) {
    QLabel* heading = FormBuilder(this).caption(text);
    heading->setFont(enlargedFont(this, headingEnlargement));
    heading->setAlignment(Qt::AlignCenter);
    return heading;
}

QHBoxLayout* frmLogPage::searchButtons() {
    auto* row = new QHBoxLayout;
    row->addWidget(m_searchButton);
    row->addWidget(m_searchAgainButton);
    return row;
}

QHBoxLayout* frmLogPage::searchRow(const char* caption) {
    QHBoxLayout* row = searchButtons();
    row->insertWidget(0, FormBuilder(this).caption(caption, m_callBox));
    row->insertWidget(1, m_callBox, 1);
    return row;
}

QHBoxLayout* frmLogPage::changeButtons() {
    auto* row = new QHBoxLayout;
    for (QPushButton* button : {m_changeButton, m_undoButton, m_exitButton})
        row->addWidget(button);
    return row;
}

// --- Finding ---------------------------------------------------------------------------------

void frmLogPage::searchClicked() {
    searchStarts();
    const std::string key = takeKey();
    showOutcome(m_log.search(key), key, notFoundText(key));
}

void frmLogPage::searchAgainClicked() {
    searchStarts();
    const std::string key = takeKey();
    showOutcome(m_log.searchNext(key), key, lastEntryText());
}

std::string frmLogPage::takeKey() {
    const std::string key = tidied(textOf(m_callBox));
    put(m_callBox, key);
    return key;
}

void frmLogPage::showOutcome(SearchResult result, const std::string& key, std::string_view none) {
    if (result == SearchResult::found) {
        showFound(key);
    } else if (result == SearchResult::notFound) {
        foundNone(key);
        say(none);
    }
    followLog();
}

// --- Changing --------------------------------------------------------------------------------

void frmLogPage::changeClicked() {
    if (m_log.found())
        change();
}

void frmLogPage::undoClicked() {
    if (!made(m_log.undo()))
        return;
    clearBoxes();
    finish(m_log.undoText());
}

bool frmLogPage::made(const ChangeResult& result) {
    // What fails here is told, but the change is made all the same.
    if (result.made)
        runHandler([this] { shared().log.reread(); });
    if (result.notice)
        messages().show(*result.notice);
    return result.made;
}

void frmLogPage::finish(std::string_view message) {
    say(message);
    followLog();
}

void frmLogPage::say(std::string_view message) {
    put(m_messageLabel, message);
}

void frmLogPage::followLog() {
    m_changeButton->setEnabled(m_log.found());
    m_undoButton->setEnabled(m_log.canUndo());
    m_callBox->setFocus();
    m_callBox->selectAll();
}

} // namespace vantrel
